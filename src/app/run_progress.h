// A long run over files, and the dialog that shows it after a while.
#pragma once

#include <QElapsedTimer>
#include <functional>
#include <memory>
#include <string>

class QProgressDialog;
class QWidget;

namespace orbelle::app {

class RunProgress {
public:
    explicit RunProgress(QWidget& parent);
    ~RunProgress();

    // As UserQuestions has them.
    bool GoOn(int done, int count, const std::string& doing);
    void DoMeanwhile(const std::function<void()>& work);

    bool IsShown() const { return dialog_ != nullptr; }

private:
    void ShowInTime();
    bool IsCancelled() const;

    QWidget& parent_;
    std::unique_ptr<QProgressDialog> dialog_;
    QElapsedTimer time_;
    int done_ = 0;
    int count_ = 0;
    std::string doing_;
};

}  // namespace orbelle::app
