#include <gmock/gmock.h>

#include <QProcess>

namespace orbelle::app {
namespace {

using ::testing::StartsWith;

TEST(CommandLineTest, WhatNeedsNoWindowIsAnsweredWithoutOne) {
    struct Case {
        QStringList Arguments;
        int Status;
        const char *OutputBegin, *Errors;
    };
    const Case cases[] = {
        {{"--version"}, 0, "orbelle 1.", ""},
        {{"-v", "a.ico"}, 0, "orbelle 1.", ""},
        {{"-h"}, 0, "Usage: ", ""},
        {{"--frobnicate"}, 1, "", "orbelle: Unknown option 'frobnicate'.\n"},
        {{"a.ico", "b.ico"}, 1, "", "orbelle: only one FILE can be opened\n"},
    };
    for (const Case& call : cases) {
        const std::string name = call.Arguments.join(' ').toStdString();
        QProcess program;
        program.start(ORBELLE_PROGRAM, call.Arguments);
        ASSERT_TRUE(program.waitForFinished()) << name;
        EXPECT_EQ(program.exitCode(), call.Status) << name;
        const std::string output = program.readAllStandardOutput().toStdString();
        EXPECT_THAT(output, StartsWith(call.OutputBegin)) << name;
        EXPECT_EQ(output.empty(), call.Status != 0) << name;
        EXPECT_EQ(program.readAllStandardError().toStdString(), call.Errors) << name;
    }
}

}  // namespace
}  // namespace orbelle::app
