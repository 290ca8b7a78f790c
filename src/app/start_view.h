// What can be begun in a window without a document.
#pragma once

#include <QWidget>
#include <filesystem>
#include <vector>

#include "app/file_thumbnails.h"

namespace orbelle::app {

class DropHint;
class FileTile;
class RecentFiles;
class StartButton;

// Covers the scene: New, Open, where to drop a picture, and below it the files that were used last,
// as many as there is room for, those that are missing left out. The middle is left to the welcome
// text while it is shown; where both have no room, this comes after it. The owner hides it once
// there is a document.
class StartView : public QWidget {
    Q_OBJECT

public:
    StartView(RecentFiles& files, QWidget& scene);

    // Whether the welcome text is shown.
    void MakeRoomForWelcome(bool isShown);
    // Whether something hovers over the window that can be dropped.
    void ShowDrag(bool hovers);

    // Where something is shown, in its own pixels.
    std::vector<QRect> Places() const;
    // All pictures have come.
    bool IsAtRest() const;

signals:
    void NewWanted();
    void OpenWanted();
    void Wanted(const std::filesystem::path& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int WantedSide() const;  // of pictures, pixels of the screen
    void AskForFiles();
    void Fill(const std::vector<std::filesystem::path>& paths);
    void ShowPicture(const std::filesystem::path& path, const QImage& picture);
    int TilesHeight() const;  // with their heading
    void Place();
    void PlaceClosely();
    int ButtonWidth() const;
    bool AreButtonsStacked() const;
    int ButtonsHeight() const;
    void PlaceButtons(int top, int buttonWidth, bool areShown);
    void PlaceTiles(int top, bool areShown);

    RecentFiles& files_;
    QWidget& scene_;
    StartButton* new_;
    StartButton* open_;
    DropHint* hint_;
    std::vector<FileTile*> tiles_;
    QRect head_;  // of the files
    bool isWelcome_ = false;
    bool isDue_ = true;        // the files are to be looked for
    int side_ = 0;             // of the pictures that were asked for
    std::size_t missing_ = 0;  // pictures that have not come
    FileThumbnails thumbnails_;
};

}  // namespace orbelle::app
