#include "graphics/file_io.h"

#include <algorithm>
#include <optional>
#include <random>
#include <system_error>

#include "graphics/byte_source.h"
#include "graphics/detail/output_file.h"
#include "graphics/detail/temporary_names.h"
#include "graphics/errors.h"
#include "graphics/path_text.h"
#include "graphics/state_folder.h"
#include "graphics/system_words.h"
#include "graphics/unfinished_files.h"
#include "graphics/work_places.h"

namespace orbelle::graphics {
namespace {

namespace fs = std::filesystem;
using detail::OutputFile;
using Bytes = std::span<const std::uint8_t>;

enum class Durability { OnDisk, InCache };

// As far as the user's mask leaves them.
constexpr fs::perms kNewPermissions = fs::perms(0666);
// Of a copy, which is the user's own affair.
constexpr fs::perms kCopyPermissions = fs::perms::owner_read | fs::perms::owner_write;

// As many as Linux follows.
constexpr int kMaxLinks = 40;

// Such a link leads to an open file, which may have no name at all.
bool IsDescriptor(const fs::path& path) {
    const fs::path folder = path.parent_path();
    return folder == u8"/dev/fd" ||
           (folder.filename() == u8"fd" && Utf8Of(folder).starts_with("/proc/"));
}

// What a chain of links ends at, which need not exist.
fs::path FollowLinks(const fs::path& path) {
    fs::path target = path;
    for (int links = 0; !IsDescriptor(target) && fs::is_symlink(fs::symlink_status(target));
         ++links) {
        if (links == kMaxLinks)
            throw std::system_error(std::make_error_code(std::errc::too_many_symbolic_link_levels));
        target = target.parent_path() / fs::read_symlink(target);
    }
    return target;
}

void Fill(OutputFile& file, Bytes bytes, const OutputFile* old, Durability durability) {
    // First who may read it, then what there is to read.
    if (old)
        file.TakeAttributesOf(*old);
    file.Write(bytes);
    if (durability == Durability::OnDisk)
        file.Flush();
}

// A file without a name leaves nothing behind, whatever ends us. False where there is no such
// thing; then nothing has happened.
bool PutUnnamed(const fs::path& folder, const fs::path& target, Bytes bytes, const OutputFile* old,
                fs::perms permissions, Durability durability) {
    std::optional<OutputFile> file = OutputFile::Unnamed(folder, permissions);
    if (!file)
        return false;
    Fill(*file, bytes, old, durability);
    if (!old && file->LinkTo(target))
        return true;
    UnfinishedFile name(detail::TemporaryNameIn(folder));
    if (!file->LinkTo(name.Path()))
        return false;
    fs::rename(name.Path(), target);
    name.Finish();
    return true;
}

// Closes `old`: some systems give nobody the name of a file that is open.
void PutNamed(const fs::path& folder, const fs::path& target, Bytes bytes,
              std::optional<OutputFile>& old, fs::perms permissions, Durability durability) {
    UnfinishedFile name(detail::TemporaryNameIn(folder));
    OutputFile file = OutputFile::New(name.Path(), permissions);
    Fill(file, bytes, old ? &*old : nullptr, durability);
    file.Close();
    old.reset();
    detail::TakeName(name.Path(), target);
    name.Finish();
}

// A new file under the target's name. `old` is the one that has it now.
void Put(const fs::path& target, Bytes bytes, std::optional<OutputFile>& old, fs::perms permissions,
         Durability durability) {
    // Nothing may fail once the file has its name.
    const fs::path folder = target.has_parent_path() ? target.parent_path() : u8".";
    detail::RemoveStaleFiles(folder);
    if (!PutUnnamed(folder, target, bytes, old ? &*old : nullptr, permissions, durability))
        PutNamed(folder, target, bytes, old, permissions, durability);
    if (durability == Durability::OnDisk)
        detail::FlushFolder(folder);
}

void PutNew(const fs::path& target, Bytes bytes, fs::perms permissions, Durability durability) {
    std::optional<OutputFile> none;
    Put(target, bytes, none, permissions, durability);
}

// The folder does not let us, though the file may.
bool IsRefusal(const std::error_code& error) {
    constexpr std::errc kRefusals[] = {
        std::errc::permission_denied, std::errc::operation_not_permitted,
        std::errc::read_only_file_system, std::errc::device_or_resource_busy,
        std::errc::cross_device_link};
    return std::ranges::any_of(kRefusals, [&](std::errc refusal) { return error == refusal; });
}

// With the old name at its end, so that it can be told and opened.
fs::path NameOfCopy(const fs::path& target) {
    constexpr std::size_t kLongest = 200;
    const std::string name = Utf8Of(target.filename());
    const fs::path folder = SaveCopiesFolder();
    std::error_code error;
    fs::create_directory(folder, error);
    if (error)
        throw FileError(folder, WordsFor(error));
    return folder / PathOfUtf8(std::to_string(std::random_device()()) + '-' +
                               name.substr(name.size() - std::min(name.size(), kLongest)));
}

// What has several names, or may not be replaced. Whatever happens, either the file or a copy in
// the state folder is whole.
void WriteInPlace(const fs::path& target, OutputFile& file, Bytes bytes, const std::string& why) {
    const auto refuse = [&](const std::string& problem) {
        throw Error(why + ", and a copy for writing in place can't be made: " + problem);
    };
    std::optional<UnfinishedFile> copy;
    try {
        copy.emplace(NameOfCopy(target));
        PutNew(copy->Path(), bytes, kCopyPermissions, Durability::OnDisk);
    } catch (const std::system_error& error) {
        refuse(WordsFor(error.code()));
    } catch (const Error& error) {
        refuse(error.what());
    }
    file.Reserve(bytes.size());
    const HeldSignals held;
    copy->Finish();
    try {
        file.Write(bytes);
        file.CutTo(bytes.size());
        file.Flush();
        file.Close();
    } catch (const std::system_error& error) {
        throw Error(WordsFor(error.code()) + ". What was to be saved is in " +
                    Utf8Of(copy->Path()));
    }
    std::error_code ignored;
    fs::remove(copy->Path(), ignored);
}

void Replace(const fs::path& target, Bytes bytes, Durability durability) {
    // Taking a file's name needs no right to write to the file itself; ask for it all the same.
    std::optional<OutputFile> old(OutputFile::Existing(target));
    if (old->HasOtherNames())
        return WriteInPlace(target, *old, bytes, "it has several names");
    try {
        Put(target, bytes, old, old->Permissions(), durability);
    } catch (const std::system_error& error) {
        if (!IsRefusal(error.code()))
            throw;
        if (!old)
            old.emplace(OutputFile::Existing(target));
        WriteInPlace(target, *old, bytes, WordsFor(error.code()));
    }
}

void WriteStream(const fs::path& path, Bytes bytes) {
    OutputFile stream = OutputFile::Stream(path);
    stream.Write(bytes);
    stream.Close();
}

void Write(const fs::path& path, Bytes bytes, Durability durability) {
    try {
        const bool isThere = fs::exists(path);
        const fs::path target = FollowLinks(path);
        if (detail::IsStream(path) || (isThere && IsDescriptor(target)))
            WriteStream(path, bytes);
        else if (isThere)
            Replace(target, bytes, durability);
        else
            PutNew(target, bytes, kNewPermissions, durability);
    } catch (const std::system_error& error) {
        throw FileError(path, WordsFor(error.code()));
    } catch (const Error& error) {
        throw FileError(path, error.what());
    }
}

}  // namespace

std::vector<std::uint8_t> ReadFile(const fs::path& path) {
    const FileSource file(path);
    std::vector<std::uint8_t> bytes(file.Size());
    bytes.resize(file.ReadAt(0, bytes));
    file.RequireWasRead();
    return bytes;
}

void WriteFile(const fs::path& path, std::span<const std::uint8_t> bytes) {
    const WorkBreak untilOnDisk;
    Write(path, bytes, Durability::OnDisk);
}

void WriteScratchFile(const fs::path& path, std::span<const std::uint8_t> bytes) {
    Write(path, bytes, Durability::InCache);
}

}  // namespace orbelle::graphics
