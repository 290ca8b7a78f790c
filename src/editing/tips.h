// The numbers of the tips that commands ask for.
#pragma once

namespace orbelle::editing::tips {

inline constexpr int NewOrOpened = 1;
inline constexpr int Adjusted = 2;
inline constexpr int Imported = 3;
inline constexpr int Crystal = 9;

}  // namespace orbelle::editing::tips
