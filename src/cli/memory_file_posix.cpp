#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>

#include "cli/memory_file.h"
#include "cli/workspace.h"

namespace orbelle::cli {
namespace {

constexpr char kFront[] = "/dev/fd/";

}  // namespace

struct MemoryFile::Keeper {
    int Descriptor = memfd_create("orbelle-cli", MFD_CLOEXEC);

    ~Keeper() {
        if (Descriptor >= 0)
            close(Descriptor);
    }
};

MemoryFile::MemoryFile() : keeper_(std::make_unique<Keeper>()) {
    if (keeper_->Descriptor < 0)
        throw Failure(std::generic_category().message(errno));
    path_ = kFront + std::to_string(keeper_->Descriptor);
}

MemoryFile::~MemoryFile() = default;

bool IsOfMemoryFile(std::string_view message) {
    return message.starts_with(kFront);
}

}  // namespace orbelle::cli
