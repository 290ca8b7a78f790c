#include "formats/volf_reader.h"

#include <algorithm>
#include <array>
#include <vector>

#include "formats/document_limits.h"
#include "formats/volf_family.h"
#include "formats/volf_layers.h"
#include "formats/volf_layout.h"
#include "graphics/bitmap.h"
#include "graphics/little_endian.h"

namespace orbelle::formats {
namespace {

using document::Document;
using graphics::ByteReader;
using graphics::ByteSource;

constexpr std::size_t kMaxToldProblems = 3;

class Reader {
public:
    Reader(const ByteSource& file, std::int64_t maxPixels) : file_(file), allowance_(maxPixels) {}

    LoadedDocument Read();

private:
    void ReadHeader();
    std::string DamageOfLayers(const LayersRead& read) const;
    void NameLayers(std::vector<LayerName>& names, const std::vector<int>& places);

    const ByteSource& file_;
    std::int32_t count_ = 0;  // of layers, as the header says
    PixelAllowance allowance_;
    Document document_;
};

LoadedDocument Reader::Read() {
    ReadHeader();
    const LayersRead read =
        ReadLayers(file_, kVolfHeaderBytes, count_, allowance_, document_.Master);
    if (document_.Master.Layers.empty() && !read.Problems.empty())
        throw Error(read.Problems.front());
    std::string damage = DamageOfLayers(read);
    // Nobody knows where it begins behind layers that could not be read.
    if (read.IsComplete) {
        try {
            FamilyRead family = ReadFamily(file_, read.End, allowance_);
            document_.Sizes = std::move(family.Sizes);
            NameLayers(family.Names, read.Places);
        } catch (const Error& error) {
            damage += std::string(damage.empty() ? "" : "; ") +
                      "the artwork of single sizes could not be read: " + error.what();
        }
    }
    return {std::move(document_), damage};
}

// `places` are those of the master's layers in the file. Names of layers that are not there go.
void Reader::NameLayers(std::vector<LayerName>& names, const std::vector<int>& places) {
    for (LayerName& name : names) {
        const auto place = std::ranges::lower_bound(places, name.Layer);
        if (name.Size == document::Family::kMaster) {
            if (place != places.end() && *place == name.Layer)
                document_.Master.Layers[static_cast<std::size_t>(place - places.begin())].Name =
                    std::move(name.Name);
            continue;
        }
        const auto page = std::ranges::find(document_.Sizes, name.Size, &document::SizePage::Size);
        if (page == document_.Sizes.end() || name.Layer < 0 ||
            name.Layer >= page->Artwork.LayerCount())
            continue;
        page->Artwork.Layers[static_cast<std::size_t>(name.Layer)].Name = std::move(name.Name);
    }
}

std::string Reader::DamageOfLayers(const LayersRead& read) const {
    const std::vector<std::string>& problems = read.Problems;
    if (problems.empty())
        return {};
    const std::size_t told = std::min(problems.size(), kMaxToldProblems);
    std::string text;
    for (std::size_t i = 0; i < told; ++i)
        text += problems[i] + "; ";
    if (told < problems.size())
        text += "and " + std::to_string(problems.size() - told) + " more; ";
    return text + std::to_string(document_.Master.LayerCount()) + " of " + std::to_string(count_) +
           " layers could be read";
}

void Reader::ReadHeader() {
    if (!IsDocument(file_))
        throw InvalidFile();
    std::array<std::uint8_t, kVolfHeaderBytes> bytes{};
    const std::size_t there = file_.ReadAt(0, bytes);
    ByteReader header({bytes.data(), there});
    header.Take(kVolfMagic.size() + sizeof kVolfFormatNumber + kVolfTag.size());
    document::Page& page = document_.Master;
    page.Width = header.Read<std::int32_t>();
    page.Height = header.Read<std::int32_t>();
    document_.Background = header.Read<graphics::Argb>();
    count_ = std::max(header.Read<std::int32_t>(), 0);
    if (!graphics::IsBitmapSizeAllowed(std::max(page.Width, 1), std::max(page.Height, 1)))
        throw Error("the page is too large: " + std::to_string(page.Width) + " x " +
                    std::to_string(page.Height) + " pixels");
    allowance_.Take(PagePixels(page));
}

}  // namespace

InvalidFile::InvalidFile() : Error("Invalid File") {}

bool IsDocument(const ByteSource& file) {
    std::array<std::uint8_t, kVolfMagic.size()> start{};
    return file.ReadAt(0, start) == start.size() &&
           std::equal(start.begin(), start.end(), kVolfMagic.begin());
}

LoadedDocument DecodeDocument(const ByteSource& file, std::int64_t maxPixels) {
    return Reader(file, maxPixels).Read();
}

LoadedDocument LoadDocument(const std::filesystem::path& path, std::int64_t maxPixels) {
    const graphics::FileSource file(path);
    try {
        LoadedDocument loaded = DecodeDocument(file, maxPixels);
        file.RequireWasRead();
        if (!loaded.Damage.empty())
            loaded.Damage = graphics::FileError(path, loaded.Damage).what();
        return loaded;
    } catch (const InvalidFile&) {
        file.RequireWasRead();
        throw;
    } catch (const graphics::FileError&) {
        throw;
    } catch (const Error& error) {
        file.RequireWasRead();
        throw graphics::FileError(path, error.what());
    }
}

}  // namespace orbelle::formats
