#include "app/recent_files_menu.h"

#include "app/ask_commands.h"
#include "app/recent_files.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

constexpr int kWidestName = 400;  // pixels

// "&1 name"; the tenth is "1&0 name".
QString Numbered(std::size_t number, QString name) {
    return QString(number < 10 ? "&%1 " : "1&0 ").arg(number) + name.replace('&', "&&");
}

}  // namespace

RecentFilesMenu::RecentFilesMenu(const WindowContext& context, QWidget* parent)
    : QMenu(parent), context_(context) {
    setToolTipsVisible(true);
    connect(&context.Recent, &RecentFiles::Changed, this, &RecentFilesMenu::Fill);
}

void RecentFilesMenu::Join(QAction& entry) {
    entry.setMenu(this);
    Fill();
}

void RecentFilesMenu::Fill() {
    clear();
    // Queued: an entry that is chosen may change the list that it stands in.
    for (const std::filesystem::path& path : context_.Recent.Paths()) {
        const QString name =
            fontMetrics().elidedText(ShownPath(path.filename()), Qt::ElideMiddle, kWidestName);
        QAction* entry = addAction(Numbered(actions().size() + 1, name));
        entry->setToolTip(ShownPath(path));
        entry->setStatusTip(ShownPath(path));
        connect(
            entry, &QAction::triggered, this, [this, path] { OpenRecent(context_, path); },
            Qt::QueuedConnection);
    }
    menuAction()->setEnabled(!isEmpty());
    addSeparator();
    connect(addAction(Words::tr("&Clear Menu")), &QAction::triggered, &context_.Recent,
            &RecentFiles::Clear, Qt::QueuedConnection);
}

}  // namespace orbelle::app
