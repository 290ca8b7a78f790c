// Runs the built program in a folder of its own.
#pragma once

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "graphics/codecs/image_files.h"
#include "graphics/file_io.h"
#include "support/pictures.h"
#include "support/temporary_folder.h"

namespace orbelle::cli {

struct Outcome {
    int Status = -1;  // of the exit; -1: the program was killed
    std::string Output;
    std::string Errors;

    bool operator==(const Outcome&) const = default;
};

inline void PrintTo(const Outcome& outcome, std::ostream* stream) {
    *stream << outcome.Status << " output \"" << outcome.Output << "\" errors \"" << outcome.Errors
            << '"';
}

inline const Outcome kSuccess{0, "", ""};

inline Outcome Failed(const std::string& message) {
    return {1, "", "orbelle-cli: " + message + "\n"};
}

inline Outcome WrongUsage(const std::string& message) {
    return {2, "", "orbelle-cli: " + message + "\n"};
}

class ProgramTest : public ::testing::Test {
protected:
    // The paths among the words are relative to `folder`.
    Outcome Run(std::vector<std::string> words, const std::string& input = "") {
        graphics::WriteFile(folder / "input",
                            std::vector<std::uint8_t>(input.begin(), input.end()));
        words.insert(words.begin(), "orbelle-cli");
        const pid_t child = fork();
        if (child == 0)
            BecomeProgram(words);
        int status = 0;
        waitpid(child, &status, 0);
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, Text("output"), Text("errors")};
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
    graphics::Bitmap Picture(const std::string& name) {
        return graphics::LoadImageFromFile(folder / name);
    }
    bool Exists(const std::string& name) { return std::filesystem::exists(folder / name); }

    testing::TemporaryFolder folder;

private:
    [[noreturn]] void BecomeProgram(std::vector<std::string>& words) {
        const auto redirect = [](const char* name, int flags, int target) {
            dup2(open(name, flags, 0600), target);
        };
        std::vector<char*> arguments;
        for (std::string& word : words)
            arguments.push_back(word.data());
        arguments.push_back(nullptr);
        if (chdir(folder.Path().c_str()) == 0) {
            redirect("input", O_RDONLY, STDIN_FILENO);
            redirect("output", O_WRONLY | O_CREAT | O_TRUNC, STDOUT_FILENO);
            redirect("errors", O_WRONLY | O_CREAT | O_TRUNC, STDERR_FILENO);
            setenv("HOME", folder.Path().c_str(), 1);
            setenv("XDG_CACHE_HOME", (folder / "cache").c_str(), 1);
            execv(ORBELLE_CLI_PROGRAM, arguments.data());
        }
        _exit(127);
    }

    std::string Text(const std::string& name) {
        const std::vector<std::uint8_t> bytes = Bytes(name);
        return {bytes.begin(), bytes.end()};
    }
};

}  // namespace orbelle::cli
