// draw-artwork RESOURCES FOLDER: the drawings of the window (SVG files in RESOURCES and its
// folders) as pictures, when the program is built: so that it needs nothing itself that reads SVG.
// Writes FOLDER/light/NAME-WIDTH.png, FOLDER/dark/NAME-WIDTH.png of those that go by the colours of
// the window, and FOLDER/artwork.qrc, which lists them.
#include <librsvg/rsvg.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

namespace fs = std::filesystem;

// Pixels of the screen for each of ours. For other ratios the program shrinks the next larger one.
constexpr double kRatios[] = {1, 1.25, 1.5, 1.75, 2, 3};

// Sides of drawings that are shown in another size than their own, too.
constexpr std::pair<const char*, int> kOtherSides[] = {{"main/new", 32}, {"main/open", 32}};

// What our drawings are made with, and what stands for it on dark.
constexpr std::pair<const char*, const char*> kDarkColors[] = {
    {"#4A5564", "#B8C0CA"},  // outlines
    {"#DCEBFB", "#3B5674"},  // areas
    {"#B9C4D2", "#59626E"},
    {"#2F86E6", "#5AA2F5"},
};

// Icons for the system, made by other means.
constexpr const char* kIcons[] = {"orbelle", "document"};

// Pointers and pictures bring their own ground.
bool FollowsTheme(const std::string& name) {
    return name.find('/') != std::string::npos && !name.starts_with("cursors/");
}

// One that has a number in its name stands in for another in so many pixels ("layers/add-24").
bool IsForOneWidth(const std::string& name) {
    const auto dash = name.rfind('-');
    return dash != std::string::npos &&
           name.find_first_not_of("0123456789", dash + 1) == std::string::npos;
}

std::string ReadText(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::string text(std::istreambuf_iterator<char>(stream), {});
    if (!stream)
        throw std::runtime_error("can't read " + file.string());
    return text;
}

std::string OnDark(std::string drawing) {
    for (const auto& [light, dark] : kDarkColors)
        for (std::size_t at = 0; (at = drawing.find(light, at)) != std::string::npos;)
            drawing.replace(at, std::string(light).size(), dark);
    return drawing;
}

class Drawing {
public:
    explicit Drawing(const std::string& text)
        : svg_(rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(text.data()), text.size(),
                                         nullptr)) {
        if (!svg_ || !rsvg_handle_get_intrinsic_size_in_pixels(svg_, &width_, &height_))
            throw std::runtime_error("no drawing that has a size");
    }
    ~Drawing() { g_object_unref(svg_); }
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    double Width() const { return width_; }
    double Height() const { return height_; }

    void Write(int width, int height, const fs::path& picture) const {
        cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height);
        cairo_t* context = cairo_create(surface);
        const RsvgRectangle whole = {0, 0, double(width), double(height)};
        const bool isDone =
            rsvg_handle_render_document(svg_, context, &whole, nullptr) &&
            cairo_surface_write_to_png(surface, picture.c_str()) == CAIRO_STATUS_SUCCESS;
        cairo_destroy(context);
        cairo_surface_destroy(surface);
        if (!isDone)
            throw std::runtime_error("can't draw " + picture.string());
    }

private:
    RsvgHandle* svg_;
    double width_ = 0;
    double height_ = 0;
};

// Halves up, as the toolkit rounds sizes.
int Rounded(double side) {
    return static_cast<int>(std::floor(side + 0.5));
}

// Of the pictures, in pixels.
std::set<std::pair<int, int>> SizesOf(const std::string& name, const Drawing& drawing) {
    std::set<std::pair<int, int>> sizes;
    const auto add = [&](double factor) {
        for (const double ratio : kRatios)
            sizes.emplace(Rounded(drawing.Width() * factor * ratio),
                          Rounded(drawing.Height() * factor * ratio));
    };
    add(1);
    for (const auto& [other, side] : kOtherSides)
        if (name == other)
            add(side / drawing.Width());
    return sizes;
}

class Artwork {
public:
    Artwork(fs::path resources, fs::path folder)
        : resources_(std::move(resources)), folder_(std::move(folder)) {}

    void DrawAll() {
        std::set<std::string> names;
        for (const fs::path& file : fs::recursive_directory_iterator(resources_))
            if (file.extension() == ".svg")
                names.insert(file.lexically_relative(resources_).replace_extension().string());
        for (const std::string& name : names)
            if (std::ranges::find(kIcons, name) == std::end(kIcons) && !IsForOneWidth(name))
                Draw(name);
        std::ofstream list(folder_ / "artwork.qrc");
        list << "<RCC>\n<qresource prefix=\"/artwork\">\n"
             << list_.str() << "</qresource>\n</RCC>\n";
        if (!list.flush())
            throw std::runtime_error("can't write the list of pictures");
    }

private:
    void Draw(const std::string& name) {
        const std::string text = ReadText(resources_ / (name + ".svg"));
        for (const auto& [width, height] : SizesOf(name, Drawing(text))) {
            const std::string numbered = name + '-' + std::to_string(width);
            const fs::path own = resources_ / (numbered + ".svg");
            const std::string drawing = fs::exists(own) ? ReadText(own) : text;
            Write(drawing, width, height, "light/" + numbered + ".png");
            if (FollowsTheme(name))
                Write(OnDark(drawing), width, height, "dark/" + numbered + ".png");
        }
    }

    void Write(const std::string& drawing, int width, int height, const std::string& file) {
        fs::create_directories((folder_ / file).parent_path());
        Drawing(drawing).Write(width, height, folder_ / file);
        list_ << "<file>" << file << "</file>\n";
    }

    fs::path resources_;
    fs::path folder_;
    std::ostringstream list_;
};

}  // namespace

int main(int count, char** arguments) try {
    if (count != 3)
        throw std::runtime_error("usage: draw-artwork RESOURCES FOLDER");
    Artwork(arguments[1], arguments[2]).DrawAll();
    return 0;
} catch (const std::exception& failure) {
    std::cerr << "draw-artwork: " << failure.what() << '\n';
    return 1;
}
