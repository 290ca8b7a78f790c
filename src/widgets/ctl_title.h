// The header of a panel that folds.
#pragma once

#include <QWidget>

namespace orbelle::widgets {

class CtlTitle : public QWidget {
    Q_OBJECT

public:
    explicit CtlTitle(const QString& title, QWidget* parent = nullptr);

    bool isClosed() const;
    void SetClosed(bool closed);  // does not raise Clicked

signals:
    // The header was clicked and has turned.
    void Clicked(bool isClosed);
};

}  // namespace orbelle::widgets
