#include "cli/diff_verb.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <optional>

#include "formats/diff_sheet.h"
#include "formats/pictures_of_file.h"
#include "graphics/file_io.h"
#include "graphics/path_text.h"

namespace orbelle::cli {
namespace {

// One JSON object on one line.
std::string Describe(const formats::SizePair& pair) {
    nlohmann::ordered_json json = {{"size", pair.Size()}};
    if (pair.IsInBoth()) {
        json["pixels"] = pair.Pixels;
        json["max"] = pair.Max;
    } else {
        json["only"] = pair.B.IsEmpty() ? "A" : "B";
    }
    return json.dump() + '\n';
}

void Diff(Workspace& workspace, const FileName& a, const FileName& b,
          const std::optional<FileName>& sheet) {
    const auto load = [&](const FileName& name) {
        return formats::PicturesOfFile(InputFile(workspace, name).Path(), workspace.SvgSide);
    };
    const std::vector<formats::SizePair> pairs = formats::PairPictures(load(a), load(b));
    for (const formats::SizePair& pair : pairs) {
        if (!pair.Differs())
            continue;
        workspace.Differs = true;
        workspace.Output << Describe(pair);
    }
    RequirePrinted(workspace.Output);
    if (sheet) {
        const OutputFile file(*sheet);
        graphics::WriteFile(file.Path(), graphics::EncodePng(formats::DrawDiffSheet(pairs)));
        file.Finish(workspace);
    }
}

// A word that could be a file's name, and no verb.
bool IsSheetNext(const Words& words) {
    return !words.IsAtEnd() && words.Next().find_first_of("./:") != std::string::npos;
}

FileName ReadSheet(Words& words) {
    static constexpr std::string_view kFormats[] = {"png"};
    FileName name = words.Output("SHEET", kFormats);
    std::string extension = graphics::Utf8Of(name.Path.extension());
    std::ranges::transform(extension, extension.begin(),
                           [](unsigned char c) { return std::tolower(c); });
    if (name.Format.empty() && extension != ".png")
        throw UsageError("SHEET must be a PNG file");
    return name;
}

}  // namespace

Action ReadDiff(Words& words) {
    words.NotePrinting();
    const FileName a = words.Input("A");
    const FileName b = words.Input("B");
    const std::optional<FileName> sheet =
        IsSheetNext(words) ? std::optional(ReadSheet(words)) : std::nullopt;
    return [=](Workspace& workspace) { Diff(workspace, a, b, sheet); };
}

}  // namespace orbelle::cli
