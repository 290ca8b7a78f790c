#include "document/undo_history.h"

#include <string>

namespace orbelle::document {

void UndoHistory::CheckRoom(const Document& document, int snapshots) const {
    if (document.LayerCount() > kMaxSnapshotLayers)
        throw HistoryLimit("A document with more than " + std::to_string(kMaxSnapshotLayers) +
                           " layers can't be changed: the undo history holds no more.");
    if (undoIndex_ + snapshots > kMaxSnapshots)
        throw HistoryLimit("The undo history is full after " + std::to_string(kMaxSnapshots) +
                           " changes. Save the document and open it again to go on.");
}

void UndoHistory::TruncateRedo() {
    slots_.resize(static_cast<std::size_t>(undoIndex_));
    redoCount_ = 0;
    undoCount_ = undoIndex_;
}

void UndoHistory::PushSnapshot(Document& document) {
    CheckRoom(document);
    const auto slot = static_cast<std::size_t>(undoIndex_);
    if (slots_.size() <= slot)
        slots_.resize(slot + 1);
    slots_[slot] = {document.Layers, document.SelectedLayer};
    ++undoCount_;
    ++undoIndex_;
    document.Modified = true;
}

bool UndoHistory::Undo(Document& document) {
    if (undoIndex_ == 0)
        return false;
    const auto slot = static_cast<std::size_t>(undoIndex_);
    if (slots_.size() <= slot)
        slots_.resize(slot + 1);
    slots_[slot] = {document.Layers, document.SelectedLayer};
    --undoIndex_;
    ++redoCount_;
    Restore(document);
    return true;
}

bool UndoHistory::Redo(Document& document) {
    if (redoCount_ == 0)
        return false;
    ++undoIndex_;
    --redoCount_;
    Restore(document);
    return true;
}

void UndoHistory::ClearHistory() {
    *this = {};
}

void UndoHistory::Restore(Document& document) const {
    const Snapshot& snapshot = slots_[static_cast<std::size_t>(undoIndex_)];
    document.Layers = snapshot.Layers;
    document.SelectedLayer = snapshot.SelectedLayer;
    document.Modified = true;
}

}  // namespace orbelle::document
