#include "graphics/unfinished_files.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <string>

#include "support/temporary_folder.h"

namespace orbelle::graphics {
namespace {

namespace fs = std::filesystem;
using ::testing::ExitedWithCode;
using ::testing::KilledBySignal;

class UnfinishedFilesDeathTest : public ::testing::Test {
protected:
    void Make(const std::string& name) const { std::ofstream(folder_ / name) << "half"; }

    const testing::TemporaryFolder folder_;
};

TEST_F(UnfinishedFilesDeathTest, GoWithTheProgram) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        const auto work = [&] {
            EndCleanlyOnSignals();
            UnfinishedFile finished(folder_ / "finished");
            Make("finished");
            finished.Finish();
            { const UnfinishedFile earlier(folder_ / "earlier"); }
            const UnfinishedFile one(folder_ / "one"), other(folder_ / "other");
            Make("one");
            Make("earlier");
            std::raise(signal);
        };
        EXPECT_EXIT(work(), KilledBySignal(signal), "");
        EXPECT_FALSE(fs::exists(folder_ / "one"));
        EXPECT_TRUE(fs::exists(folder_ / "finished"));
        EXPECT_TRUE(fs::exists(folder_ / "earlier"));
    }
}

TEST_F(UnfinishedFilesDeathTest, ASignalWaitsWhileItIsHeld) {
    const auto hold = [&](int signals) {
        EndCleanlyOnSignals();
        {
            const HeldSignals held;
            const HeldSignals another;
            for (int i = 0; i < signals; ++i)
                std::raise(SIGTERM);
            Make("reached");
        }
        std::exit(3);
    };
    EXPECT_EXIT(hold(0), ExitedWithCode(3), "");
    fs::remove(folder_ / "reached");
    EXPECT_EXIT(hold(1), KilledBySignal(SIGTERM), "");
    EXPECT_TRUE(fs::exists(folder_ / "reached"));
    fs::remove(folder_ / "reached");
    EXPECT_EXIT(hold(2), KilledBySignal(SIGTERM), "");
    EXPECT_FALSE(fs::exists(folder_ / "reached"));
}

TEST_F(UnfinishedFilesDeathTest, AnIgnoredSignalStaysSo) {
    const auto work = [] {
        std::signal(SIGHUP, SIG_IGN);
        EndCleanlyOnSignals();
        std::raise(SIGHUP);
        std::exit(3);
    };
    EXPECT_EXIT(work(), ExitedWithCode(3), "");
}

}  // namespace
}  // namespace orbelle::graphics
