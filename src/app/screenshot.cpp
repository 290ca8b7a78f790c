#include "app/screenshot.h"

#include <QApplication>
#include <QPixmap>
#include <iostream>

#include "app/main_window.h"
#include "app/settings.h"

namespace orbelle::app {
namespace {

// Nobody is there to press OK.
class UnattendedForm : public MainWindow {
public:
    bool HasFailed() const { return hasFailed_; }
    void ShowMessage(const std::string& text) override {
        hasFailed_ = true;
        std::cerr << "orbelle: " << text << '\n';
    }

private:
    bool hasFailed_ = false;
};

}  // namespace

int TakeScreenshot(const QString& picture, const QString& file) {
    UnattendedForm form;
    form.resize(kDefaultMainSize);
    form.show();
    QApplication::processEvents();
    if (!file.isEmpty())
        form.OpenPath(file);
    while (form.IsZoomAnimationRunning())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (!form.HasFailed() && !form.grab().save(picture, "PNG"))
        form.ShowMessage("Cannot write " + picture.toStdString());
    return form.HasFailed() ? 1 : 0;
}

}  // namespace orbelle::app
