// orbelle-svg SIDE: draws the SVG document on standard input so that its longer side has SIDE
// pixels, and writes it as codecs/svg_process.h tells; with SIDE 0 only the document's own size.
// What is wrong with a document is written instead, with status 1. A process of its own, because
// some documents of a few lines take hours or all memory, and no setting of the library ends them.
#include <librsvg/rsvg.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "graphics/codecs/svg_process.h"

namespace {

using orbelle::graphics::SvgReply;

constexpr double kDotsPerInch = 96;  // as CSS has it
constexpr rlim_t kMaxMemory = rlim_t{512} << 20;

// The address sanitizer needs more than that for itself.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kLimitsMemory = false;
#elif defined(__has_feature)
constexpr bool kLimitsMemory = !__has_feature(address_sanitizer);
#else
constexpr bool kLimitsMemory = true;
#endif

[[noreturn]] void Fail(const std::string& problem) {
    std::fputs(problem.c_str(), stdout);
    std::fflush(stdout);
    std::_Exit(1);
}

void Limit(decltype(RLIMIT_CPU) what, rlim_t most) {
    const rlimit limit = {most, most};
    setrlimit(what, &limit);
}

void LimitOurselves() {
    Limit(RLIMIT_CORE, 0);
    Limit(RLIMIT_CPU, orbelle::graphics::kMaxSvgSeconds);
    if (kLimitsMemory)
        Limit(RLIMIT_DATA, kMaxMemory);
    // Each thread has its own memory; and a drawing does not depend on the user's language.
    setenv("RAYON_NUM_THREADS", "2", 1);
    setenv("LC_ALL", "C", 1);
    unsetenv("LANGUAGE");
}

std::vector<std::uint8_t> ReadInput() {
    std::vector<std::uint8_t> document;
    std::uint8_t piece[65536];
    ssize_t count = 0;
    while ((count = read(STDIN_FILENO, piece, sizeof piece)) > 0)
        document.insert(document.end(), piece, piece + count);
    return document;
}

// The document's own size, in pixels; else that of its view box, else what its shapes reach.
void FindSize(RsvgHandle* svg, double& width, double& height) {
    if (rsvg_handle_get_intrinsic_size_in_pixels(svg, &width, &height) && width > 0 && height > 0)
        return;
    gboolean hasWidth = FALSE, hasHeight = FALSE, hasBox = FALSE;
    RsvgLength ownWidth{}, ownHeight{};
    RsvgRectangle box{};
    rsvg_handle_get_intrinsic_dimensions(svg, &hasWidth, &ownWidth, &hasHeight, &ownHeight, &hasBox,
                                         &box);
    if (!hasBox) {
        RsvgRectangle logical{};
        if (!rsvg_handle_get_geometry_for_element(svg, nullptr, &box, &logical, nullptr))
            box = {};
        box.width += std::max(box.x, 0.0);
        box.height += std::max(box.y, 0.0);
    }
    width = box.width;
    height = box.height;
}

// To the nearest, ties to even; a side is 1 pixel or more.
std::int32_t Rounded(double side) {
    return static_cast<std::int32_t>(std::nearbyint(std::clamp(side, 1.0, 2147483000.0)));
}

void Write(const void* bytes, std::size_t count) {
    if (std::fwrite(bytes, 1, count, stdout) != count)
        std::_Exit(1);
}

}  // namespace

int main(int count, char** arguments) {
    LimitOurselves();
    const int side = count == 2 ? std::atoi(arguments[1]) : 0;
    const std::vector<std::uint8_t> document = ReadInput();
    GError* error = nullptr;
    // Without an address of its own a document can name no other.
    RsvgHandle* svg = rsvg_handle_new_from_data(document.data(), document.size(), &error);
    if (!svg)
        Fail(error ? error->message : "it is no SVG document");
    rsvg_handle_set_dpi(svg, kDotsPerInch);
    double width = 0, height = 0;
    FindSize(svg, width, height);
    if (!(width > 0 && height > 0 && std::isfinite(width) && std::isfinite(height)))
        Fail("it has no size");
    const double scale = side / std::max(width, height);
    SvgReply reply;
    reply.OwnWidth = Rounded(width);
    reply.OwnHeight = Rounded(height);
    if (side > 0) {
        reply.Width = Rounded(width * scale);
        reply.Height = Rounded(height * scale);
    }
    if (side <= 0) {
        Write(&reply, sizeof reply);
        std::fflush(stdout);
        std::_Exit(0);
    }

    cairo_surface_t* surface =
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, reply.Width, reply.Height);
    cairo_t* drawing = cairo_create(surface);
    // The sides are rounded, and the whole document reaches from edge to edge.
    cairo_scale(drawing, reply.Width / width, reply.Height / height);
    const RsvgRectangle viewport = {0, 0, width, height};
    if (!rsvg_handle_render_document(svg, drawing, &viewport, &error))
        Fail(error ? error->message : "it can't be drawn");
    cairo_surface_flush(surface);
    if (cairo_status(drawing) != CAIRO_STATUS_SUCCESS)
        Fail(cairo_status_to_string(cairo_status(drawing)));
    Write(&reply, sizeof reply);
    const std::uint8_t* pixels = cairo_image_surface_get_data(surface);
    const int stride = cairo_image_surface_get_stride(surface);
    for (int y = 0; y < reply.Height; ++y)
        Write(pixels + static_cast<std::ptrdiff_t>(y) * stride,
              static_cast<std::size_t>(reply.Width) * sizeof(std::uint32_t));
    std::fflush(stdout);
    std::_Exit(0);
}
