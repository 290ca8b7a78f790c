// Addresses of the product's web site, settings of the build, and the samples that come with it.
#pragma once

#include <QString>
#include <filesystem>

#include "app/window_actions.h"

namespace orbelle::app {

inline const QString kWebsite = QStringLiteral(ORBELLE_WEBSITE);
inline const QString kSampleIcons = QStringLiteral(ORBELLE_SAMPLE_ICONS);
inline const QString kMoreIcons = QStringLiteral(ORBELLE_MORE_ICONS);

// In the user's browser. The status line names the address: a browser may fail unseen. Where there
// is none, a message does.
void OpenLink(const WindowContext& context, const QString& address);

// In the user's file manager; a message with its path where there is none.
void OpenFolder(const WindowContext& context, const std::filesystem::path& folder);

// The folder Samples beside the program, or where an installation has put it, in the user's file
// manager; a message with its path where that is not possible.
void OpenSamples(const WindowContext& context);

}  // namespace orbelle::app
