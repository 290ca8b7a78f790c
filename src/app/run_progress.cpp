#include "app/run_progress.h"

#include <QGuiApplication>
#include <QProgressBar>
#include <QProgressDialog>
#include <chrono>
#include <future>

#include "editing/editor.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

constexpr int kPatienceMilliseconds = 300;  // before a run is shown
constexpr std::chrono::milliseconds kTick(20);
constexpr int kWidth = 360;  // whatever is told

}  // namespace

RunProgress::RunProgress(QWidget& parent) : parent_(parent) {}
RunProgress::~RunProgress() = default;

bool RunProgress::GoOn(int done, int count, const std::string& doing) {
    if (done >= count) {
        dialog_.reset();
        return true;
    }
    if (done == 0)
        time_.start();
    done_ = done;
    count_ = count;
    doing_ = doing;
    ShowInTime();
    return !IsCancelled();
}

void RunProgress::DoMeanwhile(const std::function<void()>& work) {
    std::future<void> result = std::async(std::launch::async, work);
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    while (result.wait_for(kTick) != std::future_status::ready) {
        // Without the dialog before it the window would take what the user does.
        if (!IsCancelled())
            ShowInTime();
    }
    QGuiApplication::restoreOverrideCursor();
    result.get();
}

// The dialog is made only now: it would come up over a question that the run waits for.
void RunProgress::ShowInTime() {
    if (!dialog_ && time_.elapsed() < kPatienceMilliseconds)
        return;
    if (!dialog_) {
        dialog_ =
            std::make_unique<QProgressDialog>(QString(), Words::tr("&Cancel"), 0, count_, &parent_);
        dialog_->setWindowTitle(editing::kProductName);
        dialog_->setWindowModality(Qt::ApplicationModal);
        dialog_->setMinimumDuration(0);
        dialog_->setMinimumWidth(kWidth);
        dialog_->findChild<QProgressBar*>()->setTextVisible(false);
        dialog_->show();
    }
    dialog_->setLabelText(QString::fromStdString(doing_));
    dialog_->setValue(done_);
    QCoreApplication::processEvents();
}

bool RunProgress::IsCancelled() const {
    return dialog_ && dialog_->wasCanceled();
}

}  // namespace orbelle::app
