#include "app/file_dialog.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

#include "app/settings.h"

namespace orbelle::app {

QStringList NameFilters(const std::string& filter) {
    const QStringList parts = QString::fromStdString(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString patterns = parts[i + 1];
        filters += parts[i] + " (" + patterns.replace(';', ' ') + ')';
    }
    return filters;
}

std::filesystem::path AskForFile(QWidget* parent, const std::string& filter, bool isOpen) {
    static constexpr char kLastFolder[] = "LastFolder";
    Settings settings;
    // One title for all uses, also for saving (docs/oddities.md, "Open File...").
    QFileDialog dialog(parent, "Open File...", settings.value(kLastFolder).toString());
    dialog.setAcceptMode(isOpen ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(isOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(NameFilters(filter));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    const QString file = dialog.selectedFiles().constFirst();
    settings.setValue(kLastFolder, QFileInfo(file).absolutePath());
    return QFile::encodeName(file).toStdString();
}

}  // namespace orbelle::app
