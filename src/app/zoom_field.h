// The zoom as a number that is typed or taken from a list.
#pragma once

#include <QComboBox>

namespace orbelle::app {

class ZoomField : public QComboBox {
    Q_OBJECT

public:
    explicit ZoomField(QWidget* parent = nullptr);

    // Nothing is shown at 0. What is being typed stays.
    void ShowZoom(double zoom);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    void showPopup() override;

signals:
    void ZoomWanted(double zoom);
    void FitWanted();                // the whole page
    void StepWanted(int direction);  // +1 or -1, by the keys up and down
    void Finished();                 // the keys may go elsewhere

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Choose(int entry);
    void CommitText();
    void ShowText();

    double zoom_ = 0;
};

}  // namespace orbelle::app
