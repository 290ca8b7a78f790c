// Lines, rectangles and ellipses, dragged from corner to corner.
#include "editing/tools/object_keys.h"
#include "editing/tools/stroke.h"

namespace orbelle::editing {

const ToolHandlers kShapeTool = {BeginStroke, PreviewStroke, CommitStroke, AbandonStroke,
                                 HandleObjectKey};

}  // namespace orbelle::editing
