#include "app/offered_data.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QImageReader>
#include <QMimeData>
#include <QUrl>
#include <algorithm>
#include <new>
#include <span>

#include "app/file_names.h"
#include "graphics/codecs/image_files.h"
#include "graphics/codecs/pixel_budget.h"
#include "graphics/errors.h"

namespace orbelle::app {
namespace {

graphics::Bitmap BitmapOf(QImage image) {
    graphics::CheckDeclaredSize(image.width(), image.height());
    image.convertTo(QImage::Format_ARGB32);
    graphics::Bitmap picture(image.width(), image.height());
    for (int y = 0; y < picture.Height(); ++y)
        std::copy_n(reinterpret_cast<const graphics::Argb*>(image.constScanLine(y)),
                    picture.Width(), picture.MutableRow(y));
    return picture;
}

// What we read ourselves; of several the first. Drawings come last: whoever offers pixels, too, has
// drawn them at the size that is meant.
constexpr const char* kOwnKinds[] = {"image/png", "image/bmp",  "image/jpeg",
                                     "image/gif", "image/webp", "image/svg+xml"};

// Kinds of ours are read as files are, with the same limits; others by the toolkit.
graphics::Bitmap Read(const QMimeData& data) {
    for (const char* kind : kOwnKinds) {
        const QByteArray bytes = data.hasFormat(kind) ? data.data(kind) : QByteArray();
        if (!bytes.isEmpty())
            return graphics::DecodeImage({reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                                          static_cast<std::size_t>(bytes.size())});
    }
    const auto image = qvariant_cast<QImage>(data.imageData());
    if (!image.isNull())
        return BitmapOf(image);
    // The toolkit, too, gives up where a picture is too large.
    for (const QString& kind : data.formats()) {
        if (!kind.startsWith("image/"))
            continue;
        QByteArray bytes = data.data(kind);
        QBuffer buffer(&bytes);
        const QSize size = QImageReader(&buffer).size();
        if (!size.isEmpty())
            graphics::CheckDeclaredSize(size.width(), size.height());
    }
    throw graphics::ImageError("the picture can't be read");
}

QByteArray LocalName(const QUrl& url) {
#ifdef Q_OS_UNIX
    // Names need not be UTF-8; the address has their bytes.
    return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
#else
    return BytesOf(PathOf(url.toLocalFile()));
#endif
}

OfferedFiles Sorted(const QList<QUrl>& urls) {
    OfferedFiles files;
    for (const QUrl& url : urls) {
        const QByteArray path = url.isLocalFile() ? LocalName(url) : QByteArray();
        if (!path.isEmpty() && !path.contains('\0'))
            files.Local += path;
        else if (!url.isLocalFile() && !url.isEmpty())
            files.Far += url.toDisplayString();
    }
    return files;
}

// None if any line is something else.
QList<QUrl> AddressesIn(const QString& text) {
    QList<QUrl> addresses;
    for (const QStringView line : QStringView(text).tokenize(u'\n', Qt::SkipEmptyParts)) {
        const QString address = line.trimmed().toString();
        if (address.isEmpty())
            continue;
        const QUrl url = QDir::isAbsolutePath(address) ? QUrl::fromLocalFile(address)
                                                       : QUrl(address, QUrl::StrictMode);
        const bool isKnown =
            url.isLocalFile() ||
            ((url.scheme() == "http" || url.scheme() == "https") && !url.host().isEmpty());
        if (!isKnown)
            return {};
        addresses += url;
    }
    return addresses;
}

}  // namespace

bool OffersPicture(const QMimeData& data) {
    return data.hasImage() ||
           std::ranges::any_of(kOwnKinds, [&](const char* kind) { return data.hasFormat(kind); });
}

OfferedPicture ReadOffered(const QMimeData& data) {
    try {
        return {Read(data), {}};
    } catch (const std::bad_alloc&) {
        return {{}, "There is not enough memory."};
    } catch (const std::exception& failure) {
        return {{}, failure.what()};
    }
}

const graphics::Bitmap& RequireReadable(const OfferedPicture& offered) {
    if (!offered.Problem.empty())
        throw Error(offered.Problem);
    return offered.Picture;
}

QByteArrayList LocalFiles(const QMimeData& data) {
    return Sorted(data.urls()).Local;
}

OfferedFiles FilesIn(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return Sorted(urls.isEmpty() ? AddressesIn(data.text()) : urls);
}

}  // namespace orbelle::app
