// orbelle-screenshot PICTURE [FILE]: the window as a picture, without a user. Shows the window at
// its default size, opens FILE, waits until the page stands still, and writes what the window
// shows, at its device pixel ratio, to PICTURE as PNG. Settings are neither read nor written.
#include <QApplication>
#include <QPixmap>
#include <iostream>

#include "app/looks.h"
#include "app/main_window.h"
#include "app/settings.h"

namespace {

// Nobody is there to press OK.
class UnattendedWindow : public orbelle::app::MainWindow {
public:
    bool HasFailed() const { return hasFailed_; }
    void ShowMessage(const std::string& text) override {
        hasFailed_ = true;
        std::cerr << "orbelle-screenshot: " << text << '\n';
    }

private:
    bool hasFailed_ = false;
};

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2 || arguments.size() > 3) {
        std::cerr << "usage: orbelle-screenshot PICTURE [FILE]\n";
        return 2;
    }
    orbelle::app::ApplyLooks(orbelle::app::Looks::Light);
    UnattendedWindow window;
    window.resize(orbelle::app::kDefaultMainSize);
    window.show();
    QApplication::processEvents();
    if (arguments.size() == 3)
        window.OpenPath(arguments[2]);
    while (!window.IsAtRest())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (!window.HasFailed() && !window.grab().save(arguments[1], "PNG"))
        window.ShowMessage("Cannot write " + arguments[1].toStdString());
    return window.HasFailed() ? 1 : 0;
}
