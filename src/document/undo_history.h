// Undo and redo by snapshots of the whole stack.
#pragma once

#include <vector>

#include "document/document.h"
#include "graphics/errors.h"

namespace orbelle::document {

// The history holds no more; what() is fit to be shown to the user.
class HistoryLimit : public Error {
public:
    using Error::Error;
};

// A linear history. Page size and background are not part of it. A snapshot shares all pixels with
// the document until either is written, so it costs a pointer a layer.
class UndoHistory {
public:
    static constexpr int kMaxSnapshots = 5001;
    static constexpr int kMaxSnapshotLayers = 101;

    int UndoIndex() const { return undoIndex_; }  // steps that can be undone
    int RedoCount() const { return redoCount_; }  // steps that can be redone
    int UndoCount() const { return undoCount_; }  // snapshots, those ahead of the cursor included

    // Throws HistoryLimit when PushSnapshot would refuse this document, so often in a row.
    void CheckRoom(const Document& document, int snapshots = 1) const;

    // Forgets everything ahead of the cursor.
    void TruncateRedo();

    // Stores the stack as it is before an edit and marks the document as changed. Throws
    // HistoryLimit, with nothing changed, beyond kMaxSnapshots or kMaxSnapshotLayers.
    void PushSnapshot(Document& document);

    // Keeps the present stack for Redo and brings back the one before. False: nothing to undo.
    // The stack kept here is not bounded by kMaxSnapshotLayers: a step can always be taken back.
    bool Undo(Document& document);

    // Brings back the stack that the last Undo left. False: nothing to redo.
    bool Redo(Document& document);

    void ClearHistory();

private:
    struct Snapshot {
        std::vector<IconLayer> Layers;
        int SelectedLayer = kNoLayer;
    };

    void Restore(Document& document) const;

    std::vector<Snapshot> slots_;
    int undoIndex_ = 0;
    int redoCount_ = 0;
    int undoCount_ = 0;
};

}  // namespace orbelle::document
