#include "app/settings.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QWidget>
#include <algorithm>

#include "app/settings_store.h"

namespace orbelle::app {
namespace {

constexpr int kMaximized = 2;  // the stored number of that window state

QRect ScreenFor(const QPoint& point) {
    const QScreen* screen = QGuiApplication::screenAt(point);
    return (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}

}  // namespace

Settings::Settings() {
    OpenStore(store_);
}

bool Settings::isEmpty() const {
    return store_ && store_->allKeys().isEmpty();
}

QVariant Settings::value(const QString& name) const {
    return store_ ? store_->value(name) : QVariant();
}

void Settings::setValue(const QString& name, const QVariant& value) {
    if (store_)
        store_->setValue(name, value);
}

void Settings::remove(const QString& name) {
    if (store_)
        store_->remove(name);
}

void Settings::clear() {
    if (store_)
        store_->clear();
}

graphics::Argb ReadColor(const Settings& settings, const QString& name) {
    // Without quotation marks the file's form of the text is a list.
    const QStringList parts = settings.value(name).toStringList().join(',').split(',');
    unsigned channels[4] = {};
    for (int i = 0; i < std::min<int>(4, static_cast<int>(parts.size())); ++i)
        channels[i] = parts[i].toUInt() & 0xFF;
    return graphics::MakeArgb(channels[0], channels[1], channels[2], channels[3]);
}

void WriteColor(Settings& settings, const QString& name, graphics::Argb color) {
    using namespace graphics;
    settings.setValue(name, QString("%1,%2,%3,%4")
                                .arg(AlphaOf(color))
                                .arg(RedOf(color))
                                .arg(GreenOf(color))
                                .arg(BlueOf(color)));
}

QRect MainWindowPlace(const QRect& stored, const QRect& screen) {
    const auto side = [](int value, int usual, int room) {
        return std::min(value > 0 ? value : usual, room);
    };
    const QSize size(side(stored.width(), kDefaultMainSize.width(), screen.width()),
                     side(stored.height(), kDefaultMainSize.height(), screen.height()));
    const QSize free = screen.size() - size;
    if (stored.topLeft().isNull())
        return {screen.topLeft() + QPoint(free.width() / 2, free.height() / 2), size};
    return {QPoint(std::clamp(stored.left(), screen.left(), screen.left() + free.width()),
                   std::clamp(stored.top(), screen.top(), screen.top() + free.height())),
            size};
}

void RestoreMainWindow(QWidget& window) {
    const Settings settings;
    const auto number = [&](const char* name) { return settings.value(name).toInt(); };
    const QRect stored(number("MainLeft"), number("MainTop"), number("MainWidth"),
                       number("MainHeight"));
    const QRect screen = ScreenFor(stored.topLeft());
    // The frame that the window system will add belongs on the screen too; where it stood before it
    // has its place.
    const int titleBar = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const bool stood = !stored.isEmpty() && !stored.topLeft().isNull() && screen.contains(stored);
    const QRect place =
        stood ? stored : MainWindowPlace(stored, screen.adjusted(0, 0, 0, -titleBar));
    window.resize(place.size());
    window.move(place.topLeft());
    if (number("MainState") == kMaximized)
        window.setWindowState(Qt::WindowMaximized);
}

void StoreMainWindow(const QWidget& window) {
    Settings settings;
    if (!window.isMaximized()) {
        settings.setValue("MainLeft", window.x());
        settings.setValue("MainTop", window.y());
        settings.setValue("MainWidth", window.width());
        settings.setValue("MainHeight", window.height());
    }
    settings.setValue("MainState", window.isMaximized() ? kMaximized : 0);
}

}  // namespace orbelle::app
