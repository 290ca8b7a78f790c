// Undo and redo by snapshots of the whole document.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "document/document.h"
#include "graphics/errors.h"

namespace orbelle::document {

// The history holds no more.
class HistoryLimit : public Error {
public:
    using Error::Error;
};

// A linear history of all pages, their sizes and stacks, and the background. A snapshot shares all
// pixels with the document until either is written, so it costs a pointer a layer. A step that is
// undone or done again brings its page in force.
class UndoHistory {
public:
    static constexpr int kMaxSnapshots = 5001;

    int UndoIndex() const { return place_.UndoIndex; }  // steps that can be undone
    int RedoCount() const { return place_.RedoCount; }  // steps that can be redone
    // Snapshots, those ahead of the cursor included.
    int UndoCount() const { return place_.UndoCount; }

    // What the step is called that Undo would take back, or Redo do again; empty: there is none.
    std::string_view UndoName() const;
    std::string_view RedoName() const;

    // Throws HistoryLimit when so many steps don't fit any more.
    void CheckRoom(int steps = 1) const;

    // Forgets everything ahead of the cursor.
    void TruncateRedo();

    // Stores the document as it is before an edit and marks it as changed. `name`, what the edit is
    // called, is not copied: it has to live as long as the program. Throws HistoryLimit, with
    // nothing changed, beyond kMaxSnapshots. `pageAfter` is the page in force after the edit where
    // that is another one than before it.
    void PushSnapshot(Document& document, std::string_view name,
                      std::optional<int> pageAfter = std::nullopt);

    // Keeps the present pages for Redo and brings back those before. False: nothing to undo.
    bool Undo(Document& document);

    // Brings back the pages that the last Undo left. False: nothing to redo.
    bool Redo(Document& document);

    // The last step, which has only begun, never was: brings back the document as it was before it,
    // marked as changed or not as it was then, and what lay ahead of the cursor, if that was kept.
    void TakeBack(Document& document);

    void ClearHistory();

    // For a command that fails halfway: `Place` is where the history stood before it, RollBack goes
    // back there, whatever was forgotten meanwhile included. Settle, once a command has ended, lets
    // go of what RollBack would need, but keeps it for TakeBack while the last step has only begun.
    struct Place {
        int UndoIndex = 0;
        int RedoCount = 0;
        int UndoCount = 0;
    };
    Place Here() const { return place_; }
    void RollBack(const Place& place) noexcept;
    void Settle(bool lastStepHasEnded = true);

private:
    struct Snapshot {
        Family Pages;
        graphics::Argb Background = 0;
        std::string_view Next = {};       // the step that leads from here to the next one
        bool Modified = false;            // when that step began
        int PageAfter = Family::kMaster;  // in force when that step had ended
    };

    static void Restore(Document& document, Snapshot& snapshot);
    void Forget(std::size_t from);

    std::vector<Snapshot> slots_;
    // Forgotten since the last Settle: what then stood in the slots from `droppedFrom_` on.
    std::vector<Snapshot> dropped_;
    std::size_t droppedFrom_ = 0;
    // What the last step forgot, and where the history stood before it, until that step has ended.
    std::vector<Snapshot> ahead_;
    Place beforeStep_;
    Place place_;
};

}  // namespace orbelle::document
