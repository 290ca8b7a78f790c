#include "app/file_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include "app/file_names.h"
#include "app/settings.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

constexpr char kLastFolder[] = "LastFolder";

// One title for all uses, also for saving (docs/oddities.md, Words::tr("Open File...")).
class FileDialog : public QFileDialog {
public:
    FileDialog(QWidget* parent, const std::string& filter)
        : QFileDialog(parent, Words::tr("Open File..."), Settings().value(kLastFolder).toString()) {
        setOption(QFileDialog::HideNameFilterDetails);
        setNameFilters(NameFilters(filter));
    }

    std::filesystem::path Ask() {
        if (exec() != QDialog::Accepted || selectedFiles().isEmpty())
            return {};
        const QString file = selectedFiles().constFirst();
        Settings().setValue(kLastFolder, QFileInfo(file).absolutePath());
        return PathOf(file);
    }
};

}  // namespace

QStringList NameFilters(const std::string& filter) {
    const QStringList parts = QString::fromStdString(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString patterns = parts[i + 1];
        filters += parts[i] + " (" + patterns.replace(';', ' ') + ')';
    }
    return filters;
}

std::filesystem::path AskForFile(QWidget* parent, const std::string& filter) {
    FileDialog dialog(parent, filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return dialog.Ask();
}

std::filesystem::path AskForFileToWrite(QWidget* parent, const std::string& filter,
                                        const std::filesystem::path& proposed) {
    FileDialog dialog(parent, filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    const QFileInfo file(TextOf(proposed));
    if (proposed.has_parent_path() && file.dir().exists())
        dialog.setDirectory(file.absolutePath());
    dialog.selectFile(file.fileName());
    return dialog.Ask();
}

}  // namespace orbelle::app
