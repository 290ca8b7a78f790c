// A text block, wrapped by words.
#pragma once

#include <QWidget>

namespace orbelle::widgets {

class CaptionText : public QWidget {
    Q_OBJECT

public:
    explicit CaptionText(const QString& caption = {}, QWidget* parent = nullptr);

    void SetCaption(const QString& caption);

    QSize sizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString caption_;
};

}  // namespace orbelle::widgets
