// What the program remembers of its user between two runs.
#pragma once

#include <QRect>
#include <QSettings>
#include <QVariant>
#include <optional>

#include "graphics/color.h"

class QWidget;

namespace orbelle::app {

// A missing value reads as 0 or as the empty text. Where a file of another kind (a folder, a pipe)
// stands in the place of the settings, nothing is remembered and nothing is written.
class Settings {
public:
    Settings();

    // Nothing has been remembered yet.
    bool isEmpty() const;

    QVariant value(const QString& name) const;
    void setValue(const QString& name, const QVariant& value);
    void remove(const QString& name);
    void clear();

private:
    std::optional<QSettings> store_;
};

// The side that New offers, by its name in the settings.
inline constexpr char kNewWidth[] = "Width";
inline constexpr char kNewHeight[] = "Height";

// A colour as the text "alpha,red,green,blue" in decimal. Parts that are missing or no number read
// as 0.
graphics::Argb ReadColor(const Settings& settings, const QString& name);
void WriteColor(Settings& settings, const QString& name, graphics::Argb color);

inline constexpr QSize kDefaultMainSize(1100, 760);

// Where the main window goes, wholly on `screen`: a stored side of 0 takes the default, a stored
// corner at (0, 0) centres. All in logical pixels.
QRect MainWindowPlace(const QRect& stored, const QRect& screen);

// Position, size and state of the main window; the first two stay as stored while it is maximised.
void RestoreMainWindow(QWidget& window);
void StoreMainWindow(const QWidget& window);

}  // namespace orbelle::app
