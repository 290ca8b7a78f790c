// Words for whoever started the program by a command line. A program with a window has no console
// of its own on Windows: they go to that of its starter there, or into a box if there is none.
#pragma once

#include <QString>

namespace orbelle::app {

// What was asked for, whole lines: to standard output.
void AnswerStarter(const QString& text);

// That what was asked for is wrong: to standard error, a line.
void TellStarter(const QString& problem);

}  // namespace orbelle::app
