#include "cli/depfile.h"

#include <algorithm>
#include <set>

#include "cli/claims.h"
#include "graphics/path_text.h"

namespace orbelle::cli {
namespace {

namespace fs = std::filesystem;

// Most are blanks to ninja; '=' makes a variable of make's, '[' a pattern.
constexpr std::string_view kUnreadable = "\"&'*;<>?^`|\x7F=[";

bool IsReadable(std::string_view name, bool isOutput) {
    const auto isUnreadable = [](char c) {
        return static_cast<unsigned char>(c) < ' ' || kUnreadable.find(c) != std::string_view::npos;
    };
    // The user's folder, and a part of an archive, to make.
    const bool isExpanded = name.starts_with('~') || (name.ends_with(')') && name.find('(') > 0 &&
                                                      name.find('(') != std::string_view::npos);
    // Each reads its own into a backslash before a special character.
    bool isAmbiguous = name.ends_with('\\') || name.ends_with(' ') || name.ends_with(':');
    for (const std::string_view pair : {"\\#", "\\$", "\\:"})
        isAmbiguous = isAmbiguous || name.find(pair) != std::string_view::npos;
    const bool isPattern = isOutput && name.find('%') != std::string_view::npos;
    return !std::ranges::any_of(name, isUnreadable) && !isExpanded && !isAmbiguous && !isPattern;
}

// By FileKey.
std::set<std::string> KeysOf(const std::vector<WrittenFile>& files) {
    std::set<std::string> keys;
    for (const WrittenFile& file : files)
        keys.insert(FileKey(file.Path));
    return keys;
}

// The part of a line that its outputs have in common.
std::string DescribeInputs(const Job& job, const std::string& script) {
    const std::set<std::string> own = KeysOf(job.Written);
    std::vector<std::string> names;
    for (const fs::path& path : job.Plan.Reads) {
        if (!own.contains(FileKey(path)))
            names.push_back(NameForDepfile(graphics::Utf8Of(path), false));
    }
    if (!script.empty() && !own.contains(FileKey(graphics::PathOfUtf8(script))))
        names.push_back(NameForDepfile(script, false));
    std::string inputs;
    std::set<std::string> known;
    for (const std::string& name : names) {
        if (known.insert(name).second)
            inputs += ' ' + name;
    }
    return inputs;
}

}  // namespace

std::string NameForDepfile(const std::string& name, bool isOutput) {
    if (!IsReadable(name, isOutput))
        throw UsageError(name + ": make and ninja don't both read such a name");
    std::string text;
    std::size_t backslashes = 0;  // just before
    for (const char c : name) {
        if (c == ' ')
            text.append(backslashes + 1, '\\');
        else if (c == '#' || c == ':')
            text += '\\';
        else if (c == '$')
            text += '$';
        text += c;
        backslashes = c == '\\' ? backslashes + 1 : 0;
    }
    return text;
}

std::string DescribeOutputs(std::span<const Job> jobs, const std::string& script) {
    std::string lines;
    for (const Job& job : jobs) {
        const std::string inputs = DescribeInputs(job, script);
        for (const WrittenFile& file : job.Written)
            lines += NameForDepfile(graphics::Utf8Of(file.Path), true) + ':' + inputs + '\n';
    }
    return lines;
}

void CheckOutputNames(std::span<const Job> jobs, const std::string& script) {
    for (const Job& job : jobs) {
        if (job.Plan.Writes.empty())
            throw UsageError("--depfile: no verb writes a file");
        for (const fs::path& path : job.Plan.Writes)
            NameForDepfile(graphics::Utf8Of(path), true);
        for (const fs::path& path : job.Plan.Reads)
            NameForDepfile(graphics::Utf8Of(path), false);
    }
    if (!script.empty())
        NameForDepfile(script, false);
}

}  // namespace orbelle::cli
