#include "app/chrome.h"

#include <QApplication>
#include <QPalette>

namespace orbelle::app {
namespace {

constexpr QColor kPanel(245, 246, 247);
constexpr QColor kText(64, 64, 64);
constexpr QColor kPaleText(168, 172, 176);
constexpr QColor kAccent(58, 150, 255);

constexpr char kDetails[] =
    "QMenuBar { background: #f5f6f7 }"
    "QMenuBar::item { padding: 4px 10px; background: transparent }"
    "QMenuBar::item:selected { background: #dcebfb; border-radius: 3px }"
    "QMenu { background: #fcfcfd; border: 1px solid #c8ccd0; padding: 4px 0 }"
    "QMenu::item { padding: 5px 28px 5px 28px }"
    "QMenu::item:selected { background: #dcebfb; color: #202020 }"
    "QMenu::item:disabled { color: #a8acb0; background: transparent }"
    "QMenu::separator { height: 1px; background: #e2e4e6; margin: 4px 8px }"
    "QStatusBar { border-top: 1px solid #dcdcdc }"
    "QStatusBar::item { border: none }"
    "QToolTip { background: #fffdf0; color: #303030; border: 1px solid #c8be96; padding: 2px }"
    "QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0 }"
    "#caption { color: #70757c }";

}  // namespace

void ApplyChrome() {
    QApplication::setStyle("Fusion");
    QPalette palette(kPanel);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, kText);
        palette.setColor(QPalette::Disabled, role, kPaleText);
    }
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, kAccent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, kPaleText);
    QApplication::setPalette(palette);
    qApp->setStyleSheet(kDetails);
}

}  // namespace orbelle::app
