// What another program offers by the clipboard or by a drop.
#pragma once

#include <QByteArrayList>
#include <QStringList>
#include <string>

#include "graphics/bitmap.h"

class QMimeData;

namespace orbelle::app {

struct OfferedPicture {
    graphics::Bitmap Picture;
    std::string Problem;  // why it could not be read; then there is no picture
};

// Of a kind that we or the toolkit can read.
bool OffersPicture(const QMimeData& data);
// A drawing has the size that files have where nothing is said of it.
OfferedPicture ReadOffered(const QMimeData& data);

// Throws Error with the problem if there is one.
const graphics::Bitmap& RequireReadable(const OfferedPicture& offered);

// The paths of local files as bytes (file_names.h), in the order given.
QByteArrayList LocalFiles(const QMimeData& data);

struct OfferedFiles {
    QByteArrayList Local;  // as above
    QStringList Far;       // addresses of what is not on this computer

    bool IsEmpty() const { return Local.isEmpty() && Far.isEmpty(); }
};

// The files that addresses name or, where there are none, a text of which each line is an address
// or a whole path.
OfferedFiles FilesIn(const QMimeData& data);

}  // namespace orbelle::app
