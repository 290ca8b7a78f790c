// A soft shadow below a control that lies on other parts of the window.
#pragma once

#include <QWidget>

namespace orbelle::widgets {

// Lies just below `caster`, follows it, and belongs to the same parent. Presses go through.
class SoftShadow : public QWidget {
public:
    explicit SoftShadow(QWidget& caster);

protected:
    bool eventFilter(QObject* caster, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Follow();

    QWidget& caster_;
};

}  // namespace orbelle::widgets
