// Where two copies of the program meet: of one user, in one session.
#pragma once

#include <QString>

namespace orbelle::app {

struct HandOverPlace {
    QString Server;  // its name; empty: copies do not know each other
    QString Lock;    // the file that holds back others while one looks whether the name is free
};

HandOverPlace FindHandOverPlace();

// The copy that the user has just started lets the running one bring its window to the front.
void LetOthersToFront();

}  // namespace orbelle::app
