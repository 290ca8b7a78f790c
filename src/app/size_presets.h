// A row of usual sizes to take with one press.
#pragma once

#include <QWidget>

class QButtonGroup;

namespace orbelle::app {

// One stop for Tab; arrow keys go from one to the next.
class SizePresets : public QWidget {
    Q_OBJECT

public:
    explicit SizePresets(QWidget* parent = nullptr);

    // Behind the others. `name` is its tooltip, too.
    void Add(int side, const QString& text, const QString& name);

    // The one of that side is pressed, if there is any.
    void Show(int side);

signals:
    void Chosen(int side);

private:
    QButtonGroup* buttons_;
};

}  // namespace orbelle::app
