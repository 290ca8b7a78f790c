// Files that were dropped, pasted or chosen, imported one after the other.
#pragma once

#include <filesystem>
#include <vector>

#include "app/drop_target.h"
#include "app/window_actions.h"

namespace orbelle::app {

// A picture is a layer and an undo step, a document takes the place of the present one after the
// save prompt. What could not be imported is told once, at the end. The user can stop where it
// takes long; a question that he cancels, and a document that takes no more, stop it, too. What was
// imported by then stays.
void ImportFiles(const WindowContext& context, const std::vector<std::filesystem::path>& files);
// The same, but the first that can be is opened, after the save prompt.
void OpenFiles(const WindowContext& context, const std::vector<std::filesystem::path>& files);

// Opens what was dropped where there is no document or it is wanted so, else makes layers of it.
void TakeDropped(const WindowContext& context, const Drop& drop);

std::vector<std::filesystem::path> PathsOf(const QByteArrayList& files);

}  // namespace orbelle::app
