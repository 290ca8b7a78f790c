// Unsaved work: kept while it is made, and offered again after a program that ended without asking.
#include <QStatusBar>
#include <cstdlib>

#include "app/core_words.h"
#include "app/main_window.h"
#include "app/recovery_dialog.h"
#include "editing/document_commands.h"
#include "graphics/errors.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

// A display that goes away ends the program from within the toolkit, by exit(): what stands on the
// stack is not put away then.
editing::Recovery* kept = nullptr;

void KeepAtExit() {
    if (kept)
        kept->EndAtOnce();
}

}  // namespace

void MainWindow::StartRecovery() {
    // Told by the thread that writes.
    const auto tell = [this](const std::string& problem) {
        QMetaObject::invokeMethod(
            this,
            [this, problem] {
                ShowStatus(Words::tr("Unsaved work can't be kept safe: %1")
                               .arg(TranslatedText(problem))
                               .toStdString());
            },
            Qt::QueuedConnection);
    };
    try {
        recovery_ = std::make_unique<editing::Recovery>(editing::JournalFolder(), tell);
    } catch (const std::exception& failure) {
        return tell(failure.what());
    }
    [[maybe_unused]] static const int registered = std::atexit(KeepAtExit);
    kept = recovery_.get();
}

MainWindow::~MainWindow() {
    // A number that is being typed counts when its field disappears, which the editor must live to
    // see.
    hide();
    kept = nullptr;
}

void MainWindow::OfferRecovery() {
    if (!recovery_)
        return;
    std::vector<formats::FoundJournal> journals = formats::FindJournals(editing::JournalFolder());
    if (journals.empty())
        return;
    RecoveryDialog dialog(journals, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    formats::FoundJournal& chosen = journals[static_cast<std::size_t>(dialog.Chosen())];
    const bool restored =
        RunBusy([&](editing::Editor& editor) { RestoreDocument(editor, chosen.Entry().Document); });
    // It may go when the journal of this program has taken it over.
    if (restored && recovery_->Flush())
        chosen.Remove();
}

void MainWindow::EndAtOnce() {
    if (recovery_)
        recovery_->EndAtOnce();
    StoreSettings();
    QCoreApplication::exit();
}

}  // namespace orbelle::app
