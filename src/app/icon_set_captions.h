// What the platforms of icon sets are called.
#pragma once

#include "formats/icon_sets.h"
#include "widgets/words.h"

namespace orbelle::app {

// In the order of formats::IconSet; & stands before the letter that chooses one.
inline constexpr const char* kIconSetCaptions[] = {
    QT_TRANSLATE_NOOP("Words", "&Windows"), QT_TRANSLATE_NOOP("Words", "&macOS"),
    QT_TRANSLATE_NOOP("Words", "&Linux"),   QT_TRANSLATE_NOOP("Words", "We&b"),
    QT_TRANSLATE_NOOP("Words", "&Android"), QT_TRANSLATE_NOOP("Words", "i&OS")};
static_assert(std::size(kIconSetCaptions) == std::size(formats::kIconSetNames));

inline QString NameOf(formats::IconSet set) {
    return Words::tr(kIconSetCaptions[static_cast<std::size_t>(set)]).remove('&');
}

}  // namespace orbelle::app
