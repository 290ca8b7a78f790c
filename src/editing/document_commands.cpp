#include "editing/document_commands.h"

#include <algorithm>
#include <cctype>
#include <string>

#include "document/layer_slots.h"
#include "editing/command_frame.h"
#include "editing/layer_commands.h"
#include "editing/tips.h"
#include "editing/tools/polygon.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "formats/icon_reader.h"
#include "formats/volf_store.h"
#include "graphics/codecs/image_files.h"
#include "graphics/errors.h"

namespace orbelle::editing {

namespace fs = std::filesystem;

namespace {

constexpr char kPictureFilters[] =
    "|ICO Files (*.ICO)|*.ico|PNG Files (*.PNG)|*.png|GIF Files (*.GIF)|*.gif"
    "|JPEG Files (*.JPG;*.JPEG)|*.jpg;*.jpeg|BMP Files (*.BMP)|*.bmp";
constexpr char kOpenFilter[] =
    "All Supported Formats|*.volf;*.ico;*.png;*.gif;*.jpg;*.jpeg;*.bmp"
    "|Varnel Orbelle Files (*.VOLF)|*.volf";
constexpr char kImportFilter[] = "All Supported Formats|*.ico;*.png;*.gif;*.jpg;*.jpeg;*.bmp";
constexpr char kSaveFilter[] = "Varnel Orbelle File(*.VOLF)|*.volf";

void SetTitle(Editor& editor, const std::string& title) {
    editor.Title = title;
    editor.Host.TitleChanged();
}

void ShowSavedTitle(Editor& editor) {
    SetTitle(editor, editor.Document.DocumentPath.filename().string() + " - " + kProductName);
}

// In lower case, without the point; a name without one is its own extension.
std::string FileExtension(const fs::path& path) {
    std::string name = path.filename().string();
    name = name.substr(name.rfind('.') + 1);
    std::ranges::transform(name, name.begin(), [](unsigned char c) { return std::tolower(c); });
    return name;
}

void ResetView(Editor& editor) {
    editor.View.ViewActive = true;
    editor.View.Zoom = 0;
    editor.View.HorizontalScroll = {};
    editor.View.VerticalScroll = {};
    editor.SavedZoom = {};
    editor.MaxZoom = 20;
}

void ClearStack(Editor& editor) {
    editor.Document.Layers.clear();
    editor.Document.SelectedLayer = document::kNoLayer;
    editor.History.ClearHistory();
    Controls& controls = editor.Controls;
    controls.MainBar[main_buttons::Undo].Enabled = false;
    controls.MainBar[main_buttons::Redo].Enabled = false;
    controls.m_Undo.Enabled = false;
    controls.m_Redo.Enabled = false;
    controls.m_Blur.Enabled = false;
    controls.m_Sharpen.Enabled = false;
    editor.Selection.Clear();
    DropPolygon(editor);
    editor.Overlays = {};
}

void ShowPageSize(Editor& editor) {
    Controls& controls = editor.Controls;
    controls.PageSliderLock = true;
    controls.PageWidth = {editor.Document.PageWidth, true};
    controls.PageHeight = {editor.Document.PageHeight, true};
    controls.PageSliderLock = false;
}

void EnableDocumentCommands(Editor& editor) {
    Controls& controls = editor.Controls;
    controls.m_Import.Enabled = true;
    controls.m_Save.Enabled = true;
    controls.m_Export.Enabled = true;
    controls.MainBar[main_buttons::ZoomIn].Enabled = true;
    controls.MainBar[main_buttons::ZoomOut].Enabled = true;
    controls.LayerBar[layer_buttons::Add].Enabled = true;
    for (Button& button : controls.ToolBox)
        button.Enabled = true;
}

// The controls after a picture or a document has come in and its top or new layer is selected.
void ShowIncomingLayer(Editor& editor) {
    ShowLayerSliders(editor);
    ShowLayerAdjust(editor, editor.Document.SelectedLayer);
    EnableLayerSliders(editor);
    EnableDocumentCommands(editor);
    Controls& controls = editor.Controls;
    controls.m_Blur.Enabled = true;
    controls.m_Sharpen.Enabled = true;
    controls.MainBar[main_buttons::Save].Enabled = true;
    controls.LayerBar[layer_buttons::Remove].Enabled = true;
    controls.LayerBar[layer_buttons::Hide] = {true, true};
    const bool hasBelow = editor.Document.SelectedLayer >= 1;
    controls.LayerBar[layer_buttons::SetOrder].Enabled = hasBelow;
    controls.LayerBar[layer_buttons::MergeDown].Enabled = hasBelow;
}

void ShowScrollBar(document::ScrollBar& bar, int page, int scene) {
    bar = {};
    if (page <= scene)
        return;
    bar.Max = page - scene;
    bar.Value = graphics::RoundToEven(bar.Max / 2.0);
    bar.LargeChange = bar.Max;
    bar.Visible = true;
}

// Reads DocumentPath. A file that is no document leaves an empty stack; a damaged one the layers
// before the damage.
void OpenDocument(Editor& editor) {
    RunCommand(editor, [&] {
        ClearStack(editor);
        document::Document& document = editor.Document;
        std::string failure;
        try {
            formats::LoadDocument(document.DocumentPath, document);
        } catch (const std::exception& error) {
            failure = error.what();
        }
        if (failure.empty() || document.LayerCount() > 0)
            editor.DocumentExists = true;
        if (editor.DocumentExists)
            ResetView(editor);
        if (document.LayerCount() >= 1) {
            document.SelectedLayer = document.LayerCount() - 1;
            ShowPageSize(editor);
            ShowIncomingLayer(editor);
            ShowScrollBar(editor.View.HorizontalScroll, document.PageWidth, editor.View.SceneWidth);
            ShowScrollBar(editor.View.VerticalScroll, document.PageHeight, editor.View.SceneHeight);
        }
        editor.Host.LayerPanelChanged();
        if (editor.DocumentExists) {
            StartZoomIn(editor);
            Compose(editor);
        }
        if (!failure.empty())
            editor.Host.ShowMessage(failure);
        else
            editor.Host.ShowTips(tips::NewOrOpened);
    });
}

struct IncomingPicture {
    graphics::Bitmap Image;
    std::string Failure;  // why Image is empty
};

// The image of an icon that the user chooses; no value: cancelled. A file that can't be read offers
// nothing to choose from.
std::optional<IncomingPicture> ReadIconPicture(Editor& editor, const fs::path& path) {
    std::vector<formats::IconEntryImage> offered;
    std::string failure = path.string() + ": no image of the icon was chosen";
    try {
        offered = formats::OfferedEntries(formats::ReadIconFile(path));
        if (offered.empty())
            failure = path.string() + ": the icon has no image of more than 8 bits a pixel";
    } catch (const graphics::FileError& error) {
        failure = error.what();
    }
    const std::optional<int> chosen = editor.Host.ChooseIconEntry(offered);
    if (!chosen)
        return std::nullopt;
    if (*chosen < 0 || *chosen >= static_cast<int>(offered.size()))
        return IncomingPicture{{}, failure};
    return IncomingPicture{offered[static_cast<std::size_t>(*chosen)].Image, {}};
}

std::optional<IncomingPicture> ReadPicture(Editor& editor, const fs::path& path) {
    if (FileExtension(path) == "ico")
        return ReadIconPicture(editor, path);
    try {
        return IncomingPicture{graphics::LoadImageFromFile(path), {}};
    } catch (const graphics::FileError& error) {
        return IncomingPicture{{}, error.what()};
    }
}

enum class PictureBecomes { Layer, Document };

// A picture that can't be read is told, and deliberately makes a layer all the same: an empty one.
// Nothing changes before the user has chosen the image of an icon, for he may cancel.
void ImportPicture(Editor& editor, const fs::path& path, PictureBecomes becomes) {
    RunCommand(editor, [&] {
        const std::optional<IncomingPicture> incoming = ReadPicture(editor, path);
        if (!incoming)
            return;
        const graphics::Bitmap& image = incoming->Image;
        if (becomes == PictureBecomes::Document)
            editor.DocumentExists = false;
        document::Document& document = editor.Document;
        if (editor.DocumentExists) {
            BeginUndoStep(editor);
        } else {
            ResetDocument(editor, image.Width(), image.Height(), false);
            editor.DocumentExists = true;
        }
        document::IconLayer& layer =
            document::OpenLayerSlot(document, document::SlotCopySize::Image);
        document::MakeImageLayer(document, layer, image);
        ShowIncomingLayer(editor);
        editor.Selection.Clear();
        Compose(editor);
        editor.Host.LayerPanelChanged();
        if (!incoming->Failure.empty())
            editor.Host.ShowMessage(incoming->Failure);
        else
            editor.Host.ShowTips(tips::Imported, true);
    });
}

// The file takes the place of the present document.
void OpenFile(Editor& editor, const fs::path& path) {
    if (FileExtension(path) == "volf") {
        editor.Document.Modified = false;
        editor.Document.DocumentPath = path;
        ShowSavedTitle(editor);
        OpenDocument(editor);
    } else {
        ImportPicture(editor, path, PictureBecomes::Document);
    }
}

bool WriteDocument(Editor& editor) {
    ShowSavedTitle(editor);
    editor.Document.Modified = false;
    bool saved = false;
    RunCommand(editor, [&] {
        formats::SaveDocument(editor.Document.DocumentPath, editor.Document);
        saved = true;
    });
    // Work that reached no file still asks to be saved when the document is given up.
    if (!saved)
        editor.Document.Modified = true;
    return saved;
}

bool AskPathAndWrite(Editor& editor) {
    fs::path& path = editor.Document.DocumentPath;
    path = editor.Host.ShowFileDialog(kSaveFilter, false);
    if (path.empty())
        return false;
    std::error_code ignored;
    // Deliberate: a refused name stays the document's path.
    if (fs::exists(path, ignored) &&
        !editor.Host.Confirm("Image already exists, overwrite it?", "Warning"))
        return false;
    return WriteDocument(editor);
}

}  // namespace

void ResetDocument(Editor& editor, int pageWidth, int pageHeight, bool addFirstLayer) {
    Controls& controls = editor.Controls;
    document::Document& document = editor.Document;
    ClearStack(editor);
    SetTitle(editor, std::string(kProductName) + " - Project *");
    ResetView(editor);
    document.DocumentPath.clear();
    document.PageWidth = pageWidth;
    document.PageHeight = pageHeight;
    ShowPageSize(editor);
    controls.Opacity.Value = 0;
    controls.Scale.Value = 50;
    SetAdjustSliders(editor, 0, 50, 40, 50);
    EnableLayerSliders(editor);
    EnableDocumentCommands(editor);
    controls.MainBar[main_buttons::Import].Enabled = true;
    controls.MainBar[main_buttons::Save].Enabled = false;
    if (addFirstLayer)
        InsertEmptyLayer(editor, static_cast<float>(pageWidth), static_cast<float>(pageHeight));
    document.Modified = false;
    Compose(editor);
    editor.Host.LayerPanelChanged();
    editor.Host.ShowTips(tips::NewOrOpened);
    StartZoomIn(editor);
}

void New(Editor& editor) {
    if (!RunSavePrompt(editor))
        return;
    const std::optional<PageSize> size = editor.Host.AskPageSize();
    if (!size)
        return;
    const auto allowed = [](int side) { return side >= 1 && side <= document::kMaxPageSide; };
    if (!allowed(size->Width) || !allowed(size->Height)) {
        editor.Host.ShowMessage(kPageSizeMessage);
        return;
    }
    RunCommand(editor, [&] {
        ResetDocument(editor, size->Width, size->Height, true);
        editor.DocumentExists = true;
    });
}

void Open(Editor& editor) {
    if (!RunSavePrompt(editor))
        return;
    const fs::path path =
        editor.Host.ShowFileDialog(std::string(kOpenFilter) + kPictureFilters, true);
    if (!path.empty())
        OpenFile(editor, path);
}

void Import(Editor& editor) {
    const fs::path path =
        editor.Host.ShowFileDialog(std::string(kImportFilter) + kPictureFilters, true);
    if (!path.empty())
        ImportFile(editor, path);
}

void ImportFile(Editor& editor, const fs::path& path) {
    if (FileExtension(path) != "volf")
        ImportPicture(editor, path, PictureBecomes::Layer);
    else if (RunSavePrompt(editor))
        OpenFile(editor, path);
}

bool Save(Editor& editor) {
    return editor.Document.DocumentPath.empty() ? AskPathAndWrite(editor) : WriteDocument(editor);
}

bool SaveAs(Editor& editor) {
    return AskPathAndWrite(editor);
}

void ShellOpenFile(Editor& editor, std::string_view command) {
    if (!RunSavePrompt(editor))
        return;
    const auto end = command.find_last_not_of(' ');
    const std::size_t length = end == std::string_view::npos ? 0 : end + 1;
    const std::string_view path = length > 2 ? command.substr(1, length - 2) : std::string_view();
    OpenFile(editor, fs::path(path));
}

bool RunSavePrompt(Editor& editor) {
    if (!editor.Document.Modified)
        return true;
    const SavePromptAnswer answer = editor.Host.AskSave();
    if (answer == SavePromptAnswer::Yes)
        Save(editor);
    return answer != SavePromptAnswer::Cancel;
}

}  // namespace orbelle::editing
