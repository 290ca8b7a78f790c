// The files that were used last, on the scene of a window without a document.
#pragma once

#include <QWidget>
#include <filesystem>

namespace orbelle::app {

class RecentFiles;

// Stands below the welcome text: up to six files, as many as there is room for, each with its name
// and folder. The owner hides it once there is a document.
class RecentFilesView : public QWidget {
    Q_OBJECT

public:
    RecentFilesView(const RecentFiles& files, QWidget& scene);

signals:
    // By a click, Return or the space bar.
    void Wanted(const std::filesystem::path& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Fill();
    void Place();

    const RecentFiles& files_;
    QWidget& scene_;
    QList<QWidget*> rows_;
};

}  // namespace orbelle::app
