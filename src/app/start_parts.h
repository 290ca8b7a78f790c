// What the empty window is made of (start_view.h), drawn in the colours of the scene.
#pragma once

#include <QPushButton>
#include <filesystem>

namespace orbelle::app {

// A button on the scene: a quiet face that answers to the pointer, the keys and the focus.
class SceneButton : public QPushButton {
    Q_OBJECT

public:
    explicit SceneButton(QWidget* parent);

protected:
    void DrawFaceAndFocus(QPainter& painter) const;
    void enterEvent(QEnterEvent*) override { update(); }
    void leaveEvent(QEvent*) override { update(); }
};

// A drawing and a word beside it.
class StartButton : public SceneButton {
    Q_OBJECT

public:
    StartButton(const QString& artwork, const QString& text, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString artwork_;
};

// A file: its picture above its name, the whole path as its tip.
class FileTile : public SceneButton {
    Q_OBJECT

public:
    FileTile(const std::filesystem::path& path, QWidget* parent);

    const std::filesystem::path& Path() const { return path_; }
    // Null: none could be made. Until the first call a place is held for it.
    void Show(const QImage& picture);
    // The side of the square that pictures are shown in, logical pixels.
    static int PictureSide();

    QSize sizeHint() const override;

signals:
    void ForgetWanted();  // in the menu

protected:
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void DrawPicture(QPainter& painter, const QRect& place) const;

    std::filesystem::path path_;
    QString name_;
    QImage picture_;
    bool isMade_ = false;
};

// Says that pictures can be dropped, and lights up while one hovers over the window.
class DropHint : public QWidget {
    Q_OBJECT

public:
    explicit DropHint(QWidget* parent);

    // Without words while others stand in its place; with a frame where it has the room.
    void SetShown(bool hasWords, bool hasFrame);
    void SetLit(bool isLit);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool hasWords_ = true;
    bool hasFrame_ = true;
    bool isLit_ = false;
};

}  // namespace orbelle::app
