// Small pictures of files, made beside the window's work.
#pragma once

#include <QImage>
#include <QObject>
#include <filesystem>
#include <memory>
#include <vector>

namespace orbelle::app {

// A thread looks for the files and then makes their pictures, one after the other, since a file may
// take what opening it takes (formats/file_preview.h). What it made is kept while it is wanted.
class FileThumbnails : public QObject {
    Q_OBJECT

public:
    FileThumbnails();
    // Does not wait long for a file that keeps the thread.
    ~FileThumbnails() override;

    // From here on only these are wanted: of the `paths` that are there the first `most`, in a
    // square of `side` pixels. Of a file that has changed the picture is made anew.
    void Want(std::vector<std::filesystem::path> paths, std::size_t most, int side);
    // Nothing more is made.
    void Stop() { Want({}, 0, 0); }

signals:
    // Which of the files that are wanted are there.
    void Found(const std::vector<std::filesystem::path>& paths);
    // Null: the file has no picture.
    void Made(const std::filesystem::path& path, const QImage& picture);

private:
    struct Work;

    std::shared_ptr<Work> work_;
};

}  // namespace orbelle::app
