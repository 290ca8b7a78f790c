#include "app/zoom_field.h"

#include <QLineEdit>

#include "editing/view_commands.h"
#include "main_window_fixture.h"

namespace orbelle::app {
namespace {

class ZoomFieldTest : public MainWindowTest {
protected:
    ZoomFieldTest() {
        window.show();
        NewPage(64, 64);
    }

    ZoomField& Field() { return Part<ZoomField>("ZoomField"); }
    void Type(const QString& text) {
        Field().lineEdit()->setFocus();
        Field().lineEdit()->selectAll();
        for (const QChar letter : text)
            Strike(*Field().lineEdit(), Qt::Key_unknown, letter);
    }
    void Choose(const QString& entry) {
        Field().setCurrentIndex(Field().findText(entry));
        emit Field().activated(Field().currentIndex());
    }
    double Zoom() const { return window.Editor().View.Zoom; }
};

TEST_F(ZoomFieldTest, TakesWhatIsTyped) {
    const struct {
        const char* Typed;
        double Zoom;
        const char* Shown;
    } cases[] = {{"300", 3, "300%"},    {"250 %", 2.5, "250%"}, {"12,5%", 0.2, "20%"},
                 {"9999", 20, "2000%"}, {"0", 20, "2000%"},     {"", 20, "2000%"},
                 {"1x0y0", 1, "100%"}};
    for (const auto& [typed, zoom, shown] : cases) {
        Type(typed);
        Strike(*Field().lineEdit(), Qt::Key_Return);
        EXPECT_EQ(Zoom(), zoom) << typed;
        EXPECT_EQ(Field().currentText(), shown) << typed;
        EXPECT_TRUE(Scene().hasFocus()) << typed;
    }
}

TEST_F(ZoomFieldTest, KeepsWhatIsTypedUntilItCountsOrIsGivenUp) {
    window.Run(editing::OriginalSize);
    Type("400");
    window.Run(editing::ZoomIn);
    EXPECT_EQ(Field().currentText(), "400");
    Strike(*Field().lineEdit(), Qt::Key_Escape);
    EXPECT_EQ(Field().currentText(), "300%");
    Type("500");
    Scene().setFocus();
    EXPECT_EQ(Zoom(), 5) << "leaving the field";
    Field().lineEdit()->setFocus();
    Strike(*Field().lineEdit(), Qt::Key_Up);
    EXPECT_EQ(Zoom(), 7);
    Strike(*Field().lineEdit(), Qt::Key_Down);
    EXPECT_EQ(Zoom(), 5);
}

TEST_F(ZoomFieldTest, OffersTheUsualZooms) {
    for (const auto& [entry, zoom] : {std::pair("25%", 0.25), {"2000%", 20}, {"1:1", 1}}) {
        Choose(entry);
        EXPECT_EQ(Zoom(), zoom) << entry;
    }
    Choose("Fit");
    const document::View& view = window.Editor().View;
    EXPECT_EQ(Zoom(), editing::WholeFitZoom(view.SceneWidth, view.SceneHeight, Page()));
    EXPECT_EQ(Field().currentText(), QString::number(Zoom() * 100) + "%");
}

// The zoom in force is an entry of the list.
TEST_F(ZoomFieldTest, PassingByChoosesNothing) {
    window.Run(editing::OriginalSize);
    Field().lineEdit()->setFocus();
    Scene().setFocus();
    EXPECT_TRUE(window.Editor().Zoom.IsOriginalSize);
}

TEST_F(MainWindowTest, TheZoomFieldIsOffWithoutAPage) {
    EXPECT_FALSE(Part<ZoomField>("ZoomField").isEnabled());
    EXPECT_EQ(Part<ZoomField>("ZoomField").currentText(), "");
}

TEST_F(MainWindowTest, TheKeysGoToTheSceneFromAControlThatIsTurnedOff) {
    NewPage(16, 16);
    auto& field = Part<ZoomField>("ZoomField");
    for (const bool hides : {false, true}) {
        field.lineEdit()->setFocus();
        ASSERT_FALSE(Scene().hasFocus());
        hides ? field.hide() : field.setEnabled(false);
        EXPECT_TRUE(Scene().hasFocus());
        field.setEnabled(true);
    }
}

TEST_F(MainWindowTest, ShapeToolsSayTheFillKindInUse) {
    NewPage(16, 16);
    ClickBar("ToolBox", 8);
    ClickBar("FillBar", 4);
    auto& tools = Part<ButtonBar>("ToolBox");
    QAccessibleInterface* box = QAccessible::queryAccessibleInterface(&tools);
    int told = 0;
    for (int part = 0; part < box->childCount(); ++part)
        told += box->child(part)->text(QAccessible::Value) == "Radial Gradient" ? 1 : 0;
    EXPECT_EQ(told, 5) << "the line and four shapes";
}

}  // namespace
}  // namespace orbelle::app
