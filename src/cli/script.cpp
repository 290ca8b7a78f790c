#include "cli/script.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace orbelle::cli {
namespace {

constexpr std::size_t kMaxScriptBytes = std::size_t{16} << 20;
constexpr std::string_view kBlanks = " \t\r";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool IsBlank(char c) {
    return kBlanks.find(c) != std::string_view::npos;
}

// `rest` begins with '#'.
bool BeginsWithColor(std::string_view rest) {
    const std::string_view digits = rest.substr(1, rest.find_first_of(kBlanks) - 1);
    return (digits.size() == 6 || digits.size() == 8) &&
           std::ranges::all_of(digits, [](unsigned char c) { return std::isxdigit(c) != 0; });
}

// Cuts the word off the line that begins with it.
std::string TakeWord(std::string_view& line) {
    std::string word;
    bool quoted = false;
    while (!line.empty() && (quoted || !IsBlank(line[0]))) {
        if (line[0] == '"')
            quoted = !quoted;
        else
            word += line[0];
        line.remove_prefix(1);
    }
    if (quoted)
        throw UsageError("a double quote is not closed");
    return word;
}

std::string ReadText(std::istream& script, const std::string& name) {
    std::string text;
    char part[1 << 14];
    while (script.read(part, sizeof part), script.gcount() > 0) {
        text.append(part, static_cast<std::size_t>(script.gcount()));
        if (text.size() > kMaxScriptBytes)
            throw UsageError(name + ": longer than 16 MiB");
    }
    if (script.bad())
        throw UsageError(name + ": can't be read");
    return text;
}

std::vector<std::string> WordsOf(std::string_view line) {
    if (line.find('\0') != std::string_view::npos)
        throw UsageError("a byte of 0; a script is plain text");
    return SplitLine(line);
}

std::vector<Call> ParseLine(const VerbLine& line) {
    std::vector<Call> calls = ParseCalls(line.Words);
    if (calls.size() > 1 && !line.Place.empty())
        throw UsageError(JoinWords(calls[1].Words) + ": a second verb on the line");
    return calls;
}

}  // namespace

std::vector<std::string> SplitLine(std::string_view line) {
    std::vector<std::string> words;
    while (true) {
        line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
        if (line.empty() || (line[0] == '#' && (words.empty() || !BeginsWithColor(line))))
            return words;
        words.push_back(TakeWord(line));
    }
}

std::vector<VerbLine> ReadScript(std::istream& script, const std::string& name) {
    const std::string text = ReadText(script, name);
    std::vector<VerbLine> lines;
    std::string_view rest = text;
    if (rest.starts_with(kByteOrderMark))
        rest.remove_prefix(kByteOrderMark.size());
    for (int number = 1; !rest.empty(); ++number) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        const std::string place = name + ':' + std::to_string(number) + ": ";
        try {
            if (std::vector<std::string> words = WordsOf(line); !words.empty())
                lines.push_back({std::move(words), place});
        } catch (const UsageError& error) {
            throw UsageError(place + error.what());
        }
    }
    return lines;
}

std::vector<Call> ParseLines(const std::vector<VerbLine>& lines) {
    std::vector<Call> calls;
    for (const VerbLine& line : lines) {
        try {
            for (Call& call : ParseLine(line)) {
                call.Place = line.Place;
                calls.push_back(std::move(call));
            }
        } catch (const UsageError& error) {
            throw UsageError(line.Place + error.what());
        }
    }
    return calls;
}

}  // namespace orbelle::cli
