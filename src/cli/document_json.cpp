#include "cli/document_json.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "graphics/path_text.h"

namespace orbelle::cli {
namespace {

// Keeps the order of the keys; numbers with a fraction are floats, so that they print as floats.
using Json = nlohmann::basic_json<nlohmann::ordered_map, std::vector, std::string, bool,
                                  std::int64_t, std::uint64_t, float>;

Json Number(float value) {
    constexpr float kWholeNumbers = 1 << 24;  // all whole floats up to here are exact
    if (std::abs(value) <= kWholeNumbers && value == std::trunc(value))
        return static_cast<std::int64_t>(value);
    return value;
}

Json Rect(const graphics::RectF& rect) {
    return Json::array({Number(rect.X), Number(rect.Y), Number(rect.Width), Number(rect.Height)});
}

std::string Color(graphics::Argb color) {
    char text[sizeof "#AARRGGBB"];
    std::snprintf(text, sizeof text, "#%08X", color);
    return text;
}

Json Layer(const document::IconLayer& layer) {
    return {{"rect", Rect(layer.Rect)},
            {"base_rect", Rect(layer.BaseRect)},
            {"image", Json::array({layer.ImageWidth, layer.ImageHeight})},
            {"opacity", Number(layer.Opacity)},
            {"scale", layer.ScaleValue},
            {"visible", layer.Visible},
            {"clip_next", layer.ClipNextLayer},
            {"hue", layer.Hue},
            {"saturation", layer.Saturation},
            {"brightness", layer.Brightness},
            {"contrast", layer.Contrast},
            {"region", layer.Region.IsNull() ? Json() : Rect(layer.Region.Bounds())}};
}

}  // namespace

std::string DescribeDocument(const editing::Editor& editor) {
    const document::Document& document = editor.Document;
    const document::Page& page = editor.Page();
    Json layers = Json::array();
    for (const document::IconLayer& layer : page.Layers)
        layers.push_back(Layer(layer));
    const Json selection =
        editor.Selection.Exists() ? Rect(editor.Selection.Region().Bounds()) : Json();
    Json sizes = Json::array();
    for (const document::SizePage& size : document.Sizes)
        sizes.push_back(size.Size);
    const bool isMaster = document.EditedSize == document::Family::kMaster;
    const Json json = {{"size", isMaster ? Json() : Json(document.EditedSize)},
                       {"sizes", std::move(sizes)},
                       {"page",
                        {{"width", page.Width},
                         {"height", page.Height},
                         {"background", Color(document.Background)}}},
                       {"path", graphics::Utf8Of(document.Path)},
                       {"modified", document.Modified},
                       {"selected", page.SelectedLayer},
                       {"undo", editor.History.UndoIndex()},
                       {"redo", editor.History.RedoCount()},
                       {"selection", selection},
                       {"layers", std::move(layers)}};
    // A path need not be text.
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace orbelle::cli
