#include "formats/volf_store.h"

#include <algorithm>
#include <cstring>

#include "formats/document_limits.h"
#include "formats/volf_layout.h"
#include "formats/volf_names.h"
#include "graphics/checksum.h"
#include "graphics/codecs/image_files.h"
#include "graphics/errors.h"
#include "graphics/file_io.h"
#include "graphics/little_endian.h"
#include "graphics/parallel.h"

namespace orbelle::formats {
namespace {

using document::Document;
using document::IconLayer;
using graphics::Append;
using graphics::RectF;

void AppendRect(std::vector<std::uint8_t>& file, const RectF& rect) {
    Append<float>(file, rect.X);
    Append<float>(file, rect.Y);
    Append<float>(file, rect.Width);
    Append<float>(file, rect.Height);
}

void AppendFlag(std::vector<std::uint8_t>& file, bool flag) {
    Append<std::int16_t>(file, flag ? -1 : 0);
}

// Up to the picture.
void AppendLayer(std::vector<std::uint8_t>& file, const IconLayer& layer) {
    for (int slider : {layer.Hue, layer.Contrast, layer.Brightness, layer.Saturation})
        Append<std::int32_t>(file, slider);
    Append<std::int32_t>(file, layer.ImageHeight);
    Append<float>(file, layer.Opacity);
    AppendRect(file, layer.BaseRect);
    Append<std::int32_t>(file, layer.ImageWidth);
    AppendRect(file, layer.Rect);
    Append<std::int32_t>(file, layer.ScaleValue);
    AppendFlag(file, layer.Visible);
    AppendFlag(file, layer.ClipNextLayer);
    Append<std::int32_t>(file, 0);  // the path's place; paths are not kept
}

// The layers of a page, and where their pictures belong.
void AppendLayers(DocumentFrame& frame, const document::Page& page) {
    Append<std::int32_t>(frame.Bytes, page.LayerCount());
    for (const IconLayer& layer : page.Layers) {
        AppendLayer(frame.Bytes, layer);
        frame.PictureAt.push_back(static_cast<std::uint32_t>(frame.Bytes.size()));
    }
}

// Length and checksum come when it is filled.
void AppendFamily(DocumentFrame& frame, const Document& document,
                  const std::vector<LayerName>& names) {
    std::vector<std::uint8_t>& file = frame.Bytes;
    file.insert(file.end(), kFamilyMagic.begin(), kFamilyMagic.end());
    Append<std::uint16_t>(file, kFamilyVersion);
    Append<std::uint32_t>(file, 0);
    Append<std::uint32_t>(file, 0);
    Append<std::int32_t>(file, static_cast<std::int32_t>(document.Sizes.size()));
    for (const document::SizePage& page : document.Sizes) {
        Append<std::int32_t>(file, page.Size);
        AppendLayers(frame, page.Artwork);
    }
    AppendNames(file, names);
}

// Where the family begins in a frame; its end where there is none.
std::size_t FamilyPlace(const DocumentFrame& frame) {
    const auto layers = graphics::NumberAt<std::int32_t>(frame.Bytes, kVolfLayerCountAt);
    const std::size_t record = kVolfLayerBytes - kVolfLengthBytes;
    return kVolfHeaderBytes + record * static_cast<std::size_t>(std::max(layers, 0));
}

void SealFamily(std::vector<std::uint8_t>& file, std::size_t family) {
    const std::size_t content = family + kFamilyHeadBytes;
    if (file.size() < content)
        return;
    const auto put = [&](std::size_t place, std::uint32_t number) {
        std::memcpy(file.data() + family + place, &number, sizeof number);
    };
    put(kFamilyLengthAt, static_cast<std::uint32_t>(file.size() - content));
    put(kFamilyChecksumAt, graphics::Crc32(std::span(file).subspan(content)));
}

void AppendPicture(std::vector<std::uint8_t>& file, const std::vector<std::uint8_t>& png) {
    Append<std::int32_t>(file, static_cast<std::int32_t>(png.size()));
    file.insert(file.end(), png.begin(), png.end());
    file.push_back(0);
}

}  // namespace

std::vector<const IconLayer*> LayersOf(const Document& document) {
    std::vector<const IconLayer*> layers;
    for (const document::Page* page : document.Pages()) {
        for (const IconLayer& layer : page->Layers)
            layers.push_back(&layer);
    }
    return layers;
}

std::vector<std::uint8_t> EncodePicture(const IconLayer& layer) {
    return EncodePng(CopyBitmap(layer.Image, layer.ImageWidth, layer.ImageHeight));
}

DocumentFrame EncodeFrame(const Document& document) {
    DocumentFrame frame{{kVolfMagic.begin(), kVolfMagic.end()}, {}};
    std::vector<std::uint8_t>& file = frame.Bytes;
    Append<std::uint16_t>(file, kVolfFormatNumber);
    file.insert(file.end(), kVolfTag.begin(), kVolfTag.end());
    Append<std::int32_t>(file, document.Master.Width);
    Append<std::int32_t>(file, document.Master.Height);
    Append<graphics::Argb>(file, document.Background);
    AppendLayers(frame, document.Master);
    const std::vector<LayerName> names = NamesOf(document);
    if (!document.Sizes.empty() || !names.empty())
        AppendFamily(frame, document, names);
    return frame;
}

std::vector<std::uint8_t> FillFrame(const DocumentFrame& frame,
                                    std::span<const std::vector<std::uint8_t>> pictures) {
    if (pictures.size() != frame.PictureAt.size())
        throw Error("the pictures of the document are not complete");
    std::vector<std::uint8_t> file;
    std::size_t done = 0, family = 0;
    const std::size_t familyPlace = FamilyPlace(frame);
    const auto copyUpTo = [&](std::size_t end) {
        if (end < done || end > frame.Bytes.size())
            throw Error("the pictures of the document have no place");
        if (done <= familyPlace && familyPlace < end)
            family = file.size() + familyPlace - done;
        file.insert(file.end(), frame.Bytes.begin() + static_cast<std::ptrdiff_t>(done),
                    frame.Bytes.begin() + static_cast<std::ptrdiff_t>(end));
        done = end;
    };
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        copyUpTo(frame.PictureAt[i]);
        AppendPicture(file, pictures[i]);
    }
    copyUpTo(frame.Bytes.size());
    if (family != 0)
        SealFamily(file, family);
    return file;
}

std::vector<std::uint8_t> EncodeDocument(const Document& document) {
    // The pictures take nearly all of the time.
    const std::vector<const IconLayer*> layers = LayersOf(document);
    std::vector<std::vector<std::uint8_t>> pngs(layers.size());
    graphics::ForEachInParallel(pngs.size(),
                                [&](std::size_t i) { pngs[i] = EncodePicture(*layers[i]); });
    return FillFrame(EncodeFrame(document), pngs);
}

void SaveDocument(const std::filesystem::path& path, const Document& document) {
    RequireCanBeOpened(document);
    graphics::WriteFile(path, EncodeDocument(document));
}

}  // namespace orbelle::formats
