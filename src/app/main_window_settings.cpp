// What the main window remembers between two runs.
#include "app/main_window.h"

#include "app/bottom_panel.h"
#include "app/right_panel.h"
#include "app/scene_view.h"
#include "app/settings.h"
#include "app/sizes_panel.h"
#include "editing/color_wells.h"
#include "editing/tool_palette.h"
#include "widgets/panel_header.h"

namespace orbelle::app {
namespace {

constexpr char kBrushOpacity[] = "CtlScroll22";
constexpr char kBrushSize[] = "CtlScroll23";
constexpr char kColor[] = "ForeColor%1";
constexpr char kTips[] = "TipsControl";
constexpr char kBottomPanel[] = "isQuick";
constexpr char kPixelGridOff[] = "PixelGridOff";  // so that it is on where nothing is said
constexpr char kSizesClosed[] = "SizesClosed";
constexpr char kSizesGround[] = "SizesGround";
constexpr char kSizesDoubled[] = "SizesDoubled";
constexpr char kSizesCheck[] = "SizesCheck";
constexpr int kOpen = -1;

// What a first start finds: once, when nothing is stored at all.
void StoreStartingSet() {
    constexpr int kNewSide = 256;
    Settings settings;
    if (!settings.isEmpty())
        return;
    settings.setValue(kTips, 1);
    for (const char* panel : {"CtlTitle1", "CtlTitle2", "CtlTitle6", kBottomPanel})
        settings.setValue(panel, kOpen);
    settings.setValue(kNewWidth, kNewSide);
    settings.setValue(kNewHeight, kNewSide);
    const editing::Sliders sliders;
    settings.setValue(kBrushOpacity, sliders.BrushOpacity.Value);
    settings.setValue(kBrushSize, sliders.BrushSize.Value);
    const editing::ToolSettings tools;
    for (std::size_t i = 0; i < tools.Colors.size(); ++i)
        WriteColor(settings, QString(kColor).arg(i), tools.Colors[i]);
}

}  // namespace

void MainWindow::RestoreSettings() {
    StoreStartingSet();
    RestoreMainWindow(*this);
    recent_.Restore();
    const Settings settings;
    const auto number = [&](const char* name) { return settings.value(name).toInt(); };
    bottomPanel_->SetOpen(number(kBottomPanel) != 0);
    for (const RightPanel::Header& header : rightPanel_->Headers())
        rightPanel_->SetOpen(header, number(header.StoredAs) != 0);
    sizesPanel_->ShowCheck(number(kSizesCheck) != 0);
    sizesPanel_->SetOpen(number(kSizesClosed) == 0);
    sizesPanel_->SetGround(number(kSizesGround));
    sizesPanel_->SetDoubled(number(kSizesDoubled) != 0);
    SetTipsEnabled(number(kTips) == 1);
    ShowPixelGrid(number(kPixelGridOff) == 0);
    Run([&](editing::Editor& editor) {
        // What is missing reads as 0, which the sliders do not have.
        ChangeBrushOpacity(editor, number(kBrushOpacity));
        ChangeBrushSize(editor, number(kBrushSize));
        for (int i = 0; i < 2; ++i)
            SetWellColor(editor, i, ReadColor(settings, QString(kColor).arg(i)));
    });
}

void MainWindow::StoreSettings() const {
    StoreMainWindow(*this);
    Settings settings;
    const auto flag = [](bool open) { return open ? kOpen : 0; };
    settings.setValue(kBottomPanel, flag(!bottomPanel_->Header().IsClosed()));
    settings.setValue(kSizesClosed, sizesPanel_->Header().IsClosed() ? 1 : 0);
    settings.setValue(kSizesGround, sizesPanel_->Ground());
    settings.setValue(kSizesDoubled, sizesPanel_->IsDoubled() ? 1 : 0);
    settings.setValue(kSizesCheck, sizesPanel_->IsCheckShown() ? 1 : 0);
    settings.setValue(kTips, TipsEnabled() ? 1 : 0);
    settings.setValue(kPixelGridOff, scene_->IsPixelGridShown() ? 0 : 1);
    for (const RightPanel::Header& header : rightPanel_->Headers())
        settings.setValue(header.StoredAs, flag(header.IsOpen));
    settings.setValue(kBrushOpacity, editor_.Sliders.BrushOpacity.Value);
    settings.setValue(kBrushSize, editor_.Sliders.BrushSize.Value);
    for (std::size_t i = 0; i < 2; ++i)
        WriteColor(settings, QString(kColor).arg(i), editor_.Tools.Colors[i]);
}

}  // namespace orbelle::app
