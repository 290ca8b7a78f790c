#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>

#include "cli/memory_file.h"
#include "cli/workspace.h"

namespace orbelle::cli {

MemoryFile::MemoryFile() : descriptor_(memfd_create("orbelle-cli", MFD_CLOEXEC)) {
    if (descriptor_ < 0)
        throw Failure(std::generic_category().message(errno));
    path_ = kMemoryFiles + std::to_string(descriptor_);
}

MemoryFile::~MemoryFile() {
    close(descriptor_);
}

}  // namespace orbelle::cli
