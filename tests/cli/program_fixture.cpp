#include "program_fixture.h"

#include <utility>

#include "graphics/file_io.h"

namespace orbelle::cli {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> SplitWords(const std::string& text) {
    std::vector<std::string> words;
    bool isInWord = false;
    char quote = 0;
    for (const char c : text) {
        if (quote == 0 && (c == ' ' || c == '\n')) {
            isInWord = false;
            continue;
        }
        if (!std::exchange(isInWord, true))
            words.emplace_back();
        if (quote == 0 && (c == '\'' || c == '"'))
            quote = c;
        else if (c == quote)
            quote = 0;
        else
            words.back() += c;
    }
    return words;
}

}  // namespace

Outcome ProgramTest::Run(const std::string& words, const std::string& input) {
    Write("input", {input.begin(), input.end()});
    const testing::ProgramCall call = Call(words);
    const int status = testing::RunProgram(call);
    return {status, call.Output == u8"output" ? Text("output") : "", Text("errors")};
}

testing::ProgramCall ProgramTest::Call(const std::string& words) const {
    testing::ProgramCall call{.File = fs::absolute(graphics::PathOfUtf8(ORBELLE_CLI_PROGRAM)),
                              .Arguments = {},
                              .Folder = folder.Path(),
                              .Variables = testing::EnvironmentIn(folder.Path()),
                              .Input = u8"input",
                              .Output = u8"output",
                              .Errors = u8"errors"};
    for (const std::string& word : SplitWords(words)) {
        if (word.starts_with('<'))
            call.Input = graphics::PathOfUtf8(word.substr(1));
        else if (word.starts_with('>'))
            call.Output = graphics::PathOfUtf8(word.substr(1));
        else
            call.Arguments.push_back(word);
    }
    return call;
}

void ProgramTest::Write(const std::string& name, const graphics::Bitmap& picture) const {
    graphics::WriteFile(folder / name, graphics::EncodePng(picture));
}

void ProgramTest::Write(const std::string& name, const std::vector<std::uint8_t>& bytes) const {
    graphics::WriteFile(folder / name, bytes);
}

std::vector<std::uint8_t> ProgramTest::Bytes(const std::string& name) const {
    return graphics::ReadFile(folder / name);
}

std::string ProgramTest::Text(const std::string& name) const {
    const std::vector<std::uint8_t> bytes = Bytes(name);
    return {bytes.begin(), bytes.end()};
}

graphics::Bitmap ProgramTest::Picture(const std::string& name) const {
    return graphics::LoadImageFromFile(folder / name);
}

bool ProgramTest::Exists(const std::string& name) const {
    return fs::exists(folder / name);
}

}  // namespace orbelle::cli
