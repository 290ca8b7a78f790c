// The numbers of the tips that commands ask for.
#pragma once

namespace orbelle::editing::tips {

inline constexpr int Welcome = 0;
inline constexpr int NewOrOpened = 1;
inline constexpr int Adjusted = 2;  // after a change that undo takes back
inline constexpr int Imported = 3;
inline constexpr int MoveTool = 3;
inline constexpr int OtherTool = 4;  // by CurrentTool
inline constexpr int Reflection = 8;
inline constexpr int Crystal = 9;  // and origami
inline constexpr int Shade = 10;
inline constexpr int Vista = 11;  // and fresh
inline constexpr int Ios = 14;
inline constexpr int NothingToMove = 15;

}  // namespace orbelle::editing::tips
