// The header of a panel that folds.
#pragma once

#include <QAbstractButton>

#include "widgets/motion.h"

namespace orbelle::widgets {

// A quiet band with a chevron at its left. Open at first. To assistive tools it is a button that is
// checked while its panel is open.
class PanelHeader : public QAbstractButton {
    Q_OBJECT

public:
    explicit PanelHeader(const QString& title, QWidget* parent = nullptr);

    bool IsClosed() const;
    void SetClosed(bool closed);  // does not raise Clicked

    // Stand at the right while the panel is open.
    void SetTools(QWidget& tools);

    QSize sizeHint() const override;

signals:
    // The header was clicked, or Space or Return pressed on it, and has turned.
    void Clicked(bool isClosed);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    Motion turning_{*this};  // of the chevron
};

}  // namespace orbelle::widgets
