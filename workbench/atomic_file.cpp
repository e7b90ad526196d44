#include "workbench/atomic_file.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/failure.h"

namespace korvex {
namespace {

[[noreturn]] void raiseForError(int error) {
    switch (error) {
        case ENOENT:
        case ENOTDIR:
            raise(FailureNumber::PathNotFound);
        case EACCES:
        case EPERM:
        case EROFS:
            raise(FailureNumber::PermissionDenied);
        default:
            raise(FailureNumber::PathFileAccess);
    }
}

bool writeAll(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(fd, bytes.data(), bytes.size());
        if (written < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

std::string linkTarget(const std::string& path) {
    std::error_code ec;
    if (!std::filesystem::is_symlink(path, ec)) return path;
    const std::filesystem::path resolved = std::filesystem::canonical(path, ec);
    return ec ? path : resolved.string();
}

// After the rename the folder's entry must reach the disk too; if the folder
// can't be synced the file is still whole, so this is only tried.
void syncFolderOf(const std::string& path) {
    const std::string folder = std::filesystem::path(path).parent_path().string();
    const int fd =
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

}  // namespace

void replaceFileAtomically(const std::string& path, std::string_view bytes) {
    const std::string target = linkTarget(path);
    // One name per process: two programs saving at once don't share it.
    const std::string temporary = target + "." + std::to_string(::getpid()) + ".tmp";
    const int fd = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (fd < 0) raiseForError(errno);
    struct stat old {};
    if (::stat(target.c_str(), &old) == 0) ::fchmod(fd, old.st_mode & 07777);

    bool done = writeAll(fd, bytes) && ::fsync(fd) == 0;
    int error = done ? 0 : errno;
    if (::close(fd) != 0 && done) {
        done = false;
        error = errno;
    }
    if (done && ::rename(temporary.c_str(), target.c_str()) != 0) {
        done = false;
        error = errno;
    }
    if (!done) {
        ::unlink(temporary.c_str());
        raiseForError(error);
    }
    syncFolderOf(target);
}

}  // namespace korvex
