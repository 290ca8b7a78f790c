// Files and pictures that are dropped on the window or pasted.
#include "main_window_fixture.h"

#include <QClipboard>
#include <QLabel>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QStatusBar>
#include <QUrl>

#include "app/fit_dialog.h"
#include "app/save_prompt.h"

namespace orbelle::app {
namespace {

// The first of several opens an empty window, the others become layers.
TEST_F(MainWindowTest, DroppedFilesOpenOrBecomeLayers) {
    const QString first = Picture("first.png", 40, 30), second = Picture("second.png", 20, 10);
    QMimeData data;
    data.setUrls({QUrl("https://example.org/far.png"), QUrl::fromLocalFile(first),
                  QUrl::fromLocalFile(second)});
    EXPECT_EQ(Hover(data), Qt::LinkAction);
    Drop(data);
    ASSERT_TRUE(WaitUntil([&] { return Page().LayerCount() == 2; }));
    EXPECT_EQ(Page().Width, 40);
    EXPECT_EQ(Page().Layers[1].ImageWidth, 20);
    EXPECT_TRUE(window.statusBar()->currentMessage().startsWith("https://example.org/far.png "));

    data.setUrls({QUrl::fromLocalFile(second)});
    EXPECT_EQ(Hover(data, Qt::ControlModifier), Qt::LinkAction);
    EXPECT_EQ(Hover(data, Qt::ControlModifier, Qt::CopyAction), Qt::CopyAction);
    EXPECT_EQ(Hover(data, Qt::NoModifier, Qt::MoveAction), Qt::IgnoreAction);
    data.setUrls({QUrl::fromLocalFile(second), QUrl("file:///a.Volf")});
    EXPECT_EQ(Hover(data), Qt::LinkAction) << "a document opens in any case";
    data.setUrls({QUrl::fromLocalFile(second)});
    EXPECT_EQ(Hover(data), Qt::CopyAction);
    Drop(data);
    ASSERT_TRUE(WaitUntil([&] { return Page().LayerCount() == 3; }));

    Hover(data, Qt::ControlModifier);
    AnswerDialog<SavePrompt>(
        [](SavePrompt& prompt) { prompt.findChildren<QPushButton*>()[1]->click(); });
    Drop(data, Qt::ControlModifier);
    ASSERT_TRUE(WaitUntil([&] { return Page().LayerCount() == 1; }));
    EXPECT_EQ(Page().Width, 20);
}

TEST_F(MainWindowTest, DroppedTextsAreAddressesOrPaths) {
    const QString picture = Picture("a \u00e4%.png", 4, 4), none = Path("none.png");
    struct Case {
        QString Text;
        int Layers;  // below 0: it is not taken
        const char* Told;
    };
    const Case cases[] = {
        {"some text", -1, ""},
        {"first.png", -1, ""},
        {picture + "\nand more", -1, ""},
        {"", -1, ""},
        {picture, 1, ""},
        {picture + "\r\n \n" + QUrl::fromLocalFile(picture).toEncoded() + '\n', 2, ""},
        {none, 0, "none.png: No such file or directory"},
        {Path(""), 0, ": Is a directory"},
        {"https://example.org/a.png", 0, "only files that are can be opened."},
        {"https:", -1, ""},
    };
    for (const Case& dropped : cases) {
        SCOPED_TRACE(dropped.Text.toStdString());
        NewPage(8, 8);
        QMimeData data;
        data.setText(dropped.Text);
        EXPECT_EQ(IsTaken(data), dropped.Layers >= 0);
        if (dropped.Layers < 0)
            continue;
        QString message = "";
        if (*dropped.Told)
            AnswerDialog<QMessageBox>([&](QMessageBox& box) {
                message = box.text();
                box.accept();
            });
        Drop(data);
        EXPECT_TRUE(WaitUntil([&] { return Page().LayerCount() == 1 + dropped.Layers; }));
        EXPECT_TRUE(WaitUntil([&] { return message.endsWith(dropped.Told); }))
            << message.toStdString();
    }
}

TEST_F(MainWindowTest, NothingIsDroppedBehindADialog) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(Path("a.png"))});
    bool behind = true;
    AnswerDialog<QMessageBox>([&](QMessageBox& box) {
        behind = IsTaken(data);
        box.accept();
    });
    window.ShowMessage("a question");
    EXPECT_FALSE(behind);
    EXPECT_TRUE(IsTaken(data));
}

TEST_F(MainWindowTest, ManyFilesAreToldInOneBoxAndCanBeCancelled) {
    auto* data = new QMimeData;
    data->setUrls(QList<QUrl>(200000, QUrl("file:///none%FF.png")));
    QGuiApplication::clipboard()->setMimeData(data);
    AnswerDialog<QProgressDialog>([](QProgressDialog& progress) { progress.cancel(); });
    QString told;
    AnswerDialog<QMessageBox>([&](QMessageBox& box) {
        told = box.text();
        box.accept();
    });
    window.Paste();
    const QStringList lines = told.split('\n');
    ASSERT_EQ(lines.size(), 13);
    EXPECT_EQ(lines[0], "Cancelled: 0 of 200,000 files were imported.");
    EXPECT_TRUE(lines[1].endsWith(" of 200,000 files could not be imported:"));
    EXPECT_TRUE(window.IsFree());
}

TEST_F(MainWindowTest, AnOfferedPictureThatIsTooLargeIsTold) {
    NewPage(16, 16);
    const auto told = [&](QMimeData* data, bool dropped) {
        QString text;
        AnswerDialog<QMessageBox>([&](QMessageBox& box) {
            text = box.text();
            box.accept();
        });
        if (dropped) {
            EXPECT_TRUE(IsTaken(*data));
            Drop(*data);
            delete data;
        } else {
            QGuiApplication::clipboard()->setMimeData(data);
            window.Paste();
        }
        WaitUntil([&] { return !text.isEmpty(); });
        return text;
    };
    const auto wide = [] {
        auto* data = new QMimeData;
        data->setImageData(QImage(16385, 1, QImage::Format_RGB32));
        return data;
    };
    EXPECT_TRUE(told(wide(), false).contains("16385 x 1"));
    EXPECT_TRUE(told(wide(), true).contains("16385 x 1"));
    // As another program offers it: a PNG that claims 20,000 x 20,000 pixels.
    auto* png = new QMimeData;
    png->setImageData(QImage(1, 1, QImage::Format_RGB32));
    png->setData("image/png", QByteArray::fromHex("89504e470d0a1a0a0000000d49484452"
                                                  "00004e2000004e200806000000e3704639"
                                                  "000000004944415435af061e"));
    EXPECT_TRUE(told(png, true).contains("20000 x 20000"));
    EXPECT_EQ(Page().LayerCount(), 1);
}

// The toolkit may know none of these kinds, or read them in another way.
TEST_F(MainWindowTest, WebPAndDrawingsArePastedAndDropped) {
    NewPage(16, 16);
    // Two pixels: one red, one of no alpha.
    const auto webp = QByteArray::fromHex(
        "5249464620000000574542505650384c130000002f010000000ff090ff011ea0f98f346444ff0300");
    auto* pixels = new QMimeData;
    pixels->setData("image/webp", webp);
    QGuiApplication::clipboard()->setMimeData(pixels);
    window.Paste();
    ASSERT_EQ(Page().LayerCount(), 2);
    EXPECT_EQ(Page().Layers[1].ImageWidth, 2);
    EXPECT_EQ(Page().Layers[1].Image.GetPixel(0, 0), kRed);

    const auto drawing = [] {
        auto* data = new QMimeData;
        data->setData("image/svg+xml",
                      "<svg xmlns='http://www.w3.org/2000/svg' width='2' height='1'>"
                      "<rect width='2' height='1' fill='#c02040'/></svg>");
        return data;
    };
    QGuiApplication::clipboard()->setMimeData(drawing());
    AnswerDialog<FitDialog>([](FitDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QLabel*>()->text(),
                  "The picture of 512 x 256 pixels is larger than the page of 16 x 16.");
        dialog.accept();
    });
    window.Paste();
    ASSERT_EQ(Page().LayerCount(), 3);
    EXPECT_EQ(Page().Layers[2].Rect, (graphics::RectF{0, 4, 16, 8}));
    EXPECT_EQ(Page().Layers[2].Image.GetPixel(8, 4), kRed);

    const std::unique_ptr<QMimeData> dropped(drawing());
    EXPECT_TRUE(IsTaken(*dropped));
    AnswerDialog<FitDialog>([](FitDialog& dialog) { dialog.reject(); });
    Drop(*dropped);
    EXPECT_EQ(Page().LayerCount(), 3);
}

}  // namespace
}  // namespace orbelle::app
