// What the undo steps are called, in the words of the menus, sliders and tools that make them.
// Menus and buttons say "Undo Crystal", so there is no '&' in them.
#pragma once

#include <string_view>

namespace orbelle::editing::steps {

using Name = std::string_view;

// The stack, the clipboard and the selection.
inline constexpr Name AddLayer = "Add Layer";
inline constexpr Name DeleteLayer = "Delete Layer";
inline constexpr Name DeleteSelection = "Delete Selection";
inline constexpr Name Cut = "Cut";
inline constexpr Name Paste = "Paste";
inline constexpr Name Import = "Import";
inline constexpr Name MergeDown = "Merge Down";
inline constexpr Name ToFront = "To Front";
inline constexpr Name ToBack = "To Back";
inline constexpr Name BackOne = "Back One";
inline constexpr Name ForwardOne = "Forward One";
inline constexpr Name SetOrder = "Set Order";  // by hand, in the list
inline constexpr Name RenameLayer = "Rename Layer";
inline constexpr Name FlipHorizontal = "Flip Horizontal";
inline constexpr Name FlipVertical = "Flip Vertical";
inline constexpr Name Rotate90Cw = "Rotate 90 CW";
inline constexpr Name Rotate90Cww = "Rotate 90 CWW";
inline constexpr Name MoveLayer = "Move Layer";
inline constexpr Name MoveSelection = "Move Selection";  // onto a layer of its own

// Sliders, and the page.
inline constexpr Name Opacity = "Opacity";
inline constexpr Name Hue = "Hue";
inline constexpr Name Saturation = "Saturation";
inline constexpr Name Brightness = "Brightness";
inline constexpr Name Contrast = "Contrast";
inline constexpr Name Scale = "Scale";
inline constexpr Name PageSize = "Page Size";
inline constexpr Name PageBackground = "Page Background";

// The pages of sizes.
inline constexpr Name DrawByHand = "Draw by Hand";
inline constexpr Name CopyToSize = "Copy to Size";
inline constexpr Name BackToMaster = "Back to Master's";

// The Style menu.
inline constexpr Name DisabledState = "Disabled State";
inline constexpr Name HotState = "Hot State";
inline constexpr Name Fresh = "Fresh";
inline constexpr Name Ios = "IOS";
inline constexpr Name Origami = "Origami";
inline constexpr Name Mac = "Mac";
inline constexpr Name Vista = "Vista";
inline constexpr Name Crystal = "Crystal";
inline constexpr Name Blur = "Blur";
inline constexpr Name Sharpen = "Sharpen";
inline constexpr Name Irradiation = "Irradiation";
inline constexpr Name Shade = "Shade";
inline constexpr Name Reflection = "Reflection";
inline constexpr Name DropShadow = "Drop Shadow";

// Tools.
inline constexpr Name Pencil = "Pencil";
inline constexpr Name Line = "Line";
inline constexpr Name Rectangle = "Rectangle";
inline constexpr Name Ellipse = "Ellipse";
inline constexpr Name FilledRectangle = "Filled Rectangle";
inline constexpr Name FilledEllipse = "Filled Ellipse";
inline constexpr Name PencilEraser = "Pencil Eraser";
inline constexpr Name BrushEraser = "Brush Eraser";

}  // namespace orbelle::editing::steps
