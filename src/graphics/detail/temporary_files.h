// What the system tells about files of temporary names and the processes that make them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orbelle::graphics::detail {

int OwnProcess();

// Also false when that can't be told.
bool IsGone(int process);

// Nothing: the system has none.
std::optional<std::uint64_t> RandomOfSystem();

// The names in the folder that begin and end so; none when it can't be read.
std::vector<std::string> NamesIn(const std::filesystem::path& folder, std::string_view front,
                                 std::string_view back);

// A file that a process has open stays: also one that can't be seen from here, in another container
// or on another machine.
void RemoveUnlessOpen(const std::filesystem::path& path);

}  // namespace orbelle::graphics::detail
