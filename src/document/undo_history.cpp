#include "document/undo_history.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

namespace orbelle::document {

std::string_view UndoHistory::UndoName() const {
    return place_.UndoIndex == 0 ? std::string_view()
                                 : slots_[static_cast<std::size_t>(place_.UndoIndex) - 1].Next;
}

std::string_view UndoHistory::RedoName() const {
    return place_.RedoCount == 0 ? std::string_view()
                                 : slots_[static_cast<std::size_t>(place_.UndoIndex)].Next;
}

void UndoHistory::CheckRoom(int steps) const {
    if (place_.UndoIndex > kMaxSnapshots - steps)
        throw HistoryLimit("The undo history is full after " + std::to_string(kMaxSnapshots) +
                           " changes. Save the document and open it again to go on.");
}

// Slots from there on are empty then, and kept for RollBack unless they were filled since Settle.
void UndoHistory::Forget(std::size_t from) {
    if (from >= slots_.size())
        return;
    const std::size_t end = dropped_.empty() ? slots_.size() : droppedFrom_;
    if (from < end) {
        dropped_.insert(dropped_.begin(), std::make_move_iterator(slots_.begin() + from),
                        std::make_move_iterator(slots_.begin() + end));
        droppedFrom_ = from;
    }
    slots_.resize(from);
}

void UndoHistory::TruncateRedo() {
    ahead_.clear();
    beforeStep_ = place_;
    Forget(static_cast<std::size_t>(place_.UndoIndex));
    place_.RedoCount = 0;
    place_.UndoCount = place_.UndoIndex;
}

void UndoHistory::PushSnapshot(Document& document, std::string_view name,
                               std::optional<int> pageAfter) {
    CheckRoom();
    const auto slot = static_cast<std::size_t>(place_.UndoIndex);
    if (slots_.size() <= slot)
        slots_.resize(slot + 1);
    slots_[slot] = {document, document.Background, name, document.Modified,
                    pageAfter.value_or(document.EditedSize)};
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
    Snapshot present{document, document.Background};
    if (slots_.size() <= slot)
        slots_.resize(slot + 1);
    present.Next = slots_[slot].Next;
    present.PageAfter = slots_[slot].PageAfter;
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
    after.Pages.EditedSize = slots_[static_cast<std::size_t>(place_.UndoIndex)].PageAfter;
    ++place_.UndoIndex;
    --place_.RedoCount;
    Restore(document, after);
    return true;
}

void UndoHistory::TakeBack(Document& document) {
    if (place_.UndoIndex == 0)
        return;
    const auto slot = static_cast<std::size_t>(place_.UndoIndex) - 1;
    // What needs memory comes before what changes anything.
    Snapshot before = slots_[slot];
    slots_.reserve(slot + ahead_.size());
    Forget(slot);
    std::ranges::move(ahead_, std::back_inserter(slots_));
    Restore(document, before);
    document.Modified = before.Modified;
    const int undoIndex = place_.UndoIndex - 1;
    place_ = ahead_.empty() ? Place{undoIndex, 0, undoIndex} : beforeStep_;
    ahead_.clear();
}

void UndoHistory::ClearHistory() {
    Forget(0);
    place_ = {};
}

void UndoHistory::Settle(bool lastStepHasEnded) {
    if (lastStepHasEnded)
        ahead_.clear();
    else if (!dropped_.empty())
        ahead_ = std::exchange(dropped_, {});
    dropped_.clear();
}

void UndoHistory::RollBack(const Place& place) noexcept {
    // Nothing here takes memory: the slots had room for all of this before.
    if (!dropped_.empty()) {
        slots_.resize(droppedFrom_);
        std::ranges::move(dropped_, std::back_inserter(slots_));
        dropped_.clear();
    }
    const auto kept =
        static_cast<std::size_t>(place.UndoIndex) + static_cast<std::size_t>(place.RedoCount) + 1;
    slots_.resize(std::min(slots_.size(), kept));
    place_ = place;
}

void UndoHistory::Restore(Document& document, Snapshot& snapshot) {
    static_cast<Family&>(document) = std::move(snapshot.Pages);
    document.Background = snapshot.Background;
    document.Modified = true;
}

}  // namespace orbelle::document
