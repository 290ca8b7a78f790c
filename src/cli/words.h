// The arguments of verbs: words, checked and turned into numbers, colours and paths.
#pragma once

#include <filesystem>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/file_name.h"
#include "cli/usage_error.h"
#include "graphics/color.h"

namespace orbelle::cli {

// The words as they could be typed: those with blanks, and empty ones, between double quotes.
std::string JoinWords(std::span<const std::string> words);

// "; did you mean NAME?" with the name that a misspelt word is likely to stand for; empty when none
// is near. Capitals don't matter.
std::string DidYouMean(std::string_view word, std::span<const std::string_view> names);

// Reads arguments one after the other; a reader takes the next word. All throw UsageError when it
// is missing, malformed or out of range; `name` is the argument's name for the message.
class Words {
public:
    explicit Words(std::span<const std::string> words) : words_(words) {}

    bool IsAtEnd() const { return taken_ == words_.size(); }
    // Only before the end.
    const std::string& Next() const { return words_[taken_]; }
    // What follows the next word; empty at the end.
    std::string_view AfterNext() const {
        return taken_ + 1 < words_.size() ? words_[taken_ + 1] : std::string_view();
    }
    // The next word is one that a list of numbers goes on with.
    bool IsNumberNext() const;
    std::size_t Taken() const { return taken_; }

    // The next word as it stands.
    const std::string& Text(const char* name);

    // A whole number from `least` to `most`. One that no int holds counts as the nearest int.
    int Integer(const char* name, int least = std::numeric_limits<int>::min(),
                int most = std::numeric_limits<int>::max());

    // The same for all words up to the first that is no number: at least one, up to `maxCount`.
    std::vector<int> Integers(const char* name, int least, int most,
                              std::size_t maxCount = std::numeric_limits<std::size_t>::max());

    // Decimals allowed.
    double Number(const char* name, double least, double most);

    // #RRGGBB (alpha 255) or #AARRGGBB.
    graphics::Argb Color(const char* name);

    // A file that is read or written; "-" is standard input or output. What is written is one of
    // `formats`, where a format is said.
    FileName Input(const char* name, FileRole kind = FileRole::Read);
    FileName Output(const char* name, std::span<const std::string_view> formats,
                    FileRole kind = FileRole::Written);

    // A folder, without anything special; any word but an empty one.
    std::filesystem::path Path(const char* name);

    // What the verb uses besides: sets of files in a folder, standard output.
    void NoteSets(const std::filesystem::path& folder, std::vector<formats::IconSet> sets);
    void NotePrinting() { prints_ = true; }

    const std::vector<FileUse>& Files() const { return files_; }
    bool Prints() const { return prints_; }

    // The place of the word in the list.
    std::size_t Choice(const char* name, std::span<const std::string_view> choices);

    // The entry of the list with the word as its Name.
    template <typename Named, std::size_t kCount>
    const Named& Entry(const char* name, const Named (&list)[kCount]) {
        std::vector<std::string_view> names;
        for (const Named& entry : list)
            names.push_back(entry.Name);
        return list[Choice(name, names)];
    }

private:
    std::span<const std::string> words_;
    std::size_t taken_ = 0;
    std::vector<FileUse> files_;
    bool prints_ = false;
};

}  // namespace orbelle::cli
