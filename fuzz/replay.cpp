// Runs all files of the given folders through one fuzz target. The name of each file is printed
// before its turn: after a crash or at the end of its time the last name is the culprit's.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "graphics/file_io.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int count, char** arguments) {
    constexpr unsigned kSecondsPerFile = 10;
    int files = 0;
    for (int i = 1; i < count; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(arguments[i])) {
            std::printf("%s\n", entry.path().c_str());
            std::fflush(stdout);
            const std::vector<std::uint8_t> bytes = orbelle::graphics::ReadFile(entry.path());
            alarm(kSecondsPerFile);
            LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
            alarm(0);
            ++files;
        }
    }
    std::printf("%d files\n", files);
    return files > 0 ? 0 : 1;
}
