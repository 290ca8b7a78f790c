#include "cli/words.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <sstream>
#include <utility>

#include "graphics/path_text.h"

namespace orbelle::cli {
namespace {

[[noreturn]] void Refuse(const char* name, const std::string& expected) {
    throw UsageError(std::string(name) + " must be " + expected);
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// What stands in a list of numbers, whether or not the list takes this one.
bool LooksLikeNumber(std::string_view word) {
    if (word.starts_with('-'))
        word.remove_prefix(1);
    return !word.empty() && IsDigit(word[0]);
}

std::optional<int> ParseInteger(std::string_view word) {
    int value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error == std::errc::invalid_argument || end != word.data() + word.size())
        return std::nullopt;
    if (error == std::errc::result_out_of_range)
        return word[0] == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    return value;
}

// How many letters have to be put in, left out, changed or exchanged with the next one.
std::size_t Distance(std::string_view a, std::string_view b) {
    // The rows of the last two letters of `a`, and of the present one.
    std::vector<std::size_t> before, last, row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j)
        row[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        before = std::exchange(last, row);
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t change = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, change});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[j] = std::min(row[j], before[j - 2] + 1);
        }
    }
    return row.back();
}

}  // namespace

std::string DidYouMean(std::string_view word, std::span<const std::string_view> names) {
    std::string small(word);
    for (char& c : small)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    // A letter of three may be wrong.
    std::size_t least = small.size() / 3 + 1;
    std::string_view nearest;
    if (small.size() > 2 && small.size() < 64) {
        for (const std::string_view name : names) {
            const std::size_t distance = Distance(small, name);
            if (distance < least) {
                least = distance;
                nearest = name;
            }
        }
    }
    return nearest.empty() ? "" : "; did you mean " + std::string(nearest) + "?";
}

std::string JoinWords(std::span<const std::string> words) {
    std::string line;
    for (const std::string& word : words) {
        const bool quoted = word.empty() || word.find_first_of(" \t") != std::string::npos;
        line.append(line.empty() ? "" : " ").append(quoted ? "\"" + word + "\"" : word);
    }
    return line;
}

bool Words::IsNumberNext() const {
    return !IsAtEnd() && LooksLikeNumber(Next());
}

const std::string& Words::Text(const char* name) {
    if (IsAtEnd())
        throw UsageError(std::string(name) + " is missing");
    return words_[taken_++];
}

int Words::Integer(const char* name, int least, int most) {
    const std::optional<int> value = ParseInteger(Text(name));
    if (!value)
        Refuse(name, "a whole number");
    if (*value < least || *value > most) {
        const bool bounded = most != std::numeric_limits<int>::max();
        Refuse(name, bounded ? "from " + std::to_string(least) + " to " + std::to_string(most)
                             : std::to_string(least) + " or more");
    }
    return *value;
}

std::vector<int> Words::Integers(const char* name, int least, int most, std::size_t maxCount) {
    std::vector<int> values{Integer(name, least, most)};
    while (IsNumberNext()) {
        if (values.size() == maxCount)
            throw UsageError("more than " + std::to_string(maxCount) + " numbers");
        values.push_back(Integer(name, least, most));
    }
    return values;
}

double Words::Number(const char* name, double least, double most) {
    const std::string& word = Text(name);
    double value = 0;
    const char* const end = word.data() + word.size();
    const auto result = std::from_chars(word.data(), end, value, std::chars_format::fixed);
    // Written so that not-a-number is refused, too.
    if (result.ec != std::errc() || result.ptr != end || !(value >= least && value <= most)) {
        std::ostringstream range;
        range << "a number from " << least << " to " << most;
        Refuse(name, range.str());
    }
    return value;
}

graphics::Argb Words::Color(const char* name) {
    const std::string& word = Text(name);
    const char* const first = word.data() + 1;
    const char* const end = word.data() + word.size();
    graphics::Argb color = 0;
    if ((word.size() != 7 && word.size() != 9) || word[0] != '#' ||
        std::from_chars(first, end, color, 16).ptr != end)
        Refuse(name, "a colour: #RRGGBB or #AARRGGBB");
    return word.size() == 7 ? graphics::SetAlphaByte(color, 255) : color;
}

FileName Words::Input(const char* name, FileRole kind) {
    files_.push_back({kind, ParseFileName(Text(name), name)});
    return files_.back().File;
}

FileName Words::Output(const char* name, std::span<const std::string_view> formats, FileRole kind) {
    FileName file = ParseFileName(Text(name), name);
    if (!file.Format.empty() && std::ranges::find(formats, file.Format) == formats.end()) {
        std::string list;
        for (const std::string_view format : formats)
            list.append(list.empty() ? "" : ", ").append(format);
        throw UsageError(std::string(name) + ": no " + file.Format + " is written here, but " +
                         list);
    }
    files_.push_back({kind, file});
    return file;
}

void Words::NoteSets(const std::filesystem::path& folder, std::vector<formats::IconSet> sets) {
    files_.push_back({FileRole::SetFolder, {{}, folder}, std::move(sets)});
}

std::filesystem::path Words::Path(const char* name) {
    const std::string& word = Text(name);
    if (word.empty())
        Refuse(name, "the name of a file");
    return graphics::PathOfUtf8(word);
}

std::size_t Words::Choice(const char* name, std::span<const std::string_view> choices) {
    const auto found = std::ranges::find(choices, Text(name));
    if (found == choices.end()) {
        std::string list;
        for (const std::string_view choice : choices)
            list.append(list.empty() ? "" : " or ").append(choice);
        Refuse(name, list);
    }
    return static_cast<std::size_t>(found - choices.begin());
}

}  // namespace orbelle::cli
