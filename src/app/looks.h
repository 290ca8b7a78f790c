// The looks of the whole program: light, dark, or what the desktop has.
#pragma once

namespace orbelle::app {

enum class Looks { AsDesktop, Light, Dark };

// Style, colours and details of all windows, those that are open, too. Once after the application
// object was made.
void ApplyLooks(Looks looks);
Looks CurrentLooks();

// The user wants these from now on.
void ChooseLooks(Looks looks);
// What the user chose last.
Looks StoredLooks();

}  // namespace orbelle::app
