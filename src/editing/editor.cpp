#include "editing/editor.h"

namespace orbelle::editing {

// The clipboard is asked from the first command on.
Editor::Editor(EditorObserver& observer, editing::Clipboard& clipboard)
    : Observer(observer), Clipboard(clipboard) {
    EnableSliders(*this);
    States = StatesOf(*this, History, false);
}

}  // namespace orbelle::editing
