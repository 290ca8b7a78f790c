// The one file dialog of all commands.
#pragma once

#include <QStringList>
#include <filesystem>
#include <string>

class QWidget;

namespace orbelle::app {

// "text|*.a;*.b|text|*.c" as "text (*.a *.b)", "text (*.c)". A text without patterns is dropped.
QStringList NameFilters(const std::string& filter);

// Starts in the folder of the last file. Empty: cancelled.
std::filesystem::path AskForFile(QWidget* parent, const std::string& filter);

// Starts with the proposed name, in its folder if it has one that is there. Never asks before a
// file is overwritten and appends no extension: both are the editor's. Empty: cancelled.
std::filesystem::path AskForFileToWrite(QWidget* parent, const std::string& filter,
                                        const std::filesystem::path& proposed);

}  // namespace orbelle::app
