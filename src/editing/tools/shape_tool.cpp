// Lines, rectangles and ellipses, dragged from corner to corner.
#include "editing/tools/stroke.h"

namespace orbelle::editing {

const ToolHandlers kShapeTool = {BeginStroke, PreviewStroke, CommitStroke};

}  // namespace orbelle::editing
