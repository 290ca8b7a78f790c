// Another program on the same display, to exchange pictures with through the clipboard:
//   clipboard_peer take FILE    writes the clipboard's picture, prints the clipboard's text
//   clipboard_peer offer FILE   puts the picture there, prints "ready" and stays
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <iostream>
#include <string_view>

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    if (argc != 3)
        return 2;
    QClipboard& clipboard = *QGuiApplication::clipboard();
    if (std::string_view(argv[1]) == "offer") {
        clipboard.setImage(QImage(argv[2]));
        std::cout << "ready" << std::endl;
        return QGuiApplication::exec();
    }
    if (!clipboard.image().save(argv[2]))
        return 1;
    std::cout << clipboard.text().toStdString() << std::endl;
    return 0;
}
