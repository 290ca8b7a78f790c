#include "app/color_dialog.h"

#include <gmock/gmock.h>

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>

#include "app/color_fields.h"
#include "app/color_text.h"
#include "app/settings.h"
#include "support/hands.h"
#include "widgets/number_slider.h"

namespace orbelle::app {
namespace {

using namespace orbelle::testing;
using graphics::Argb;

constexpr Argb kOrange = 0xFFFF8040;
constexpr bool kWithAlpha = true;

TEST(ColorTextTest, HasTwoDigitsForEachChannelAndAlphaFirst) {
    const std::tuple<const char*, std::optional<Argb>, std::optional<Argb>> cases[] = {
        {"#FF8040", 0x33FF8040, 0xFFFF8040},
        {"ff8040", 0x33FF8040, 0xFFFF8040},
        {" #fF8040 ", 0x33FF8040, 0xFFFF8040},
        {"#80102030", 0x80102030, {}},
        {"00102030", 0x00102030, {}},
        {"#f84", 0x33FF8844, 0xFFFF8844},
        {"", {}, {}},
        {"#", {}, {}},
        {"#12345", {}, {}},
        {"#1234567", {}, {}},
        {"#GG8040", {}, {}},
        {"-12345", {}, {}},
        {"##12345", {}, {}},
        {"0x1234", {}, {}},
    };
    for (const auto& [text, withAlpha, opaque] : cases) {
        EXPECT_EQ(ParseColorText(text, true, 0x33), withAlpha) << text;
        EXPECT_EQ(ParseColorText(text, false, 0xFF), opaque) << text;
    }
    EXPECT_EQ(ColorText(0x0000A0FF, true), "#0000A0FF");
    EXPECT_EQ(ColorText(0x8000A0FF, false), "#00A0FF");
}

class ColorDialogTest : public ::testing::Test {
protected:
    ColorDialogTest() { Settings().remove("RecentColors"); }

    static std::unique_ptr<ColorDialog> Open(Argb start, bool hasAlpha = kWithAlpha) {
        auto dialog = std::make_unique<ColorDialog>(ColorQuestion{"Color", 0, start, hasAlpha});
        dialog->show();
        dialog->activateWindow();
        QApplication::processEvents();
        return dialog;
    }
    static QLineEdit& Text(const ColorDialog& dialog) {
        return *dialog.findChild<QLineEdit*>("ColorText");
    }
    // By the keyboard, over what is selected.
    static void Type(QWidget& field, const QString& text) {
        for (const QChar c : text)
            Strike(field, Qt::Key(c.toUpper().unicode()), c);
    }
    template <typename Field>
    static Field& Named(const ColorDialog& dialog, const QString& name) {
        for (auto* field : dialog.findChildren<Field*>())
            if (field->accessibleName() == name)
                return *field;
        throw std::runtime_error(name.toStdString());
    }
};

TEST_F(ColorDialogTest, ATypedColorAndReturnAreEnough) {
    const std::tuple<const char*, Argb, Argb> typed[] = {{"#FF0000", 0x80102030, 0x80FF0000},
                                                         {"40FF0000", 0x80102030, 0x40FF0000}};
    for (const auto& [text, start, chosen] : typed) {
        const auto dialog = Open(start);
        EXPECT_EQ(Text(*dialog).text(), "#80102030");
        ASSERT_EQ(dialog->focusWidget(), &Text(*dialog));
        Type(Text(*dialog), text);
        EXPECT_EQ(Text(*dialog).text(), text) << "as typed";
        Strike(Text(*dialog), Qt::Key_Return);
        EXPECT_EQ(dialog->result(), QDialog::Accepted);
        EXPECT_EQ(dialog->Color(), chosen);
    }
}

TEST_F(ColorDialogTest, OkWaitsForAWholeColor) {
    const auto dialog = Open(kOrange, !kWithAlpha);
    Type(Text(*dialog), "80102030");
    dialog->accept();
    EXPECT_TRUE(dialog->isVisible()) << "here alpha can't be kept";
    EXPECT_EQ(Text(*dialog).selectedText(), "80102030");
    Type(Text(*dialog), "#10203z0");
    EXPECT_EQ(Text(*dialog).text(), "#102030");
    dialog->accept();
    EXPECT_EQ(dialog->Color(), 0xFF102030);
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(ColorDialogTest, FieldsStripsAndNumbersShowOneColor) {
    const auto dialog = Open(kOrange);
    auto& square = *dialog->findChild<ColorSquare*>();
    auto& hue = Named<ColorStrip>(*dialog, "Hue");
    auto& alpha = Named<ColorStrip>(*dialog, "Alpha");
    auto& red = Named<widgets::NumberSlider>(*dialog, "Red");
    EXPECT_EQ(hue.value(), 20);
    hue.setValue(120);
    EXPECT_EQ(dialog->Color(), 0xFF40FF40);
    EXPECT_EQ(red.Value(), 0x40);
    Strike(alpha, Qt::Key_Down);
    EXPECT_EQ(dialog->Color(), 0xFE40FF40);
    EXPECT_EQ(Text(*dialog).text(), "#FE40FF40");
    Click(square, {223, 0});
    EXPECT_EQ(dialog->Color(), 0xFE00FF00);
    Strike(square, Qt::Key_Down);
    EXPECT_EQ(dialog->Color(), 0xFE00FE00);
    DragTo(square, {-50, 500});
    EXPECT_EQ(dialog->Color(), 0xFE000000);
    EXPECT_EQ(hue.value(), 120) << "black keeps the hue";
    auto& digits = *red.findChild<QLineEdit*>();
    digits.selectAll();
    Type(digits, "300");
    EXPECT_EQ(dialog->Color(), 0xFEFF0000);
    EXPECT_EQ(red.Value(), 255);
    EXPECT_EQ(hue.value(), 0);
    EXPECT_EQ(dialog->findChild<ColorComparison*>()->accessibleName(),
              "new #FEFF0000, old #00000000");
}

TEST_F(ColorDialogTest, TheLastSixAreOfferedOnceEach) {
    for (const char* chosen : {"#111111", "#222222", "#333333", "#444444", "#555555", "#80666666",
                               "#FF777777", "#444444"}) {
        const auto dialog = Open(0xFF000000);
        Type(Text(*dialog), chosen);
        dialog->accept();
    }
    const auto cancelled = Open(kOrange);
    cancelled->reject();
    const auto names = [](const ColorDialog& dialog) {
        QStringList texts;
        for (const auto* cell : dialog.findChildren<ColorCell*>())
            texts << cell->accessibleName();
        return texts.join(' ').toStdString();
    };
    EXPECT_EQ(names(*Open(kOrange)), "#FF444444 #FF777777 #80666666 #FF555555 #FF333333 #FF222222");
    const auto dialog = Open(kOrange);
    auto& third = *dialog->findChildren<ColorCell*>()[2];
    EXPECT_TRUE(third.focusPolicy() & Qt::TabFocus);
    Strike(third, Qt::Key_Space);
    EXPECT_EQ(dialog->Color(), 0x80666666);
    const auto opaque = Open(kOrange, !kWithAlpha);
    opaque->findChildren<ColorCell*>()[2]->click();
    EXPECT_EQ(opaque->Color(), 0xFF666666);

    Settings().setValue("RecentColors", QStringList{"#123456", "nonsense"});
    EXPECT_EQ(names(*Open(kOrange)),
              "#FF123456 No color yet No color yet No color yet No color yet No color yet");
    EXPECT_FALSE(Open(kOrange)->findChildren<ColorCell*>()[1]->isEnabled());
}

}  // namespace
}  // namespace orbelle::app
