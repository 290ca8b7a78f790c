// "Undo Crystal": what a menu entry or a button takes back or does again.
#pragma once

#include <QString>
#include <string_view>

namespace orbelle::app {

// The verb alone when there is no step.
inline QString StepCaption(const QString& verb, std::string_view step) {
    if (step.empty())
        return verb;
    return verb + ' ' + QString::fromUtf8(step.data(), static_cast<qsizetype>(step.size()));
}

}  // namespace orbelle::app
