#include "rows.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <nlohmann/json.hpp>
#include <regex>

#include "cli/document_json.h"
#include "cli/script.h"
#include "document/compositor.h"
#include "editing/undo_commands.h"
#include "formats/volf_store.h"
#include "graphics/codecs/image_files.h"
#include "graphics/file_io.h"
#include "support/editor_account.h"
#include "support/pixel_runs.h"

namespace orbelle::cli {
namespace {

using editing::Sliders;
using graphics::Bitmap;
using testing::AccountOf;

constexpr std::pair<std::string_view, editing::Slider Sliders::*> kSliders[] = {
    {"slider/opacity", &Sliders::Opacity},
    {"slider/hue", &Sliders::Hue},
    {"slider/saturation", &Sliders::Saturation},
    {"slider/contrast", &Sliders::Contrast},
    {"slider/scale", &Sliders::Scale},
    {"slider/page-width", &Sliders::PageWidth},
    {"slider/page-height", &Sliders::PageHeight},
    {"slider/colour-opacity", &Sliders::ColorOpacity},
};

std::string Hex(graphics::Argb color) {
    char text[9];
    std::snprintf(text, sizeof text, "%08X", color);
    return text;
}

// Without brackets, commas and quotes.
std::string Told(const editing::Editor& editor, const std::string& question) {
    const auto json = nlohmann::ordered_json::parse(DescribeDocument(editor));
    const nlohmann::ordered_json::json_pointer place((isdigit(question[0]) ? "/layers/" : "/") +
                                                     question);
    std::string text;
    for (const char c : json.contains(place) ? json[place].dump() : "no such thing")
        if (!strchr("[]\"", c))
            text += c == ',' ? ' ' : c;
    return text;
}

// "WHAT@X,Y~T": as many numbers as expected; the expected text itself when all are near enough.
std::string Channel(const Bitmap& picture, const std::string& question,
                    const std::string& expected) {
    char what = 0, direction = 0;
    int x = 0, y = 0, tolerance = 0;
    std::sscanf(question.c_str(), "/%c%*[a-z]%c%d,%d~%d", &what, &direction, &x, &y, &tolerance);
    std::string text;
    bool near = true;
    for (const std::string& number : Split(expected, " ")) {
        const graphics::Argb pixel = picture.GetPixel(x, y).value_or(0);
        const int red = pixel == 0 ? -1 : static_cast<int>(graphics::RedOf(pixel));
        const int told = what == 'a' ? static_cast<int>(graphics::AlphaOf(pixel)) : red;
        near &= std::abs(told - std::stoi(number)) <= tolerance;
        text.append(text.empty() ? "" : " ").append(std::to_string(told));
        (direction == '@' ? x : y) += 1;
    }
    return near ? expected : text;
}

std::string Answer(Workspace& workspace, const std::string& question, const std::string& expected) {
    const editing::Editor& editor = workspace.Editor;
    const std::vector<document::IconLayer>& layers = editor.Page().Layers;
    if (question == "title")
        return editor.Title;
    if (question == "selection/runs")
        return editor.Selection.Exists() ? PixelRuns(editor.Selection.Region().Rects()) : "none";
    if (question == "widths") {
        std::string widths;
        for (const document::IconLayer& layer : layers)
            widths += std::to_string(layer.ImageWidth);
        return widths;
    }
    for (const auto& [name, slider] : kSliders)
        if (question == name)
            return std::to_string((editor.Sliders.*slider).Value);

    const std::size_t cut = std::min(question.find_first_of("/@"), question.size());
    const std::string subject = question.substr(0, cut), topic = question.substr(cut);
    const bool isLayer = isdigit(question[0]);
    const std::size_t index = isLayer ? std::stoul(subject) : 0;
    if (isLayer && index >= layers.size())
        return "no such layer";
    const Bitmap picture = isLayer                  ? layers[index].Image
                           : subject == "clipboard" ? workspace.Host.Picture()
                                                    : editor.Canvas;
    if (topic == "/runs")
        return PixelRuns(layers[index].Region.Rects());
    if (topic == "/argb")
        return Argbs(picture);
    if (topic == "/pixels")
        return PixelRuns(picture);
    if (topic == "/size")
        return std::to_string(picture.Width()) + " " + std::to_string(picture.Height());
    if (topic.starts_with("/alphas") || topic.starts_with("/reds"))
        return Channel(picture, topic, expected);
    int x = 0, y = 0;
    if (std::sscanf(topic.c_str(), "@%d,%d", &x, &y) == 2)
        return Hex(picture.GetPixel(x, y).value_or(0));
    return Told(editor, question);
}

// Which one is selected is no matter of a step's.
std::string LayersOf(const editing::Editor& editor) {
    document::Family family = editor.Document;
    family.Master.SelectedLayer = document::kNoLayer;
    for (document::SizePage& page : family.Sizes)
        page.Artwork.SelectedLayer = document::kNoLayer;
    return AccountOf(family);
}

bool IsComposed(editing::Editor& editor) {
    document::Compositor compositor;
    document::Page page = editor.Page();
    Bitmap canvas;
    compositor.Compose(page, graphics::InterpolationMode::NearestNeighbor, canvas);
    return testing::SamePixels(canvas, editor.Canvas);
}

// All steps undone give the stack that they began with, and done again the one that they led to.
void CheckUndo(editing::Editor& editor, const std::string& first) {
    const std::string last = AccountOf(editor.Document);
    const int steps = editor.History.UndoIndex();
    for (int i = 0; i < steps; ++i)
        ASSERT_FALSE(Run(editor, editing::Undo).Failed());
    EXPECT_EQ(LayersOf(editor), first) << "undone";
    for (int i = 0; i < steps; ++i)
        ASSERT_FALSE(Run(editor, editing::Redo).Failed());
    EXPECT_EQ(AccountOf(editor.Document), last) << "undone and done again";
}

}  // namespace

RowsTest::RowsTest() : before_(std::filesystem::current_path()) {
    std::filesystem::current_path(folder.Path());
    testing::SetEnvironment(testing::EnvironmentIn(folder.Path()));
}

RowsTest::~RowsTest() {
    std::filesystem::current_path(before_);
}

void RowsTest::Check(const std::string& script, const std::string& facts,
                     const std::vector<Row>& rows) {
    for (const Row& row : rows)
        Check({row.Behaviour, script + row.Script, facts + row.Facts});
}

void RowsTest::Check(const Row& row) {
    SCOPED_TRACE(std::string(row.Behaviour) + ": " + row.Script);
    std::ostringstream output;
    Workspace workspace(output);
    std::ostringstream notes;
    std::string error, first = LayersOf(workspace.Editor);
    try {
        for (const Call& call : ParseCalls(SplitLine(row.Script))) {
            RunCalls({&call, 1}, workspace, notes);
            if (workspace.Editor.History.UndoIndex() == 0)
                first = LayersOf(workspace.Editor);
        }
    } catch (const Failure& failure) {
        error = failure.what();
    }
    std::map<std::string, std::string> told{{"error", error}, {"notes", notes.str()}};
    for (auto& [question, words] : told)
        words = std::regex_replace(words, std::regex(", "), "; ");
    for (const std::string& fact : Split(row.Facts, ", ")) {
        const std::size_t blank = std::min(fact.find(' '), fact.size());
        const std::string question = fact.substr(0, blank);
        const std::string expected = fact.substr(std::min(blank + 1, fact.size()));
        const auto words = told.extract(question);
        EXPECT_EQ(words ? words.mapped() : Answer(workspace, question, expected), expected)
            << question;
    }
    for (const auto& [question, words] : told)
        EXPECT_EQ(words, "") << question;
    if (!workspace.Editor.DocumentExists)
        return;
    EXPECT_TRUE(IsComposed(workspace.Editor));
    CheckUndo(workspace.Editor, first);
}

void RowsTest::Write(const std::string& name, const Bitmap& picture) {
    graphics::WriteFile(name, graphics::EncodePng(picture));
}

void RowsTest::WriteDocument(const std::string& name, int width, int height,
                             const std::vector<Placed>& layers) {
    document::Document document;
    document.Master.Width = width;
    document.Master.Height = height;
    for (const auto& [image, rect, opacity, visible] : layers) {
        document::IconLayer& layer = document.Master.Layers.emplace_back();
        layer.Image = image;
        document::PlaceAt(layer, {0, 0, image.Width(), image.Height()});
        if (rect.Width > 0)
            layer.Rect = rect;
        layer.BaseRect = layer.Rect;
        layer.Opacity = opacity;
        layer.Visible = visible;
    }
    formats::SaveDocument(name, document);
}

std::string RunScript(Workspace& workspace, const std::string& script) {
    try {
        RunCalls(ParseCalls(SplitLine(script)), workspace);
    } catch (const std::runtime_error& failure) {
        return failure.what();
    }
    return {};
}

std::vector<std::string> Split(const std::string& text, const std::string& separator) {
    std::vector<std::string> parts;
    std::size_t begin = 0;
    for (std::size_t end = 0; (end = text.find(separator, begin)) != std::string::npos;
         begin = end + separator.size())
        parts.push_back(text.substr(begin, end - begin));
    parts.push_back(text.substr(begin));
    return parts;
}

std::string Argbs(const Bitmap& picture) {
    std::string text;
    for (const graphics::Argb pixel : testing::PixelsOf(picture))
        text.append(text.empty() ? "" : " ").append(Hex(pixel));
    return text;
}

}  // namespace orbelle::cli
