#include "window_states.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QWidget>
#include <algorithm>

#include "drawn_text.h"

namespace orbelle::app {
namespace {

std::string Describe(const QWidget& widget) {
    QString text = widget.metaObject()->className();
    text += ' ' + widget.objectName();
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        text += " \"" + label->text() + '"';
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        text += " \"" + button->text() + '"';
    return text.toStdString();
}

// Of words that stand in a control of the toolkit.
bool HasRoom(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        const int height = label->wordWrap() ? label->heightForWidth(label->width())
                                             : label->minimumSizeHint().height();
        const int width = label->wordWrap() ? 0 : label->minimumSizeHint().width();
        return label->width() >= width && label->height() >= height;
    }
    if (qobject_cast<const QAbstractButton*>(&widget)) {
        const QSize least = widget.minimumSizeHint();
        return widget.width() >= least.width() && widget.height() >= least.height();
    }
    return true;
}

// What scrolls up and down must not be cut at the side.
bool IsCutAtTheSide(const QWidget& widget) {
    for (const QWidget* parent = widget.parentWidget(); parent; parent = parent->parentWidget()) {
        const auto* scroller = qobject_cast<const QAbstractScrollArea*>(parent->parentWidget());
        if (!scroller || scroller->viewport() != parent ||
            scroller->horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff)
            continue;
        const int left = widget.mapTo(parent, QPoint()).x();
        if (left < 0 || left + widget.width() > parent->width())
            return true;
    }
    return false;
}

// Of parts that a layout has put beside each other.
bool Overlap(const QWidget& first, const QWidget& second) {
    const auto* layout = first.parentWidget()->layout();
    return layout && layout->indexOf(&first) >= 0 && layout->indexOf(&second) >= 0 &&
           first.geometry().intersects(second.geometry());
}

// Words that a control paints by itself, below what stands on it. A recorded painter has no
// direction from right to left.
bool IsCovered(QWidget& widget) {
    if (widget.isRightToLeft())
        return false;
    const std::vector<testing::DrawnText> texts = testing::TextsOf(widget);
    return std::ranges::any_of(widget.children(), [&](const QObject* child) {
        const auto* part = qobject_cast<const QWidget*>(child);
        return part && part->isVisible() &&
               std::ranges::any_of(texts, [&](const testing::DrawnText& text) {
                   return text.Place.toRect().intersects(part->geometry());
               });
    });
}

class WindowStatesTest : public ::testing::TestWithParam<Qt::LayoutDirection> {
protected:
    WindowStatesTest() { QApplication::setLayoutDirection(GetParam()); }
    ~WindowStatesTest() override { QApplication::setLayoutDirection(Qt::LeftToRight); }
};

INSTANTIATE_TEST_SUITE_P(Ways, WindowStatesTest,
                         ::testing::Values(Qt::LeftToRight, Qt::RightToLeft), [](const auto& way) {
                             return way.param == Qt::LeftToRight ? "LeftToRight" : "RightToLeft";
                         });

TEST_P(WindowStatesTest, NoWordIsCutAndNothingOverlaps) {
    int states = 0;
    ForEachWindowState(ORBELLE_SAMPLES, [&](const QString& name, QWidget& shown) {
        ++states;
        for (QWidget* widget : shown.findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->window() != &shown)
                continue;
            EXPECT_TRUE(HasRoom(*widget)) << name.toStdString() << ": " << Describe(*widget);
            EXPECT_FALSE(IsCutAtTheSide(*widget))
                << name.toStdString() << ": " << Describe(*widget);
            EXPECT_FALSE(IsCovered(*widget)) << name.toStdString() << ": " << Describe(*widget);
            for (const QObject* other : widget->parentWidget()->children()) {
                const auto* sibling = qobject_cast<const QWidget*>(other);
                if (sibling && sibling != widget && sibling->isVisible()) {
                    EXPECT_FALSE(Overlap(*widget, *sibling))
                        << name.toStdString() << ": " << Describe(*widget) << " and "
                        << Describe(*sibling);
                }
            }
        }
    });
    EXPECT_GT(states, 40);
}

}  // namespace
}  // namespace orbelle::app
