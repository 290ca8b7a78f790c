// All that can be done is done by keys as well.
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QButtonGroup>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <algorithm>

#include "app/looks.h"
#include "editing/view_commands.h"
#include "filters/outline_contrast.h"
#include "main_window_fixture.h"
#include "widgets/layer_list.h"
#include "widgets/number_slider.h"
#include "widgets/panel_header.h"
#include "widgets/size_strip.h"
#include "window_states.h"

namespace orbelle::app {
namespace {

std::string NameOf(const QWidget& control) {
    return (QString(control.metaObject()->className()) + ' ' + control.objectName() + ' ' +
            control.accessibleName())
        .toStdString();
}

// Something that is used, and not only looked at.
bool IsControl(const QWidget& widget) {
    return qobject_cast<const QAbstractButton*>(&widget) ||
           qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QAbstractSlider*>(&widget) ||
           qobject_cast<const QAbstractItemView*>(&widget) ||
           qobject_cast<const widgets::LayerList*>(&widget) ||
           qobject_cast<const widgets::SizeStrip*>(&widget) ||
           qobject_cast<const ButtonBar*>(&widget) || widget.focusPolicy() & Qt::TabFocus;
}

// The pixels that a focus changes are seen against what was there.
bool IsSeen(const QImage& before, const QImage& after) {
    constexpr int kLeast = 16;
    constexpr double kContrast = 3;
    int changed = 0;
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x)
            if (before.pixel(x, y) != after.pixel(x, y) &&
                filters::ContrastRatio(before.pixel(x, y), after.pixel(x, y)) >= kContrast)
                ++changed;
    return changed >= kLeast;
}

// Scroll bars of lists follow what has the keys in them; of buttons that are one choice, the chosen
// one takes the keys.
bool GoesWithAnother(const QWidget& widget) {
    if (qobject_cast<const QAbstractScrollArea*>(widget.parentWidget()->parentWidget()) &&
        qobject_cast<const QScrollBar*>(&widget))
        return true;
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    return button && button->group() && !button->isChecked();
}

class KeyboardTest : public MainWindowTest {
protected:
    KeyboardTest() { ApplyLooks(Looks::Light); }

    static void Activate(QWidget& shown) {
        shown.activateWindow();
        EXPECT_TRUE(WaitUntil([&] { return shown.isActiveWindow(); }, 5));
    }
    // All that Tab comes to from what has the keys.
    static std::vector<QWidget*> Walk() {
        std::vector<QWidget*> reached;
        for (QWidget* focus = QApplication::focusWidget();
             focus && std::ranges::find(reached, focus) == reached.end();
             focus = QApplication::focusWidget()) {
            reached.push_back(focus);
            Strike(*focus, Qt::Key_Tab);
        }
        return reached;
    }
    static void ExpectAllReached(const std::string& state, QWidget& shown) {
        const std::vector<QWidget*> reached = Walk();
        for (QWidget* widget : shown.findChildren<QWidget*>()) {
            if (!widget->isVisible() || !widget->isEnabled() || widget->window() != &shown ||
                !IsControl(*widget) || GoesWithAnother(*widget))
                continue;
            QWidget* keys = widget;
            while (keys->focusProxy())
                keys = keys->focusProxy();
            const bool isWithin = std::ranges::any_of(
                reached, [&](QWidget* other) { return other->isAncestorOf(keys); });
            EXPECT_TRUE(isWithin || std::ranges::find(reached, keys) != reached.end())
                << state << ": " << NameOf(*widget);
        }
        for (QWidget* widget : reached) {
            const QRect place =
                QRect(widget->mapTo(&shown, QPoint()), widget->size()).adjusted(-3, -3, 3, 3);
            // The picture has the keys where no control shows that it has them.
            if (qobject_cast<SceneView*>(widget))
                continue;
            if (QWidget* focus = QApplication::focusWidget())
                focus->clearFocus();
            const QImage before = shown.grab(place).toImage();
            widget->setFocus(Qt::TabFocusReason);
            EXPECT_TRUE(IsSeen(before, shown.grab(place).toImage()))
                << state << ", the focus: " << NameOf(*widget);
        }
    }
};

TEST_F(KeyboardTest, TabComesToEveryControlAndIsSeenThere) {
    window.OpenPath(QString(ORBELLE_SAMPLES) + "/envelope.volf");
    for (const char* name : {"SizePanel", "FilterPanel"})
        Part<widgets::PanelHeader>(name).click();
    window.Run([](editing::Editor& editor) { ZoomAboutMiddle(editor, 20); });
    WaitUntil([&] { return window.IsAtRest(); });
    Activate(window);
    Scene().setFocus();
    ExpectAllReached("window", window);
    ForEachWindowState(ORBELLE_SAMPLES, [&](const QString& name, QWidget& shown) {
        if ((!name.startsWith("dialog") && !name.startsWith("message")) || !shown.focusWidget())
            return;
        Activate(shown);
        ExpectAllReached(name.toStdString(), shown);
    });
}

TEST_F(KeyboardTest, ThePopUpsOfTheToolsOpenAndCloseByKeys) {
    NewPage(32, 32);
    Activate(window);
    auto& tools = Part<ButtonBar>("ToolBox");
    auto& fills = Part<ButtonBar>("FillBar");
    tools.setFocus(Qt::TabFocusReason);
    for (int i = 0; i < 3; ++i)  // from Move over Selection and Pencil to Line
        Strike(tools, Qt::Key_Down);
    Strike(tools, Qt::Key_Space);
    EXPECT_EQ(window.Editor().Tools.InUse, editing::Tool::Line);
    EXPECT_EQ(QApplication::focusWidget(), &fills);
    Strike(fills, Qt::Key_Down);
    Strike(fills, Qt::Key_Return);
    EXPECT_EQ(window.Editor().Tools.FillKind, editing::FillKind::HorizontalGradient);

    tools.setFocus(Qt::TabFocusReason);
    Strike(tools, Qt::Key_Space);
    ASSERT_EQ(QApplication::focusWidget(), &fills);
    Strike(fills, Qt::Key_Escape);
    EXPECT_FALSE(fills.isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &tools);
}

TEST_F(KeyboardTest, EveryEntryOfAMenuHasALetterOrAKey) {
    for (const QMenu* menu : window.findChildren<QMenu*>()) {
        QStringList letters;
        for (const QAction* action : menu->actions()) {
            if (action->isSeparator())
                continue;
            const int mark = action->text().indexOf('&');
            if (mark >= 0)
                letters << action->text().mid(mark + 1, 1).toLower();
            EXPECT_TRUE(mark >= 0 || !action->shortcut().isEmpty()) << action->text().toStdString();
        }
        EXPECT_EQ(letters.removeDuplicates(), 0) << menu->title().toStdString();
    }
}

}  // namespace
}  // namespace orbelle::app
