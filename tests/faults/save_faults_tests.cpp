// Every file operation of a save fails once, and once with all that follow; every call that a
// signal can cut short is. The old file stays whole or the new one stands, somewhere that the user
// is told, and nothing else is left.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/xattr.h>

#include <cstdlib>
#include <exception>
#include <fstream>
#include <new>
#include <optional>
#include <string>
#include <vector>

#include "faults/injection.h"
#include "graphics/errors.h"
#include "graphics/file_io.h"
#include "support/temporary_folder.h"

namespace orbelle::testing {
namespace {

namespace fs = std::filesystem;
using FileBytes = std::vector<std::uint8_t>;

const FileBytes kOld(1000, 'o');
const FileBytes kNew(700, 'n');

struct Scenario {
    const char* Name;
    void (*Prepare)(const fs::path& folder);
    bool HasUnnamedFiles = true;
    bool IsInPlace = false;
};

void PrintTo(const Scenario& scenario, std::ostream* out) {
    *out << scenario.Name;
}

class SaveFaults : public ::testing::TestWithParam<Scenario> {
protected:
    // Gives how many operations failed, one after the other.
    int FailEach(Fault fault, Extent extent);

private:
    void ExpectNothingLost(const fs::path& folder, const std::string& problem);
};

constexpr const char* kLeftover = ".orbelle-2147483647-1.tmp";

std::vector<std::string> NamesIn(const fs::path& folder) {
    std::vector<std::string> names;
    if (!fs::exists(folder))
        return names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    return names;
}

void SaveFaults::ExpectNothingLost(const fs::path& folder, const std::string& problem) {
    const fs::path file = folder / "file";
    const std::vector<std::string> copies = NamesIn(folder / "state/orbelle/saves");
    if (problem.empty()) {
        EXPECT_EQ(graphics::ReadFile(file), kNew);
        EXPECT_TRUE(copies.empty());
    } else if (copies.empty()) {
        EXPECT_EQ(fs::exists(file) ? graphics::ReadFile(file) : kOld, kOld);
    } else {
        const fs::path copy = folder / "state/orbelle/saves" / copies.at(0);
        EXPECT_EQ(copies.size(), 1u);
        EXPECT_EQ(graphics::ReadFile(copy), kNew);
        EXPECT_THAT(problem, ::testing::EndsWith(". What was to be saved is in " + copy.string()));
    }
    EXPECT_THAT(NamesIn(folder),
                ::testing::Each(::testing::AnyOf("file", "target", "state", kLeftover)));
}

std::string ProblemOf(const std::exception_ptr& failure) {
    try {
        if (failure)
            std::rethrow_exception(failure);
    } catch (const Error& error) {
        return error.what();
    } catch (const std::bad_alloc&) {
        return "There is not enough memory.";
    }
    return "";
}

int SaveFaults::FailEach(Fault fault, Extent extent) {
    for (int n = 1;; ++n) {
        SCOPED_TRACE("operation " + std::to_string(n) + " of kind " +
                     std::to_string(static_cast<int>(fault)) +
                     (extent == Extent::AllFrom ? " and all after it" : ""));
        const TemporaryFolder folder;
        setenv("XDG_STATE_HOME", (folder / "state").c_str(), 1);
        GetParam().Prepare(folder.Path());
        std::optional<NoUnnamedFiles> noUnnamedFiles;
        if (!GetParam().HasUnnamedFiles)
            noUnnamedFiles.emplace();
        std::exception_ptr failure;
        bool hasFailedOne = false;
        {
            const Injection injection(fault, extent, n);
            try {
                graphics::WriteFile(folder / "file", kNew);
            } catch (const std::exception&) {
                failure = std::current_exception();
            }
            hasFailedOne = injection.HasFailedOne();
        }
        const std::string problem = ProblemOf(failure);
        ExpectNothingLost(folder.Path(), problem);
        if (fault == Fault::Interruption || !hasFailedOne) {
            EXPECT_EQ(problem, "");
        }
        if (!hasFailedOne || HasFailure()) {
            EXPECT_FALSE(fs::exists(folder / kLeftover));
            return n - 1;
        }
    }
}

TEST_P(SaveFaults, LoseNothingAndLeaveNothing) {
    const int files = FailEach(Fault::FileOperation, Extent::One);
    RecordProperty("files", files);
    EXPECT_GT(files, GetParam().IsInPlace ? 15 : 6);
    FailEach(Fault::FileOperation, Extent::AllFrom);
    FailEach(Fault::Interruption, Extent::One);
    FailEach(Fault::New, Extent::One);
    FailEach(Fault::New, Extent::AllFrom);
}

void MakeOld(const fs::path& file) {
    std::ofstream(file, std::ios::binary) << std::string(kOld.begin(), kOld.end());
}

void MakeOldFile(const fs::path& folder) {
    MakeOld(folder / "file");
}

const Scenario kScenarios[] = {
    {"NewFile", [](const fs::path&) {}},
    {"NewFileWithANameAlways", [](const fs::path&) {}, false},
    {"OverFile", MakeOldFile},
    {"OverFileWithANameAlways", MakeOldFile, false},
    {"OverFileWithAttributes",
     [](const fs::path& folder) {
         MakeOldFile(folder);
         setxattr((folder / "file").c_str(), "user.origin", "here", 4, 0);
     }},
    {"OverLink",
     [](const fs::path& folder) {
         MakeOld(folder / "target");
         fs::create_symlink("target", folder / "file");
     }},
    {"OverLeftovers",
     [](const fs::path& folder) {
         MakeOldFile(folder);
         MakeOld(folder / kLeftover);
     }},
    {"OverFileWithTwoNames",
     [](const fs::path& folder) {
         MakeOldFile(folder);
         fs::create_hard_link(folder / "file", folder / "target");
     },
     true, true},
    {"OverFileWithTwoNamesWithANameAlways",
     [](const fs::path& folder) {
         MakeOldFile(folder);
         fs::create_hard_link(folder / "file", folder / "target");
     },
     false, true},
};

INSTANTIATE_TEST_SUITE_P(Every, SaveFaults, ::testing::ValuesIn(kScenarios),
                         [](const auto& scenario) { return scenario.param.Name; });

}  // namespace
}  // namespace orbelle::testing
