#include "window_states.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QWidget>

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

TEST(WindowStatesTest, NoWordIsCutAndNothingOverlaps) {
    int states = 0;
    ForEachWindowState(ORBELLE_SAMPLES, [&](const QString& name, QWidget& shown) {
        ++states;
        for (const QWidget* widget : shown.findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->window() != &shown)
                continue;
            EXPECT_TRUE(HasRoom(*widget)) << name.toStdString() << ": " << Describe(*widget);
            EXPECT_FALSE(IsCutAtTheSide(*widget))
                << name.toStdString() << ": " << Describe(*widget);
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
