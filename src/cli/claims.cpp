#include "cli/claims.h"

#include <set>

#include "cli/compared_name.h"
#include "cli/usage_error.h"
#include "graphics/path_text.h"

namespace orbelle::cli {

namespace fs = std::filesystem;

std::string FileKey(const fs::path& path) {
    std::error_code error;
    const fs::path key = fs::weakly_canonical(fs::absolute(path), error);
    return graphics::Utf8Of(ComparedName(error ? fs::absolute(path).lexically_normal() : key));
}

void Claims::Claim(const std::string& who, const std::string& key, const std::string& what) {
    const auto [place, isNew] = writers_.emplace(key, who);
    if (!isNew)
        throw UsageError(place->second + " and " + who + " would both " + what);
}

void Claims::Add(const std::string& who, const Plan& plan) {
    std::set<std::string> own;  // it may write a file twice
    for (const fs::path& path : plan.Writes) {
        if (own.insert(FileKey(path)).second)
            AddOutput(who, path);
    }
    if (plan.WritesStandardOutput)
        Claim(who, "-", "write to standard output");
    if (plan.ReadsStandardInput)
        Claim(who, "<", "read standard input");
    for (const fs::path& path : plan.Reads)
        AddInput(who, path);
}

void Claims::AddOutput(const std::string& who, const fs::path& path) {
    Claim(who, FileKey(path), "write " + graphics::Utf8Of(path));
}

void Claims::AddInput(const std::string& who, const fs::path& path) {
    inputs_.emplace_back(who, path);
}

void Claims::CheckInputs() const {
    for (const auto& [who, path] : inputs_) {
        const auto writer = writers_.find(FileKey(path));
        if (writer != writers_.end() && writer->second != who)
            throw UsageError(who + " would read " + graphics::Utf8Of(path) + ", which " +
                             writer->second + " writes");
    }
}

}  // namespace orbelle::cli
