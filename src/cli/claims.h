// Who reads and who writes which file, so that nobody gets in another one's way.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "cli/plan.h"

namespace orbelle::cli {

// The same for the names of one file in several spellings, links followed.
std::string FileKey(const std::filesystem::path& path);

class Claims {
public:
    // Throw UsageError when someone else writes one of these, or uses the same standard file.
    void Add(const std::string& who, const Plan& plan);
    void AddOutput(const std::string& who, const std::filesystem::path& path);

    void AddInput(const std::string& who, const std::filesystem::path& path);
    // To be called at the end: throws UsageError when someone reads what another one writes.
    void CheckInputs() const;

private:
    void Claim(const std::string& who, const std::string& key, const std::string& what);

    std::map<std::string, std::string> writers_;
    std::vector<std::pair<std::string, std::filesystem::path>> inputs_;  // who, what
};

}  // namespace orbelle::cli
