#include "app/core_words.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <iterator>
#include <optional>
#include <vector>

#include "app/core_texts.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

std::optional<QString> TranslationOf(const QString& text);

QString TranslatedOrSame(const QString& text) {
    return TranslationOf(text).value_or(text);
}

// An entry with placeholders, and what stands for which of them: "%2" -> 2.
struct Pattern {
    const CoreText* Entry;
    std::vector<int> Places;
    QRegularExpression Expression;
};

Pattern PatternOf(const CoreText& entry) {
    Pattern pattern{&entry, {}, {}};
    const QString text = entry.Text;
    QString expression;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const int place = text[i] == '%' && i + 1 < text.size() ? text[i + 1].digitValue() : -1;
        if (place < 1) {
            expression += QRegularExpression::escape(text.mid(i, 1));
            continue;
        }
        pattern.Places.push_back(place);
        const bool isText = QString(entry.Texts).contains(text[i + 1]);
        expression += isText ? "(.+?)" : "(-?[0-9][-0-9 x,]*)";
        ++i;
    }
    pattern.Expression.setPattern(QRegularExpression::anchoredPattern(expression));
    pattern.Expression.setPatternOptions(QRegularExpression::DotMatchesEverythingOption);
    return pattern;
}

const std::vector<Pattern>& Patterns() {
    static const std::vector<Pattern> patterns = [] {
        std::vector<Pattern> made;
        for (const CoreText& entry : kCoreTexts)
            if (QString(entry.Text).contains("%1"))
                made.push_back(PatternOf(entry));
        return made;
    }();
    return patterns;
}

QString Filled(const Pattern& pattern, const QRegularExpressionMatch& match) {
    const QString text = QCoreApplication::translate("Core", pattern.Entry->Text);
    QString filled;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const int place = text[i] == '%' && i + 1 < text.size() ? text[i + 1].digitValue() : -1;
        const auto found = std::ranges::find(pattern.Places, place);
        if (found == pattern.Places.end()) {
            filled += text[i];
            continue;
        }
        const QString part = match.captured(static_cast<int>(found - pattern.Places.begin()) + 1);
        const bool isText = QString(pattern.Entry->Texts).contains(text[i + 1]);
        filled += isText ? TranslatedOrSame(part) : part;
        ++i;
    }
    return filled;
}

// Of one message.
std::optional<QString> TranslationOfWhole(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    if (std::ranges::any_of(kCoreTexts, [&](const CoreText& entry) { return bytes == entry.Text; }))
        return QCoreApplication::translate("Core", bytes.constData());
    for (const Pattern& pattern : Patterns())
        if (const auto match = pattern.Expression.match(text); match.hasMatch())
            return Filled(pattern, match);
    return std::nullopt;
}

// Of one that may stand behind the name of a file.
std::optional<QString> TranslationBehindName(const QString& text) {
    if (auto whole = TranslationOfWhole(text))
        return whole;
    const QString colon = ": ";
    for (qsizetype i = text.indexOf(colon); i >= 0; i = text.indexOf(colon, i + 1)) {
        const qsizetype start = i + colon.size();
        if (const auto message = TranslationOfWhole(text.mid(start)))
            return text.left(start) + *message;
    }
    return std::nullopt;
}

// Of one or several.
std::optional<QString> TranslationOf(const QString& text) {
    if (auto one = TranslationOfWhole(text))
        return one;
    QStringList parts = text.split("; ");
    bool isKnown = false;
    for (QString& part : parts) {
        const auto translated = TranslationBehindName(part);
        isKnown |= translated.has_value();
        part = translated.value_or(part);
    }
    return isKnown ? std::optional(parts.join("; ")) : std::nullopt;
}

}  // namespace

QString TranslatedText(std::string_view text) {
    QString own = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    // Most commands have nothing to tell, and in English there is nothing to look for.
    if (own.isEmpty() || NumberLocale().language() == QLocale::English)
        return own;
    return TranslatedOrSame(own);
}

}  // namespace orbelle::app
