#include "document/undo_history.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

namespace orbelle::document {

void UndoHistory::CheckRoom(const Document& document) const {
    if (document.Current().LayerCount() > kMaxSnapshotLayers)
        throw HistoryLimit("A document with more than " + std::to_string(kMaxSnapshotLayers) +
                           " layers can't be changed: the undo history holds no more.");
    if (place_.UndoIndex >= kMaxSnapshots)
        throw HistoryLimit("The undo history is full after " + std::to_string(kMaxSnapshots) +
                           " changes. Save the document and open it again to go on.");
}

void UndoHistory::TruncateRedo() {
    if (dropped_.empty()) {
        const auto ahead = slots_.begin() + place_.UndoIndex;
        dropped_.assign(std::make_move_iterator(ahead), std::make_move_iterator(slots_.end()));
    }
    slots_.resize(static_cast<std::size_t>(place_.UndoIndex));
    place_.RedoCount = 0;
    place_.UndoCount = place_.UndoIndex;
}

void UndoHistory::PushSnapshot(Document& document) {
    CheckRoom(document);
    const auto slot = static_cast<std::size_t>(place_.UndoIndex);
    if (slots_.size() <= slot)
        slots_.resize(slot + 1);
    slots_[slot] = {document.Master};
    ++place_.UndoCount;
    ++place_.UndoIndex;
    document.Modified = true;
}

bool UndoHistory::Undo(Document& document) {
    if (place_.UndoIndex == 0)
        return false;
    const auto slot = static_cast<std::size_t>(place_.UndoIndex);
    // What needs memory comes before what changes anything.
    Snapshot before = slots_[slot - 1];
    Snapshot present{document.Master};
    if (slots_.size() <= slot)
        slots_.resize(slot + 1);
    slots_[slot] = std::move(present);
    --place_.UndoIndex;
    ++place_.RedoCount;
    Restore(document, before);
    return true;
}

bool UndoHistory::Redo(Document& document) {
    if (place_.RedoCount == 0)
        return false;
    Snapshot after = slots_[static_cast<std::size_t>(place_.UndoIndex) + 1];
    ++place_.UndoIndex;
    --place_.RedoCount;
    Restore(document, after);
    return true;
}

void UndoHistory::ClearHistory() {
    *this = {};
}

void UndoHistory::RollBack(const Place& place) {
    // Nothing here takes memory: the slots had room for all of this before.
    const int kept = place.UndoIndex + (dropped_.empty() ? place.RedoCount + 1 : 0);
    slots_.resize(std::min(slots_.size(), static_cast<std::size_t>(kept)));
    std::ranges::move(dropped_, std::back_inserter(slots_));
    dropped_.clear();
    place_ = place;
}

void UndoHistory::Restore(Document& document, Snapshot& snapshot) const {
    document.Master.Layers = std::move(snapshot.Master.Layers);
    document.Master.SelectedLayer = snapshot.Master.SelectedLayer;
    document.Modified = true;
}

}  // namespace orbelle::document
