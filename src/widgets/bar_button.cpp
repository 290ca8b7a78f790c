#include "widgets/bar_button.h"

#include <QStringList>

namespace orbelle::widgets {

BarButton ParseBarButton(const QString& fields) {
    const QStringList values = fields.split(',');
    BarButton button;
    button.Index = values.value(0).toInt();
    button.Kind = values.value(1);
    button.Caption = values.value(2);
    button.ExtraFlag = values.value(3);
    button.ToolTip = values.value(4);
    button.ButtonType = values.value(5).toInt();
    button.Enabled = values.value(6).toInt() != 0;
    button.MenuCount = values.value(7).toInt();
    button.IsPressed = button.ButtonType == 1;
    return button;
}

}  // namespace orbelle::widgets
