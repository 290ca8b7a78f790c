// Files that others keep open, attributes, names of devices.
#include <windows.h>

#include <fstream>

#include "file_io_fixture.h"
#include "graphics/errors.h"

namespace orbelle::graphics {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::ThrowsMessage;

// A file that another program has open and shares in this way.
class OpenFile {
public:
    OpenFile(const fs::path& path, DWORD sharing, DWORD access = GENERIC_READ)
        : handle_(CreateFileW(path.c_str(), access, sharing, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr)) {
        EXPECT_NE(handle_, INVALID_HANDLE_VALUE);
    }
    ~OpenFile() { CloseHandle(handle_); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

private:
    HANDLE handle_;
};

bool IsWine() {
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

class WindowsFileIo : public FileIo {
protected:
    WindowsFileIo() { WriteFile(file_, kOld); }

    const fs::path file_ = folder_ / "a";
};

TEST_F(WindowsFileIo, AReadOnlyFileIsNotReplaced) {
    SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_READONLY);
    if (IsWine() && std::ofstream(file_, std::ios::app))
        GTEST_SKIP() << "a system below that lets this user write to every file";
    EXPECT_THAT([&] { WriteFile(file_, kNew); },
                ThrowsMessage<FileError>(Utf8Of(file_) + ": Permission denied"));
    EXPECT_EQ(ReadFile(file_), kOld);
    EXPECT_TRUE(GetFileAttributesW(file_.c_str()) & FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(FilesInFolder(), 1u);
    SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsFileIo, WhatOthersKeepForThemselvesStaysAsItIs) {
    for (const DWORD sharing : {DWORD{0}, DWORD{FILE_SHARE_READ}}) {
        const OpenFile other(file_, sharing);
        EXPECT_THAT(
            [&] { WriteFile(file_, kNew); },
            ThrowsMessage<FileError>(Utf8Of(file_) + ": another program keeps the file open"));
    }
    EXPECT_EQ(ReadFile(file_), kOld);
    EXPECT_EQ(FilesInFolder(), 1u);
    const OpenFile writer(file_, 0, GENERIC_WRITE);
    EXPECT_THAT([&] { ReadFile(file_); }, ThrowsMessage<FileError>(HasSubstr("keeps the file")));
}

TEST_F(WindowsFileIo, WhatOthersShareIsWritten) {
    {
        const OpenFile other(file_, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
        WriteFile(file_, kNew);
    }
    EXPECT_EQ(ReadFile(file_), kNew);
    // Its name can't be taken, but it can be written to.
    {
        const OpenFile other(file_, FILE_SHARE_READ | FILE_SHARE_WRITE);
        WriteFile(file_, kOld);
    }
    EXPECT_EQ(ReadFile(file_), kOld);
    EXPECT_EQ(Copies(), 0u);
}

TEST_F(WindowsFileIo, AReplacedFileKeepsItsAttributes) {
    if (IsWine())
        GTEST_SKIP() << "it keeps none";
    SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_HIDDEN);
    WriteFile(file_, kNew);
    EXPECT_EQ(ReadFile(file_), kNew);
    EXPECT_TRUE(GetFileAttributesW(file_.c_str()) & FILE_ATTRIBUTE_HIDDEN);
}

TEST_F(WindowsFileIo, NamesMayBePartedByBackslashesAndHaveAnyCase) {
    fs::create_directory(folder_ / "In");
    WriteFile(folder_ / "in\\B", kOld);
    WriteFile(folder_ / "IN/b", kNew);
    EXPECT_EQ(ReadFile(folder_ / "In\\b"), kNew);
}

TEST_F(WindowsFileIo, ANameOfADeviceMakesNoFile) {
    WriteFile(folder_ / "NUL", kNew);
    EXPECT_THROW(ReadFile(folder_ / "NUL"), FileError);
    EXPECT_EQ(FilesInFolder(), 1u);
}

TEST_F(WindowsFileIo, WhatAKilledSaveLeftGoesWithTheNextOne) {
    const std::string own = std::to_string(GetCurrentProcessId());
    const std::string stale = ".orbelle-2147483644-12.tmp";
    const std::string kept[] = {".orbelle-" + own + "-12.tmp", ".orbelle-2147483644-1x.tmp",
                                ".orbelle-2147483644-13.tmp"};
    for (const std::string& name : {stale, kept[0], kept[1], kept[2]})
        std::ofstream(folder_ / name) << "half";
    {
        // As if its process was one of another machine's.
        const OpenFile inUse(folder_ / kept[2], FILE_SHARE_DELETE, GENERIC_WRITE);
        // The folder has just been looked through.
        Sleep(1100);
        WriteFile(file_, kNew);
    }
    EXPECT_FALSE(fs::exists(folder_ / stale));
    for (const std::string& name : kept)
        EXPECT_TRUE(fs::exists(folder_ / name)) << name;
}

}  // namespace
}  // namespace orbelle::graphics
