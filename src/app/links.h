// Addresses of the product's web site, settings of the build, and the samples that come with it.
#pragma once

#include <QString>

namespace orbelle::app {

inline const QString kWebsite = QStringLiteral(ORBELLE_WEBSITE);
inline const QString kSampleIcons = QStringLiteral(ORBELLE_SAMPLE_ICONS);
inline const QString kMoreIcons = QStringLiteral(ORBELLE_MORE_ICONS);

// In the user's browser.
void OpenLink(const QString& address);

// The folder Samples beside the program, or where an installation has put it, in the user's file
// manager. False: there is none.
bool OpenSamples();

}  // namespace orbelle::app
