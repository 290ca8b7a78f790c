// Offers the work of a program that ended before it was saved.
#pragma once

#include <QDialog>
#include <vector>

#include "formats/journal_file.h"

class QListWidget;
class QPushButton;

namespace orbelle::app {

// Picture, name, time and layers of each journal. Accepted: the chosen one is to be restored.
// Rejected, also by Escape: all that are still there are kept for later. Discard takes a journal
// away at once, after a question.
class RecoveryDialog : public QDialog {
    Q_OBJECT

public:
    // At least one journal, the newest first; they stay the caller's, discarded ones are taken out.
    explicit RecoveryDialog(std::vector<formats::FoundJournal>& journals,
                            QWidget* parent = nullptr);

    // Which of the journals is chosen, from 0.
    int Chosen() const;

private:
    void Discard();

    std::vector<formats::FoundJournal>& journals_;
    QListWidget* list_;
};

}  // namespace orbelle::app
