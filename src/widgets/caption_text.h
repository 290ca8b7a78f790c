// A text block, wrapped by words, with an optional picture at its left.
#pragma once

#include <QWidget>

namespace orbelle::widgets {

class CaptionText : public QWidget {
    Q_OBJECT

public:
    explicit CaptionText(const QString& caption = {}, QWidget* parent = nullptr);

    QString Caption() const;
    void SetCaption(const QString& caption);
    // The name of a drawing; empty: none.
    void SetPicture(const QString& artwork);

    QSize sizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int TextLeft() const;

    QString caption_;
    QString picture_;
};

}  // namespace orbelle::widgets
