#include "editing/document_commands.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "document/layer_slots.h"
#include "editing/layer_commands.h"
#include "editing/slider_positions.h"
#include "editing/tips.h"
#include "editing/title.h"
#include "editing/undo_step.h"
#include "editing/view_commands.h"
#include "filters/shrink_to_size.h"
#include "formats/document_limits.h"
#include "formats/file_kind.h"
#include "formats/icon_family.h"
#include "formats/icon_reader.h"
#include "formats/volf_reader.h"
#include "formats/volf_store.h"
#include "graphics/codecs/image_files.h"
#include "graphics/errors.h"

namespace orbelle::editing {

namespace fs = std::filesystem;

namespace {

bool IsOfKind(const fs::path& path, formats::FileKind kind) {
    try {
        return formats::KindOfFile(path) == kind;
    } catch (const std::exception&) {
        return false;
    }
}

void ResetView(Editor& editor) {
    editor.View.ViewActive = true;
    editor.Zoom = {};
    StartZoomIn(editor);
}

void ClearStack(Editor& editor) {
    static_cast<document::Family&>(editor.Document) = {};
    editor.History.ClearHistory();
    editor.Selection.Clear();
    editor.PolygonPoints.clear();
    editor.Overlays = {};
}

// A page that is larger than the sliders go keeps that size as their end.
void ShowPageSize(Editor& editor) {
    const auto show = [](Slider& slider, int side) {
        slider.Value = side;
        slider.Maximum = std::max(side, document::kMaxPageSide);
    };
    show(editor.Sliders.PageWidth, editor.Page().Width);
    show(editor.Sliders.PageHeight, editor.Page().Height);
}

// The state before anything is done with a page of this size, which has no layer.
void ResetDocument(Editor& editor, int pageWidth, int pageHeight) {
    ClearStack(editor);
    editor.Document.Path.clear();
    editor.Document.Source.clear();
    ShowTitle(editor);
    editor.Document.Stamp = {};
    editor.Page().Width = pageWidth;
    editor.Page().Height = pageHeight;
    ResetView(editor);
    ShowPageSize(editor);
    editor.Sliders.Opacity.Value = 0;
    editor.Sliders.Scale.Value = editor.Sliders.Scale.Neutral;
    SetAdjustSlidersNeutral(editor);
    editor.Document.Modified = false;
    editor.DocumentExists = true;
    NoteStack(editor.Changed);
    editor.Changed.Tip = {tips::NewOrOpened};
}

// The document takes the place of the present one.
void ShowDocument(Editor& editor, document::Document&& document) {
    ClearStack(editor);
    editor.Document = std::move(document);
    editor.DocumentExists = true;
    ShowTitle(editor);
    ResetView(editor);
    ShowPageSize(editor);
    ShowSelectedLayer(editor);
    NoteStack(editor.Changed);
}

void OpenDocument(Editor& editor, const fs::path& path) {
    // Of the file before it is read: what is written meanwhile must show.
    const graphics::FileStamp stamp = graphics::StampOf(path);
    formats::LoadedDocument read = formats::LoadDocument(path);
    const bool isWhole = read.Damage.empty();
    // Saving what is left must not replace the damaged file, from which more may be rescued.
    if (isWhole) {
        read.Document.Path = path;
        read.Document.Stamp = stamp;
    }
    document::Page& page = read.Document.Master;
    page.SelectedLayer = page.LayerCount() - 1;
    read.Document.Modified = !isWhole;
    ShowDocument(editor, std::move(read.Document));
    if (isWhole)
        editor.Changed.Tip = {tips::NewOrOpened};
    else
        editor.Changed.Message = read.Damage;
}

void AddPictureLayer(Editor& editor, const graphics::Bitmap& picture) {
    document::IconLayer& layer =
        document::OpenLayerSlot(editor.Page(), document::SlotCopySize::Image);
    document::MakeImageLayer(editor.Page(), layer, picture);
    ShowSelectedLayer(editor);
    editor.Selection.Clear();
    NoteStack(editor.Changed);
    editor.Changed.Tip = {tips::Imported, true};
}

struct ReadResult {
    graphics::Bitmap Picture;
    std::optional<formats::Hotspot> Hotspot = {};
};

// The picture that the file holds, of at most so many pixels.
ReadResult ReadPicture(const fs::path& path, formats::FileKind kind, const ReadChoices& choices,
                       std::int64_t maxPixels) {
    if (kind == formats::FileKind::Picture)
        return {graphics::LoadImageFromFile(path, {maxPixels}, choices.SvgSide)};
    const std::vector<formats::IconEntryImage> images = formats::ReadIconFile(path);
    const int iconImage = choices.IconImage;
    if (iconImage < 0 || iconImage >= static_cast<int>(images.size()))
        throw Error("there is no image " + std::to_string(iconImage) + "; the icon has " +
                    std::to_string(images.size()));
    const formats::IconEntryImage& image = images[static_cast<std::size_t>(iconImage)];
    if (image.IsBad())
        throw graphics::FileError(path,
                                  "image " + std::to_string(iconImage) + ": " + image.Problem);
    return {image.Image, image.Hotspot};
}

// What a pointer is opened with is what it is written with.
void TakeHotspot(Editor& editor, const std::optional<formats::Hotspot>& hotspot) {
    if (hotspot)
        editor.ExportSettings.PointerHotspot = *hotspot;
}

void OpenPicture(Editor& editor, const ReadResult& read, const fs::path& source) {
    OpenPicture(editor, read.Picture, source);
    TakeHotspot(editor, read.Hotspot);
}

// What an import may add. One that makes the page counts twice, and two of the largest fit.
std::int64_t RoomForImport(const Editor& editor) {
    if (!editor.DocumentExists)
        return graphics::kMaxBitmapPixels;
    return std::clamp<std::int64_t>(
        formats::kMaxDocumentPixels - formats::PixelsOf(editor.Document), 0,
        graphics::kMaxBitmapPixels);
}

}  // namespace

bool IsDocumentFile(const fs::path& path) {
    return IsOfKind(path, formats::FileKind::Document);
}

bool IsIconFile(const fs::path& path) {
    return IsOfKind(path, formats::FileKind::Icon);
}

bool IsSvgFile(const fs::path& path) {
    try {
        return formats::KindOfFile(path) == formats::FileKind::Picture &&
               graphics::IsSvg(graphics::FileSource(path));
    } catch (const std::exception&) {
        return false;
    }
}

graphics::Bitmap ReadPictureToImport(const Editor& editor, const fs::path& path,
                                     const ReadChoices& choices) {
    return ReadPicture(path, formats::KindOfFile(path), choices, RoomForImport(editor)).Picture;
}

std::vector<formats::IconEntryImage> ReadIconImages(const fs::path& path) {
    std::vector<formats::IconEntryImage> images = formats::ReadIconFile(path);
    const std::string problem = images[0].Problem;
    std::erase_if(images, [](const formats::IconEntryImage& image) { return image.IsBad(); });
    if (images.empty())
        throw graphics::FileError(path, "no image of the icon can be read: " + problem);
    return images;
}

void NewDocument(Editor& editor, int pageWidth, int pageHeight) {
    const auto allowed = [](int side) { return side >= 1 && side <= document::kMaxPageSide; };
    if (!allowed(pageWidth) || !allowed(pageHeight))
        throw Error(kPageSizeMessage);
    ResetDocument(editor, pageWidth, pageHeight);
    InsertEmptyLayer(editor, static_cast<float>(pageWidth), static_cast<float>(pageHeight));
}

void OpenFile(Editor& editor, const fs::path& path, const ReadChoices& choices) {
    const formats::FileKind kind = formats::KindOfFile(path);
    if (kind == formats::FileKind::Document)
        OpenDocument(editor, path);
    else
        OpenPicture(editor, ReadPicture(path, kind, choices, graphics::kMaxBitmapPixels), path);
}

void OpenIconFamily(Editor& editor, const fs::path& path) {
    if (formats::KindOfFile(path) != formats::FileKind::Icon)
        return OpenFile(editor, path);
    formats::IconFamily family = formats::LoadIconFamily(path);
    ShowDocument(editor, std::move(family.Document));
    TakeHotspot(editor, family.Hotspot);
    editor.Changed.Tip = {tips::NewOrOpened};
    if (!family.LeftOut.empty())
        editor.Changed.Message = "left out: " + family.LeftOut;
}

void ImportFile(Editor& editor, const fs::path& path, const ReadChoices& choices) {
    const formats::FileKind kind = formats::KindOfFile(path);
    if (kind == formats::FileKind::Document)
        return OpenDocument(editor, path);
    const ReadResult read = ReadPicture(path, kind, choices, RoomForImport(editor));
    if (editor.DocumentExists)
        ImportPictures(editor, {read.Picture}, path, choices.FitsPage);
    else
        OpenPicture(editor, read, path);
}

void OpenIconImage(Editor& editor, const formats::IconEntryImage& image, const fs::path& source) {
    OpenPicture(editor, ReadResult{image.Image, image.Hotspot}, source);
}

void OpenPicture(Editor& editor, const graphics::Bitmap& picture, const fs::path& source) {
    ResetDocument(editor, picture.Width(), picture.Height());
    editor.Document.Source = source;
    AddPictureLayer(editor, picture);
}

void ImportPicture(Editor& editor, const graphics::Bitmap& picture, const fs::path& source) {
    ImportPictures(editor, {picture}, source);
}

void ImportPictures(Editor& editor, std::vector<graphics::Bitmap> pictures, const fs::path& source,
                    bool fitsPage) {
    if (!editor.DocumentExists) {
        const auto largest =
            std::ranges::max_element(pictures, {}, [](const graphics::Bitmap& picture) {
                return std::int64_t{picture.Width()} * picture.Height();
            });
        OpenPicture(editor, *largest, source);
        pictures.erase(largest);
    }
    if (pictures.empty())
        return;
    BeginUndoStep(editor, steps::Import);
    const document::Page& page = editor.Page();
    for (const graphics::Bitmap& picture : pictures)
        AddPictureLayer(
            editor, fitsPage ? filters::ShrinkIntoBox(picture, page.Width, page.Height) : picture);
}

void RestoreDocument(Editor& editor, const document::Document& document) {
    document::Document restored = document;
    restored.Modified = true;
    if (!restored.Master.HasSelection() && !restored.Master.Layers.empty())
        restored.Master.SelectedLayer = restored.Master.LayerCount() - 1;
    ShowDocument(editor, std::move(restored));
}

void SaveTo(Editor& editor, const fs::path& path) {
    fs::path saved = path;
    std::string title = TitleOf(path, editor.Document.EditedSize);
    formats::SaveDocument(path, editor.Document);
    // Nothing may fail any more: the old file is gone.
    editor.Document.Path = std::move(saved);
    editor.Document.Stamp = graphics::StampOf(path);
    editor.Document.Modified = false;
    editor.Title = std::move(title);
    editor.Changed.Title = true;
}

}  // namespace orbelle::editing
