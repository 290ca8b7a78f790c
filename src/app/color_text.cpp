#include "app/color_text.h"

#include <QRegularExpression>

namespace orbelle::app {

using graphics::Argb;

namespace {

constexpr int kHex = 16;
constexpr Argb kRgb = 0xFFFFFF;

}  // namespace

QString ColorText(Argb color, bool hasAlpha) {
    const int digits = hasAlpha ? 8 : 6;
    const Argb shown = hasAlpha ? color : color & kRgb;
    return '#' + QString::number(shown, kHex).rightJustified(digits, '0').toUpper();
}

std::optional<Argb> ParseColorText(const QString& text, bool hasAlpha, unsigned alpha) {
    QString digits = text.trimmed();
    if (digits.startsWith('#'))
        digits.remove(0, 1);
    if (digits.size() == 3)
        for (const int place : {2, 1, 0})
            digits.insert(place, digits[place]);
    // A sign and 0x would pass for parts of a number.
    static const QRegularExpression kDigits("^[0-9A-Fa-f]+$");
    bool isNumber = kDigits.match(digits).hasMatch();
    const Argb color = isNumber ? digits.toUInt(&isNumber, kHex) : 0;
    if (isNumber && digits.size() == 6)
        return graphics::SetAlphaByte(color, alpha);
    if (isNumber && digits.size() == 8 && hasAlpha)
        return color;
    return std::nullopt;
}

}  // namespace orbelle::app
