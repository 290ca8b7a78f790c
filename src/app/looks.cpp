#include "app/looks.h"

#include <QApplication>
#include <QPalette>

#include "app/desktop_shade.h"
#include "app/settings.h"
#include "widgets/theme.h"
#include "widgets/theme_style.h"

namespace orbelle::app {
namespace {

using widgets::CurrentTheme;
using widgets::Shade;

constexpr char kLooks[] = "Looks";  // 0 where nothing is said

// The words after @ are colours.
constexpr char kDetails[] =
    "QMenuBar { background: @ground }"
    "QMenuBar::item { padding: 4px 10px; background: transparent }"
    "QMenuBar::item:selected { background: @pressed; border-radius: 4px }"
    "QMenu { background: @field; border: 1px solid @line; padding: 4px 0 }"
    "QMenu::item { padding: 5px 28px 5px 28px }"
    "QMenu::item:selected { background: @pressed; color: @text }"
    "QMenu::item:disabled { color: @disabled; background: transparent }"
    "QMenu::separator { height: 1px; background: @hairline; margin: 4px 8px }"
    "QStatusBar { border-top: 1px solid @hairline }"
    "QStatusBar::item { border: none }"
    "QToolTip { background: @field; color: @text; border: 1px solid @line; padding: 4px }"
    "QScrollBar { background: @ground }"
    "QScrollBar:vertical { width: 12px } QScrollBar:horizontal { height: 12px }"
    "QScrollBar::handle { background: @line; border-radius: 3px; margin: 3px }"
    "QScrollBar::handle:hover { background: @note }"
    "QScrollBar::handle:focus { background: @accent }"
    "QScrollBar::handle:disabled { background: @hairline }"
    "QScrollBar::handle:vertical { min-height: 24px }"
    "QScrollBar::handle:horizontal { min-width: 24px }"
    "QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0 }"
    "QScrollBar::add-page, QScrollBar::sub-page { background: transparent }"
    "QComboBox QAbstractItemView { background: @field; color: @text; border: 1px solid @line;"
    " selection-background-color: @pressed; selection-color: @text; outline: none }"
    "QProgressBar { background: @field; border: 1px solid @line; border-radius: 4px;"
    " max-height: 8px }"
    "QProgressBar::chunk { background: @accent; border-radius: 3px }"
    "QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0 }"
    "#caption { color: @note }"
    "#Findings { background: @ground; border: none; border-top: 1px solid @hairline;"
    " padding: 3px 4px 4px 4px; outline: none }"
    "#Findings::item { padding: 0 4px; border-radius: 4px; border: 1px solid transparent }"
    "#Findings::item:hover { background: @hover }"
    "#Findings::item:disabled { background: transparent; color: @note }"
    "#Findings::item:selected { background: transparent; color: @text }"
    "#Findings::item:selected:active { background: @pressed; border-color: @accent }";

QString StyleSheet() {
    QString sheet = kDetails;
    for (const auto& [word, color] : {std::pair("@ground", CurrentTheme().Ground),
                                      {"@field", CurrentTheme().Field},
                                      {"@line", CurrentTheme().Line},
                                      {"@text", CurrentTheme().Text},
                                      {"@note", CurrentTheme().Note},
                                      {"@accent", CurrentTheme().Accent},
                                      {"@hairline", widgets::HairlineColor()},
                                      {"@hover", widgets::HoverColor()},
                                      {"@pressed", widgets::PressedColor()},
                                      {"@disabled", widgets::DisabledColor()}})
        sheet.replace(word, color.name());
    return sheet;
}

QPalette PaletteOfTheme() {
    const widgets::Theme& theme = CurrentTheme();
    QPalette palette(theme.Ground);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, theme.Text);
        palette.setColor(QPalette::Disabled, role, widgets::DisabledColor());
    }
    palette.setColor(QPalette::Base, theme.Field);
    palette.setColor(QPalette::AlternateBase, widgets::BandColor());
    palette.setColor(QPalette::ToolTipBase, theme.Field);
    palette.setColor(QPalette::Highlight, theme.Accent);
    palette.setColor(QPalette::HighlightedText, theme.Field);
    palette.setColor(QPalette::PlaceholderText, theme.Note);
    palette.setColor(QPalette::Link, theme.Accent);
    return palette;
}

Looks& LooksInUse() {
    static Looks looks = Looks::AsDesktop;
    return looks;
}

}  // namespace

Looks CurrentLooks() {
    return LooksInUse();
}

void ApplyLooks(Looks looks) {
    LooksInUse() = looks;
    static const bool isDesktopDark = IsDesktopDark();
    const bool isDark = looks == Looks::Dark || (looks == Looks::AsDesktop && isDesktopDark);
    widgets::SetShade(isDark ? Shade::Dark : Shade::Light);
    if (!dynamic_cast<widgets::ThemeStyle*>(QApplication::style()))
        QApplication::setStyle(new widgets::ThemeStyle);
    QApplication::setPalette(PaletteOfTheme());
    qApp->setStyleSheet(StyleSheet());
}

Looks StoredLooks() {
    switch (Settings().value(kLooks).toInt()) {
        case 1:
            return Looks::Light;
        case 2:
            return Looks::Dark;
        default:
            return Looks::AsDesktop;
    }
}

void ChooseLooks(Looks looks) {
    ApplyLooks(looks);
    Settings().setValue(kLooks, static_cast<int>(looks));
}

}  // namespace orbelle::app
