// Whole files in and out.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

namespace orbelle::graphics {

// All of it at once, for files that are small; byte_source.h has what reads the others. Throws
// FileError when the file is missing, unreadable, no regular file or above kMaxFileBytes.
std::vector<std::uint8_t> ReadFile(const std::filesystem::path& path);

// Replaces the file in one step: the bytes go to a new file beside it, to the disk, and under its
// name, so a failure (FileError with the path and the system's reason) leaves the old file whole.
// Owner, group, permissions, access lists, extended attributes and links stay, as far as we may set
// them.
//
// A file with several names, or in a folder where we may not replace it, is written in place, after
// a whole copy of the new bytes stands in StateFolder()/saves; a failure's message names that copy.
// Pipes and devices are written to plainly, and a FIFO without a reader waits for one.
void WriteFile(const std::filesystem::path& path, std::span<const std::uint8_t> bytes);

// The same for a file that a power cut may take, which costs no wait for the disk.
void WriteScratchFile(const std::filesystem::path& path, std::span<const std::uint8_t> bytes);

}  // namespace orbelle::graphics
