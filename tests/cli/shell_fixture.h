// Runs the built program by a shell, for what only a shell can do to it.
#pragma once

#include "program_fixture.h"

namespace orbelle::cli {

class ShellTest : public ProgramTest {
protected:
    // Commands of a shell, in which $cli is the program.
    Outcome Shell(const std::string& commands, const std::string& input = "") {
        const std::string script = "cli='" ORBELLE_CLI_PROGRAM "'\n" + commands;
        testing::ProgramCall call = Call("");
        call.File = "/bin/sh";
        call.Arguments = {"-c", script};
        Write("input", {input.begin(), input.end()});
        const int status = testing::RunProgram(call);
        return {status, Text("output"), Text("errors")};
    }
    // The program's words are as a shell takes them.
    Outcome ShellRun(const std::string& words) { return Shell("\"$cli\" " + words); }
};

}  // namespace orbelle::cli
