// Words for whoever started the program by a command line.
#pragma once

#include <QString>

namespace orbelle::app {

// Before the first of them: a program with a window has no console of its own on Windows, and takes
// that of its starter.
void UseConsoleOfStarter();

// That what was asked for is wrong; in a box where there is no console.
void TellStarter(const QString& problem);

}  // namespace orbelle::app
