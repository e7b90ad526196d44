#include "cli/temporary_folder.h"

#include <csignal>
#include <cstring>
#include <filesystem>
#include <system_error>

#include <dirent.h>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "base/program_folder.h"

namespace korvex {
namespace {

// A signal handler can reach nothing but what lies here: the one folder of
// the run, as a plain buffer. A command-line run has at most one at a time.
char registeredFolder[4096];
volatile std::sig_atomic_t folderRegistered = 0;

constexpr int kCleanedSignals[] = {SIGINT, SIGTERM, SIGHUP, SIGPIPE};

// The layout of a record of getdents64: inode (8 bytes), offset (8), record
// length (2), type (1), then the name with its terminating zero.
constexpr std::size_t kRecordLengthAt = 16;
constexpr std::size_t kNameAt = 19;

// Only system calls, which are safe inside a handler: the folder is flat,
// so its files go and then the folder itself.
void removeRegisteredFolder() {
    if (folderRegistered == 0) return;
    const int fd = ::open(registeredFolder, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        alignas(8) char buffer[8192];
        while (true) {
            const long got = ::syscall(SYS_getdents64, fd, buffer, sizeof buffer);
            if (got <= 0) break;
            for (long at = 0; at < got;) {
                unsigned short length = 0;
                std::memcpy(&length, buffer + at + kRecordLengthAt, sizeof length);
                const char* name = buffer + at + kNameAt;
                at += length;
                if (length == 0) break;
                if (std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0) continue;
                ::unlinkat(fd, name, 0);
            }
        }
        ::close(fd);
    }
    ::rmdir(registeredFolder);
}

extern "C" void cleanUpAndDie(int signalNumber) {
    removeRegisteredFolder();
    // Die of the same signal, so that the caller (a shell, make) sees why.
    std::signal(signalNumber, SIG_DFL);
    std::raise(signalNumber);
}

void installHandlers() {
    static bool installed = false;
    if (installed) return;
    installed = true;
    for (const int signalNumber : kCleanedSignals) {
        struct sigaction action {};
        action.sa_handler = cleanUpAndDie;
        sigemptyset(&action.sa_mask);
        for (const int blocked : kCleanedSignals) sigaddset(&action.sa_mask, blocked);
        struct sigaction previous {};
        ::sigaction(signalNumber, nullptr, &previous);
        // A signal the caller chose to ignore (nohup) stays ignored.
        if (previous.sa_handler == SIG_IGN) continue;
        ::sigaction(signalNumber, &action, nullptr);
    }
}

// Blocks the cleaned signals while the registration changes, so that a
// handler never sees half a path.
class SignalsHeld {
  public:
    SignalsHeld() {
        sigset_t set;
        sigemptyset(&set);
        for (const int signalNumber : kCleanedSignals) sigaddset(&set, signalNumber);
        ::sigprocmask(SIG_BLOCK, &set, &previous_);
    }
    ~SignalsHeld() { ::sigprocmask(SIG_SETMASK, &previous_, nullptr); }

  private:
    sigset_t previous_{};
};

}  // namespace

TemporaryFolder::TemporaryFolder() {
    SignalsHeld held;
    path_ = makePrivateTemporaryFolder();
    if (path_.empty() || path_.size() >= sizeof registeredFolder) return;
    installHandlers();
    std::memcpy(registeredFolder, path_.c_str(), path_.size() + 1);
    folderRegistered = 1;
}

TemporaryFolder::~TemporaryFolder() {
    SignalsHeld held;
    folderRegistered = 0;
    if (path_.empty()) return;
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
}

}  // namespace korvex
