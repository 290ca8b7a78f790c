// The files that the user opened or saved last.
#pragma once

#include <QObject>
#include <filesystem>
#include <vector>

namespace orbelle::app {

inline constexpr std::size_t kMostRecentFiles = 10;

class RecentFiles : public QObject {
    Q_OBJECT

public:
    // Reads the list; from here on every change of it is stored at once.
    void Restore();

    // The newest first, each once.
    const std::vector<std::filesystem::path>& Paths() const { return paths_; }

    void Note(const std::filesystem::path& path);
    void Forget(const std::filesystem::path& path);
    void Clear();

signals:
    void Changed();

private:
    void Read();
    void Write();

    std::vector<std::filesystem::path> paths_;
    bool isStored_ = false;
};

// A path, or a part of one, to be shown in one line: bytes that are no text and control characters
// have stand-ins.
QString ShownPath(const std::filesystem::path& path);

}  // namespace orbelle::app
