// A balloon with a tip.
#pragma once

#include <QWidget>

namespace orbelle::widgets {

// Direction 0 points up at what it is about, another one down.
class CtlTips : public QWidget {
    Q_OBJECT

public:
    explicit CtlTips(QWidget* parent = nullptr);

    QString TipString() const;
    void SetTipString(const QString& text);  // the height follows the text
    void SetDirection(int direction);

signals:
    void Clicked();
};

}  // namespace orbelle::widgets
