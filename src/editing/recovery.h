// Unsaved work outlives the program: a journal of the document that is being edited, written by a
// thread of its own.
#pragma once

#include <condition_variable>
#include <filesystem>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "editing/editor.h"
#include "formats/journal_file.h"

namespace orbelle::editing {

// Where the journals of the user lie. Throws FileError.
std::filesystem::path JournalFolder();

class Recovery {
public:
    // `trouble` is called on the writing thread, once, when the journal can't be written, with the
    // reason; the journal goes on trying.
    Recovery(std::filesystem::path folder, std::function<void(const std::string&)> trouble);
    // The program ends as it should: the journal goes, unless EndAtOnce was called.
    ~Recovery();
    Recovery(const Recovery&) = delete;
    Recovery& operator=(const Recovery&) = delete;

    // After every command. The document as it is now goes to the writing thread, which costs the
    // caller a pointer a layer; with a drag in progress, or when the command has not changed the
    // document, nothing does. A document without changes needs no journal.
    void Note(const Editor& editor, const Changes& changes);

    // Waits until what was noted last is written. False: it could not be.
    bool Flush();

    // The program is about to end without being asked: as Flush, and the journal stays.
    void EndAtOnce();

private:
    void Write(const std::stop_token& stop);
    bool Try(const std::function<void()>& work);

    std::function<void(const std::string&)> trouble_;
    bool hadTrouble_ = false;
    formats::JournalFile journal_;  // of the writing thread

    std::mutex mutex_;
    std::condition_variable_any wake_, done_;
    // What is to be written: a document, or that there is none to be kept.
    std::optional<std::optional<document::Document>> next_;
    bool isWriting_ = false;
    bool holdsAll_ = true;  // the last writing went well
    bool keeps_ = false;    // the journal, at the end

    std::jthread thread_;  // the last member: it works on the others
};

}  // namespace orbelle::editing
