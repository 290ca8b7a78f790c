// Another program on the same display, to exchange pictures with:
//   clipboard_peer take FILE    writes the clipboard's picture, prints the clipboard's text
//   clipboard_peer offer FILE   puts the picture there, prints "ready" and stays
//   clipboard_peer drag FILE    shows a window, prints "ready"; a press on it drags the file away,
//                               and prints "accepted" as soon as a window would take it
#include <QClipboard>
#include <QDrag>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QRasterWindow>
#include <QUrl>
#include <iostream>
#include <string_view>

namespace {

class DragSource : public QRasterWindow {
public:
    explicit DragSource(const QString& file) : file_(file) {
        setFlag(Qt::FramelessWindowHint);
        setGeometry(1150, 50, 100, 100);
        show();
    }

protected:
    void exposeEvent(QExposeEvent* event) override {
        QRasterWindow::exposeEvent(event);
        std::cout << "ready" << std::endl;
    }
    void mousePressEvent(QMouseEvent*) override {
        auto* data = new QMimeData;
        data->setUrls({QUrl::fromLocalFile(file_)});
        auto* drag = new QDrag(this);
        drag->setMimeData(data);
        connect(drag, &QDrag::actionChanged, [](Qt::DropAction action) {
            if (action != Qt::IgnoreAction)
                std::cout << "accepted" << std::endl;
        });
        drag->exec(Qt::CopyAction | Qt::MoveAction | Qt::LinkAction, Qt::MoveAction);
    }

private:
    QString file_;
};

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    if (argc != 3)
        return 2;
    const std::string_view task = argv[1];
    QClipboard& clipboard = *QGuiApplication::clipboard();
    if (task == "drag") {
        const DragSource source(argv[2]);
        return QGuiApplication::exec();
    }
    if (task == "offer") {
        clipboard.setImage(QImage(argv[2]));
        std::cout << "ready" << std::endl;
        return QGuiApplication::exec();
    }
    if (!clipboard.image().save(argv[2]))
        return 1;
    std::cout << clipboard.text().toStdString() << std::endl;
    return 0;
}
