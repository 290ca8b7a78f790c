// Runs the built program in a folder of its own.
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "graphics/codecs/image_files.h"
#include "support/pictures.h"
#include "support/system.h"
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

// Names of files are UTF-8, as all text.
class ProgramTest : public ::testing::Test {
protected:
    // Words as a shell takes them: blanks part them unless they stand between quotes, and `<FILE`,
    // `>FILE` put files in place of the input and of the output. Paths are relative to `folder`.
    Outcome Run(const std::string& words, const std::string& input = "");
    // What Run starts.
    testing::ProgramCall Call(const std::string& words) const;

    void Write(const std::string& name, const graphics::Bitmap& picture) const;
    void Write(const std::string& name, const std::vector<std::uint8_t>& bytes) const;
    std::vector<std::uint8_t> Bytes(const std::string& name) const;
    std::string Text(const std::string& name) const;
    graphics::Bitmap Picture(const std::string& name) const;
    bool Exists(const std::string& name) const;

    testing::TemporaryFolder folder;
};

}  // namespace orbelle::cli
