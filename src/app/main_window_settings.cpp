// What the main window remembers between two runs.
#include "app/main_window.h"

#include <algorithm>

#include "app/bottom_panel.h"
#include "app/right_panel.h"
#include "app/settings.h"
#include "editing/color_wells.h"
#include "editing/tool_palette.h"

namespace orbelle::app {
namespace {

constexpr int kMaxBrush = 100;

}  // namespace

void MainWindow::RestoreSettings() {
    RestoreMainWindow(*this);
    const Settings settings;
    const auto number = [&](const char* name) { return settings.value(name).toInt(); };
    bottomPanel_->SetOpen(number("isQuick") != 0);
    for (const RightPanel::Header& header : rightPanel_->Headers())
        rightPanel_->SetOpen(header, number(header.Name) != 0);
    // What is missing reads as 0, which the sliders do not have.
    const auto brush = [&](const char* name) { return std::clamp(number(name), 1, kMaxBrush); };
    editing::ChangeBrushOpacity(editor_, brush("CtlScroll22"));
    editing::ChangeBrushSize(editor_, brush("CtlScroll23"));
    SetTipsEnabled(number("TipsControl") == 1);
    for (int i = 0; i < 2; ++i)
        SetWellColor(editor_, i, ReadColor(settings, QString("ForeColor%1").arg(i)));
}

void MainWindow::StoreSettings() const {
    StoreMainWindow(*this);
    Settings settings;
    const auto flag = [](bool open) { return open ? -1 : 0; };
    settings.setValue("isQuick", flag(!bottomPanel_->CtlTitle4().IsClosed()));
    settings.setValue("TipsControl", TipsEnabled() ? 1 : 0);
    for (const RightPanel::Header& header : rightPanel_->Headers())
        settings.setValue(header.Name, flag(!header.Title->IsClosed()));
    settings.setValue("CtlScroll22", editor_.Controls.BrushOpacity.Value);
    settings.setValue("CtlScroll23", editor_.Controls.BrushSize.Value);
    for (std::size_t i = 0; i < 2; ++i)
        WriteColor(settings, QString("ForeColor%1").arg(i), editor_.Colors[i]);
}

}  // namespace orbelle::app
