#include "window_states.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QWidget>
#include <algorithm>
#include <set>

#include "app/language.h"
#include "app/settings.h"
#include "drawn_text.h"
#include "widgets/accessible_parts.h"

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

// Whether something of the widget is seen in the part of its parent.
bool PaintsOn(QWidget& widget, const QRect& place) {
    QImage picture(widget.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    widget.render(&picture, {}, {}, QWidget::DrawChildren);
    const QRect seen = place.translated(-widget.pos()) & picture.rect();
    for (int y = seen.top(); y <= seen.bottom(); ++y)
        for (int x = seen.left(); x <= seen.right(); ++x)
            if (qAlpha(picture.pixel(x, y)) != 0)
                return true;
    return false;
}

// Words that a control paints by itself, below what stands on it. A recorded painter has no
// direction from right to left.
bool IsCovered(QWidget& widget) {
    if (widget.isRightToLeft())
        return false;
    const std::vector<testing::DrawnText> texts = testing::TextsOf(widget);
    return std::ranges::any_of(widget.children(), [&](QObject* child) {
        auto* part = qobject_cast<QWidget*>(child);
        return part && part->isVisible() &&
               std::ranges::any_of(texts, [&](const testing::DrawnText& text) {
                   return PaintsOn(*part, text.Place.toRect());
               });
    });
}

// Lines of text that reach above or below the control that paints them.
bool IsCutInHeight(QWidget& widget) {
    const auto* scroller = qobject_cast<const QAbstractScrollArea*>(widget.parentWidget());
    if (scroller && scroller->viewport() == &widget)
        return false;
    constexpr double kTolerance = 1;  // of rounding
    return std::ranges::any_of(testing::TextsOf(widget), [&](const testing::DrawnText& text) {
        return text.Whole.top() < -kTolerance ||
               text.Whole.bottom() > widget.height() + kTolerance ||
               text.Place.height() < text.Whole.height() - kTolerance;
    });
}

void ExpectRoomForAll(const QString& name, QWidget& shown) {
    for (QWidget* widget : shown.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->window() != &shown)
            continue;
        EXPECT_TRUE(HasRoom(*widget)) << name.toStdString() << ": " << Describe(*widget);
        EXPECT_FALSE(IsCutAtTheSide(*widget)) << name.toStdString() << ": " << Describe(*widget);
        EXPECT_FALSE(IsCutInHeight(*widget)) << name.toStdString() << ": " << Describe(*widget);
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
}

// As if no test had been here before.
class WindowStatesTest : public ::testing::Test {
protected:
    void SetUp() override { Settings().clear(); }
    void TearDown() override { QApplication::setLayoutDirection(Qt::LeftToRight); }
};

class DirectionTest : public WindowStatesTest,
                      public ::testing::WithParamInterface<Qt::LayoutDirection> {};

INSTANTIATE_TEST_SUITE_P(Ways, DirectionTest, ::testing::Values(Qt::LeftToRight, Qt::RightToLeft),
                         [](const auto& way) {
                             return way.param == Qt::LeftToRight ? "LeftToRight" : "RightToLeft";
                         });

TEST_P(DirectionTest, NoWordIsCutAndNothingOverlaps) {
    QApplication::setLayoutDirection(GetParam());
    int states = 0;
    ForEachWindowState(ORBELLE_SAMPLES, [&](const QString& name, QWidget& shown) {
        ++states;
        ExpectRoomForAll(name, shown);
    });
    EXPECT_GT(states, 40);
}

TEST_F(WindowStatesTest, NothingOverlapsWhereWordsGoFromRightToLeft) {
    QApplication::setLayoutDirection(Qt::RightToLeft);
    ForEachWindowState(ORBELLE_SAMPLES, ExpectRoomForAll);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

// Of the desktop, in percent.
class TextSizeTest : public WindowStatesTest, public ::testing::WithParamInterface<int> {
protected:
    TextSizeTest() {
        QFont font = usual_;
        font.setPointSizeF(usual_.pointSizeF() * GetParam() / 100);
        QApplication::setFont(font);
    }
    ~TextSizeTest() override { QApplication::setFont(usual_); }

private:
    const QFont usual_ = QApplication::font();
};

TEST_P(TextSizeTest, NoWordIsCutAndNothingOverlaps) {
    ForEachWindowState(ORBELLE_SAMPLES, ExpectRoomForAll);
}

INSTANTIATE_TEST_SUITE_P(Percent, TextSizeTest, ::testing::Values(80, 150, 200));

// Of our texts; the toolkit's own need not be installed.
bool IsOurs(const char* context) {
    return qstrcmp(context, "Words") == 0 || qstrcmp(context, "Core") == 0;
}

// German, and what it was asked for in vain.
class Listening : public QTranslator {
public:
    Listening() { EXPECT_TRUE(load(":/translations/orbelle_de.qm")); }

    QString translate(const char* context, const char* text, const char* comment,
                      int count) const override {
        QString translation = QTranslator::translate(context, text, comment, count);
        if (translation.isNull() && IsOurs(context))
            Missing.insert(text);
        return translation;
    }

    mutable std::set<std::string> Missing;
};

// The letters of a menu's entries, or of a dialog's controls, each once.
void ExpectMnemonicsDiffer(const QString& name, QWidget& shown) {
    QStringList texts;
    if (const auto* menu = qobject_cast<const QMenu*>(&shown)) {
        for (const QAction* action : menu->actions())
            texts += action->text();
    } else if (const auto* bar = shown.findChild<QMenuBar*>()) {
        for (const QAction* action : bar->actions())
            texts += action->text();
    } else {
        for (const QWidget* widget : shown.findChildren<QWidget*>()) {
            const auto* label = qobject_cast<const QLabel*>(widget);
            const auto* button = qobject_cast<const QAbstractButton*>(widget);
            if (widget->isVisible() && label && label->buddy())
                texts += label->text();
            if (widget->isVisible() && button)
                texts += button->text();
        }
    }
    QStringList letters;
    for (const QString& text : texts)
        if (const QKeySequence key = QKeySequence::mnemonic(text); !key.isEmpty())
            letters += key.toString();
    for (const QString& letter : letters)
        EXPECT_EQ(letters.count(letter), 1) << name.toStdString() << ": " << letter.toStdString();
}

TEST_F(WindowStatesTest, GermanLacksNothingAndHasRoom) {
    const Language german{QLocale("de_DE")};
    Listening translator;
    QCoreApplication::installTranslator(&translator);
    ForEachWindowState(ORBELLE_SAMPLES, [&](const QString& name, QWidget& shown) {
        ExpectRoomForAll(name, shown);
        ExpectMnemonicsDiffer(name, shown);
    });
    EXPECT_THAT(translator.Missing, ::testing::IsEmpty());
}

// A language without Latin letters.
class Foreign : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* source, const char*, int count) const override {
        constexpr char16_t kFirstCyrillic = 0x430;
        QString text = QString(source).replace("%n", QString::number(count));
        for (QChar& letter : text)
            if (const char16_t small = letter.unicode() | 0x20; small >= 'a' && small <= 'z')
                letter = QChar(kFirstCyrillic + (small - 'a'));
        return text;
    }
};

// Whether there are letters that no translator has seen, besides colours, files, sizes, dates, and
// what the states themselves put in.
bool IsPlain(QString text) {
    static const QRegularExpression other(
        "#[0-9a-fA-F]{6,8}|/\\S+|[-\\w]+\\.(volf|png|ico)|Varnel Orbelle|\\bv[0-9.]+|\\b[XYx]\\b|"
        "[A-Z][a-z]{2} [0-9]{4} [0-9:]+|Right_Layer|qt_\\w+|"
        "^(Exported|The file can't|The address|Warning|Writing).*|already exists, overwrite");
    static const QRegularExpression latin("[a-zA-Z]");
    return text.remove(other).remove(other).contains(latin);
}

void AddTexts(const QObject& object, QStringList& texts) {
    for (const char* property : {"text", "title", "windowTitle", "toolTip", "statusTip",
                                 "accessibleName", "accessibleDescription", "placeholderText"})
        texts += object.property(property).toString();
    if (const auto* box = qobject_cast<const QComboBox*>(&object))
        for (int i = 0; i < box->count(); ++i)
            texts += box->itemText(i);
    if (const auto* list = qobject_cast<const QListWidget*>(&object))
        for (int i = 0; i < list->count(); ++i)
            texts += list->item(i)->text();
}

// The parts that a control tells assistive tools of.
void AddParts(QWidget& widget, QStringList& texts) {
    const auto* parts = dynamic_cast<const widgets::AccessibleParts*>(&widget);
    for (int part = 0; parts && part < parts->PartCount(); ++part)
        texts << parts->PartName(part) << parts->PartValue(part);
}

TEST_F(WindowStatesTest, EveryTextIsTranslated) {
    Foreign translator;
    QCoreApplication::installTranslator(&translator);
    std::set<std::string> plain;
    ForEachWindowState(ORBELLE_SAMPLES, [&](const QString& name, QWidget& shown) {
        QStringList texts;
        AddTexts(shown, texts);
        for (QObject* object : shown.findChildren<QObject*>()) {
            AddTexts(*object, texts);
            auto* widget = qobject_cast<QWidget*>(object);
            if (!widget)
                continue;
            AddParts(*widget, texts);
            if (widget->isVisible())
                for (const testing::DrawnText& drawn : testing::TextsOf(*widget))
                    texts += drawn.Text;
        }
        for (const QString& text : texts)
            for (const QString& line : text.split('\n'))
                if (IsPlain(line))
                    plain.insert((name + ": " + line).toStdString());
    });
    EXPECT_THAT(plain, ::testing::IsEmpty());
}

}  // namespace
}  // namespace orbelle::app
