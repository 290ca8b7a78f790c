#include <cstdio>

#include "app/starter_console.h"

namespace orbelle::app {

void AnswerStarter(const QString& text) {
    std::fputs(qPrintable(text), stdout);
}

void TellStarter(const QString& problem) {
    std::fprintf(stderr, "orbelle: %s\n", qPrintable(problem));
}

}  // namespace orbelle::app
