#include <QApplication>
#include <QFontDatabase>

#include "app/desktop_font.h"

namespace orbelle::app {

constexpr int kPoints = 9;  // as the system's

// The toolkit takes over the font of messages. Where the system is an imitation and lacks its own
// fonts, something with serifs would come in their place.
void UseDesktopFont() {
    if (QFontDatabase::hasFamily("Segoe UI"))
        return;
    QFont font(QStringList{"Tahoma", "DejaVu Sans", "Liberation Sans"});
    font.setPointSize(kPoints);
    QApplication::setFont(font);
}

}  // namespace orbelle::app
