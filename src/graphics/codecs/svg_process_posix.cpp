#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <string>

#include "graphics/codecs/image_codecs.h"
#include "graphics/codecs/image_files.h"
#include "graphics/codecs/svg_process.h"

// The program's surroundings.
extern char** environ;  // NOLINT(readability-redundant-declaration)

namespace orbelle::graphics {
namespace {

namespace fs = std::filesystem;

constexpr char kProgram[] = "orbelle-svg";
constexpr int kMaxSide = kMaxSvgSide;
constexpr std::size_t kMaxReplyBytes =
    sizeof(SvgReply) + std::size_t{kMaxSide} * kMaxSide * sizeof(std::uint32_t);
constexpr std::chrono::seconds kMaxWait{6 * kMaxSvgSeconds};

class Descriptor {
public:
    explicit Descriptor(int number = -1) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { Close(); }

    int Number() const { return number_; }
    void Close() {
        if (number_ >= 0)
            close(number_);
        number_ = -1;
    }

private:
    int number_;
};

[[noreturn]] void ThrowSystem(const char* what) {
    throw ImageError(std::string("the SVG drawing can't be read: ") + what + ": " +
                     std::strerror(errno));
}

// Beside the program that runs, or where both are installed; else where the shell would look.
std::string FindProgram() {
    std::error_code none;
    const fs::path folder = fs::read_symlink("/proc/self/exe", none).parent_path();
    for (const fs::path& place :
         {folder / kProgram, folder / ORBELLE_SVG_FROM_PROGRAMS / kProgram}) {
        if (!folder.empty() && access(place.c_str(), X_OK) == 0)
            return place;
    }
    return kProgram;
}

// A file in memory with the document, at its beginning.
int FileOf(std::span<const std::uint8_t> document) {
    const int file = memfd_create("svg", MFD_CLOEXEC);
    while (file >= 0 && !document.empty()) {
        const ssize_t count = write(file, document.data(), document.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) {
            close(file);
            return -1;
        }
        document = document.subspan(static_cast<std::size_t>(count));
    }
    if (file >= 0)
        lseek(file, 0, SEEK_SET);
    return file;
}

pid_t Start(int input, int output, int side) {
    const std::string program = FindProgram();
    std::string name = kProgram, number = std::to_string(side);
    char* arguments[] = {name.data(), number.data(), nullptr};
    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_adddup2(&files, input, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&files, output, STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawnattr_init(&attributes);
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    pid_t process = -1;
    const int error =
        posix_spawnp(&process, program.c_str(), &files, &attributes, arguments, environ);
    posix_spawn_file_actions_destroy(&files);
    posix_spawnattr_destroy(&attributes);
    if (error != 0) {
        errno = error;
        ThrowSystem(kProgram);
    }
    return process;
}

// Ended and waited for at the end of its life here.
class Process {
public:
    explicit Process(pid_t id) : id_(id) {}
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process() {
        if (id_ > 0) {
            kill(id_, SIGKILL);
            Wait();
        }
    }

    // Its status, or -1.
    int Wait() {
        int status = -1;
        while (waitpid(id_, &status, 0) < 0) {
            if (errno != EINTR) {
                status = -1;
                break;
            }
        }
        id_ = -1;
        return status;
    }

private:
    pid_t id_;
};

// All that comes, until the other end is closed. False: it took too long, or was too much.
bool ReadReply(int from, std::vector<std::uint8_t>& reply) {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + kMaxWait;
    std::array<std::uint8_t, 65536> piece{};
    while (true) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
        pollfd wait = {from, POLLIN, 0};
        const int ready = left > 0 ? poll(&wait, 1, static_cast<int>(left)) : 0;
        if (ready < 0 && errno == EINTR)
            continue;
        if (ready <= 0)
            return false;
        const ssize_t count = read(from, piece.data(), piece.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return count == 0;
        if (reply.size() + static_cast<std::size_t>(count) > kMaxReplyBytes)
            return false;
        reply.insert(reply.end(), piece.data(), piece.data() + count);
    }
}

DrawnSvg Parse(const std::vector<std::uint8_t>& bytes) {
    DrawnSvg drawn;
    if (bytes.size() < sizeof drawn.Reply)
        ThrowDamaged("SVG", "its drawing ended too early");
    std::memcpy(&drawn.Reply, bytes.data(), sizeof drawn.Reply);
    const auto isSide = [](std::int32_t side) { return side >= 0 && side <= kMaxSide; };
    const SvgReply& reply = drawn.Reply;
    if (!isSide(reply.Width) || !isSide(reply.Height))
        ThrowDamaged("SVG", "its drawing has a wrong size");
    drawn.Pixels.resize(static_cast<std::size_t>(reply.Width) *
                        static_cast<std::size_t>(reply.Height));
    const std::size_t pixelBytes = drawn.Pixels.size() * sizeof(std::uint32_t);
    if (bytes.size() != sizeof reply + pixelBytes)
        ThrowDamaged("SVG", "its drawing ended too early");
    if (pixelBytes > 0)
        std::memcpy(drawn.Pixels.data(), bytes.data() + sizeof reply, pixelBytes);
    return drawn;
}

}  // namespace

DrawnSvg DrawSvgElsewhere(std::span<const std::uint8_t> document, int side) {
    const Descriptor input(FileOf(document));
    int ends[2];
    if (input.Number() < 0 || pipe2(ends, O_CLOEXEC) != 0)
        ThrowSystem("no room for it");
    const Descriptor from(ends[0]);
    Descriptor to(ends[1]);
    Process process(Start(input.Number(), to.Number(), side));
    to.Close();
    std::vector<std::uint8_t> reply;
    if (!ReadReply(from.Number(), reply))
        throw ImageError("the SVG drawing takes too long");
    const int status = process.Wait();
    if (status != -1 && WIFEXITED(status) && WEXITSTATUS(status) == 0)
        return Parse(reply);
    if (status != -1 && WIFSIGNALED(status))
        throw ImageError(WTERMSIG(status) == SIGXCPU || WTERMSIG(status) == SIGKILL
                             ? "the SVG drawing takes too long"
                             : "the SVG drawing takes too much memory, or is damaged");
    ThrowDamaged("SVG", {reply.begin(), reply.end()});
}

}  // namespace orbelle::graphics
