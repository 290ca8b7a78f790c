#include "app/chrome.h"

#include <QApplication>
#include <QPalette>

#include "widgets/chrome.h"

namespace orbelle::app {
namespace {

// The words after @ are colours.
constexpr char kDetails[] =
    "QMenuBar { background: @chrome }"
    "QMenuBar::item { padding: 4px 10px; background: transparent }"
    "QMenuBar::item:selected { background: #dcebfb; border-radius: 3px }"
    "QMenu { background: #fcfcfd; border: 1px solid #c8ccd0; padding: 4px 0 }"
    "QMenu::item { padding: 5px 28px 5px 28px }"
    "QMenu::item:selected { background: #dcebfb; color: #202020 }"
    "QMenu::item:disabled { color: @pale; background: transparent }"
    "QMenu::separator { height: 1px; background: #e2e4e6; margin: 4px 8px }"
    "QStatusBar { border-top: 1px solid @hairline }"
    "QStatusBar::item { border: none }"
    "QToolTip { background: @tip; color: #303030; border: 1px solid @rim; padding: 2px }"
    "QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0 }"
    "#caption { color: #70757c }";

QString StyleSheet() {
    QString sheet = kDetails;
    for (const auto& [word, color] : {std::pair("@chrome", widgets::kChromeColor),
                                      {"@pale", widgets::kPaleTextColor},
                                      {"@hairline", widgets::kHairlineColor},
                                      {"@tip", widgets::kTipColor},
                                      {"@rim", widgets::kTipEdgeColor}})
        sheet.replace(word, color.name());
    return sheet;
}

}  // namespace

void ApplyChrome() {
    QApplication::setStyle("Fusion");
    QPalette palette(widgets::kChromeColor);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, widgets::kTextColor);
        palette.setColor(QPalette::Disabled, role, widgets::kPaleTextColor);
    }
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, widgets::kAccentColor);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, widgets::kPaleTextColor);
    QApplication::setPalette(palette);
    qApp->setStyleSheet(StyleSheet());
}

}  // namespace orbelle::app
