// The program as the system starts, signals and ends it.
#pragma once

#include <string>
#include <vector>

namespace orbelle::cli {

// What is written to a pipe that nobody reads, or beyond what the user may write, fails as any
// other writing does. A program that is told to end leaves no unfinished files. Standard files that
// are closed stay unusable, so that no other file is taken for them.
void PrepareProcess();

// The words after the program's name, in UTF-8. `argv` is what main was given.
std::vector<std::string> ArgumentsOf(int argc, char** argv);

// Standard error is what someone looks at, and takes what erases a line.
bool IsTerminalForErrors();

}  // namespace orbelle::cli
