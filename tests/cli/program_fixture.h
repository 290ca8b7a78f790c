// Runs the built program in a folder of its own.
#pragma once

#include <gmock/gmock.h>
#include <sys/wait.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "graphics/codecs/image_files.h"
#include "graphics/file_io.h"
#include "support/pictures.h"
#include "support/temporary_folder.h"

namespace orbelle::cli {

struct Outcome {
    int Status = -1;  // of the exit
    std::string Output;
    std::string Errors;

    bool operator==(const Outcome&) const = default;
};

inline void PrintTo(const Outcome& outcome, std::ostream* stream) {
    *stream << outcome.Status << " output \"" << outcome.Output << "\" errors \"" << outcome.Errors
            << '"';
}

inline const Outcome kSuccess{0, "", ""};

inline Outcome Failed(const std::string& message, int status = 1) {
    return {status, "", "orbelle-cli: " + message + "\n"};
}

inline Outcome WrongUsage(const std::string& message) {
    return Failed(message, 2);
}

class ProgramTest : public ::testing::Test {
protected:
    // Words as a shell takes them; paths among them are relative to `folder`.
    Outcome Run(const std::string& words, const std::string& input = "") {
        Write("input", {input.begin(), input.end()});
        const std::string command = "cd '" + folder.Path().string() +
                                    "' && HOME=$PWD XDG_CACHE_HOME=$PWD/cache "
                                    "XDG_STATE_HOME=$PWD/state '" ORBELLE_CLI_PROGRAM "' " +
                                    words + " <input >output 2>errors";
        const int status = std::system(command.c_str());
        return {WEXITSTATUS(status), Text("output"), Text("errors")};
    }

    void Write(const std::string& name, const graphics::Bitmap& picture) {
        graphics::WriteFile(folder / name, graphics::EncodePng(picture));
    }
    void Write(const std::string& name, const std::vector<std::uint8_t>& bytes) {
        graphics::WriteFile(folder / name, bytes);
    }
    std::vector<std::uint8_t> Bytes(const std::string& name) {
        return graphics::ReadFile(folder / name);
    }
    std::string Text(const std::string& name) {
        const std::vector<std::uint8_t> bytes = Bytes(name);
        return {bytes.begin(), bytes.end()};
    }
    graphics::Bitmap Picture(const std::string& name) {
        return graphics::LoadImageFromFile(folder / name);
    }
    bool Exists(const std::string& name) { return std::filesystem::exists(folder / name); }

    testing::TemporaryFolder folder;
};

}  // namespace orbelle::cli
