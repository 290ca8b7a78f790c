// A press of the pointer outside an open menu.
#pragma once

#include <QObject>

class QWidget;

namespace orbelle::app {

// Such a press closes the menu, or the list of a field, and does nothing else. By itself the
// toolkit does it again for what lies below on Windows, and version 6.4 beside the pointer.
class OutsidePress : public QObject {
public:
    explicit OutsidePress(QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace orbelle::app
