// The journal of a document that is being edited: what stands in it can be brought back when the
// program ends before the document was saved. Bytes only; docs/journal-format.md has their layout.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "document/document.h"

namespace orbelle::formats {

// Makes what is appended to a journal. It remembers which pictures stand there, and keeps them: as
// long as a layer shares its pixels with one of them it is not written again.
class JournalEncoder {
public:
    // What to append so that the journal holds the document as it is now; the first time, the
    // journal's head before it. Nothing when the journal holds that already. The time is in
    // milliseconds since 1970, UTC.
    std::vector<std::uint8_t> Append(const document::Document& document, std::int64_t time);

    // A part of the journal, bytes from its beginning.
    struct Part {
        std::uint64_t From = 0;
        std::uint64_t Size = 0;
    };
    // What of the journal is still needed, in order. `Compacted` is to be called when these parts
    // alone are the journal.
    std::vector<Part> Needed() const;
    void Compacted();

    std::uint64_t Size() const { return size_; }  // of the journal
    std::uint64_t NeededSize() const;

private:
    struct Picture {
        graphics::Bitmap Image;
        int Width = 0;  // the part of it that the layer has
        int Height = 0;
        std::uint64_t Number = 0;
        Part Record;
    };

    std::uint64_t NumberOf(const document::IconLayer& layer, std::vector<Picture>& pictures,
                           std::vector<std::uint8_t>& bytes);

    std::vector<Picture> pictures_;    // of the last document
    std::vector<std::uint8_t> state_;  // the last document's record but for its time
    Part stateRecord_;
    std::uint64_t lastNumber_ = 0;
    std::uint64_t size_ = 0;
};

// Reads a journal from wherever it lies.
class JournalSource {
public:
    virtual std::uint64_t Size() = 0;
    // So many bytes from there on. Throws Error when there are fewer.
    virtual std::vector<std::uint8_t> Read(std::uint64_t from, std::uint64_t count) = 0;

protected:
    ~JournalSource() = default;
};

// A document as a journal holds it.
struct JournalEntry {
    document::Document Document;  // as .volf files keep it, its path and stamp besides; modified
    std::int64_t Time = 0;        // as above
};

// The last document that stands there whole. What was cut short or damaged behind it is passed
// over. No value: there is none, or it is no journal.
std::optional<JournalEntry> ReadJournal(JournalSource& source);

}  // namespace orbelle::formats
