// What the main window remembers between two runs.
#include "app/main_window.h"

#include "app/bottom_panel.h"
#include "app/right_panel.h"
#include "app/settings.h"
#include "editing/color_wells.h"
#include "editing/tool_palette.h"

namespace orbelle::app {
namespace {

constexpr char kBrushOpacity[] = "CtlScroll22";
constexpr char kBrushSize[] = "CtlScroll23";
constexpr char kColor[] = "ForeColor%1";

}  // namespace

void MainWindow::RestoreSettings() {
    RestoreMainWindow(*this);
    const Settings settings;
    const auto number = [&](const char* name) { return settings.value(name).toInt(); };
    bottomPanel_->SetOpen(number("isQuick") != 0);
    for (const RightPanel::Header& header : rightPanel_->Headers())
        rightPanel_->SetOpen(header, number(header.StoredAs) != 0);
    SetTipsEnabled(number("TipsControl") == 1);
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
    const auto flag = [](bool open) { return open ? -1 : 0; };
    settings.setValue("isQuick", flag(!bottomPanel_->Header().IsClosed()));
    settings.setValue("TipsControl", TipsEnabled() ? 1 : 0);
    for (const RightPanel::Header& header : rightPanel_->Headers())
        settings.setValue(header.StoredAs, flag(!header.Title->IsClosed()));
    settings.setValue(kBrushOpacity, editor_.Sliders.BrushOpacity.Value);
    settings.setValue(kBrushSize, editor_.Sliders.BrushSize.Value);
    for (std::size_t i = 0; i < 2; ++i)
        WriteColor(settings, QString(kColor).arg(i), editor_.Tools.Colors[i]);
}

}  // namespace orbelle::app
