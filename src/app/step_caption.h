// "Undo Crystal": what a menu entry or a button takes back or does again.
#pragma once

#include <QString>
#include <string_view>

#include "app/core_words.h"

namespace orbelle::app {

// `alone` when there is no step, else `withStep` with the step in place of its %1.
inline QString StepCaption(const QString& alone, const QString& withStep, std::string_view step) {
    if (step.empty())
        return alone;
    return withStep.arg(TranslatedText(step));
}

}  // namespace orbelle::app
