// Files and pictures that are dropped on the window or pasted.
#include "main_window_fixture.h"

#include <QClipboard>
#include <QMessageBox>
#include <QProgressDialog>
#include <QUrl>

#include "editing/clipboard_commands.h"

namespace orbelle::app {
namespace {

TEST_F(MainWindowTest, TakesDroppedLocalFilesAndImportsThemInOrder) {
    const QUrl far("https://example.org/far.png");
    QMimeData data;
    data.setText("some text");
    EXPECT_FALSE(IsTaken(data));
    data.setUrls({far});
    EXPECT_FALSE(IsTaken(data));
    data.setUrls({far, QUrl::fromLocalFile(Picture("first.png", 40, 30)),
                  QUrl::fromLocalFile(Picture("second.png", 20, 10))});
    ASSERT_TRUE(IsTaken(data));
    Drop(data);

    ASSERT_TRUE(WaitUntil([&] { return Page().LayerCount() == 2; }));
    EXPECT_EQ(Page().Width, 40);
    EXPECT_EQ(Page().Layers[1].ImageWidth, 20);
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
            window.Run(editing::PasteFromClipboard);
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

}  // namespace
}  // namespace orbelle::app
