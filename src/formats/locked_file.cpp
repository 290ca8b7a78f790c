#include "formats/locked_file.h"

#include "graphics/errors.h"

namespace orbelle::formats {

std::vector<std::uint8_t> LockedFile::Read(std::uint64_t from, std::uint64_t count) {
    if (from > Size() || count > Size() - from)
        throw graphics::FileError(path_, "the file is cut short");
    std::vector<std::uint8_t> bytes(count);
    for (std::size_t done = 0; done < bytes.size();) {
        const std::size_t read = ReadAt(from + done, std::span(bytes).subspan(done));
        if (read == 0)
            throw graphics::FileError(path_, "the file is cut short");
        done += read;
    }
    return bytes;
}

void LockedFile::Append(std::span<const std::uint8_t> bytes) {
    const std::uint64_t end = Size();
    try {
        for (std::size_t done = 0; done < bytes.size();)
            done += WriteAt(end + done, bytes.subspan(done));
        Flush();
    } catch (...) {
        // What is left there is a record cut short, which a reader passes over.
        CutTo(end);
        throw;
    }
}

}  // namespace orbelle::formats
