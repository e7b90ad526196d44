#include "base/files.h"

#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <random>
#include <system_error>

#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/failure.h"

namespace korvex {
namespace fs = std::filesystem;

namespace {

[[noreturn]] void raiseForWrite(int error, const std::string& path) {
    switch (error) {
        case ENOENT:
        case ENOTDIR: raise(FailureNumber::PathNotFound, path);
        case EACCES:
        case EPERM:
        case EROFS: raise(FailureNumber::PermissionDenied, path);
        default: raise(FailureNumber::PathFileAccess, path);
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

// Writes all bytes, syncs if asked, and closes: the error number of the
// first step that failed, 0 when the bytes are whole in the file. A full
// disk may show only at the close, when the last blocks go out.
int writeAndClose(int fd, std::string_view bytes, bool sync) {
    int error = 0;
    if (!writeAll(fd, bytes) || (sync && ::fsync(fd) != 0)) error = errno;
    if (::close(fd) != 0 && error == 0) error = errno;
    return error;
}

std::string linkTarget(const std::string& path) {
    std::error_code ec;
    if (!fs::is_symlink(path, ec)) return path;
    const fs::path resolved = fs::weakly_canonical(path, ec);
    return ec ? path : resolved.string();
}

// After the rename the folder's entry must reach the disk too; if the folder
// can't be synced the file is still whole, so this is only tried.
void syncFolder(const std::string& folder) {
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

struct PathParts {
    std::string folder;  // never empty: "." for a bare name
    std::string name;
};

PathParts splitPath(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) return {".", path};
    return {slash == 0 ? "/" : path.substr(0, slash), path.substr(slash + 1)};
}

// Temporaries are hidden beside their file: "." name "." pid "-" six letters ".tmp".
std::string temporaryPrefix(const std::string& name) {
    return "." + name + ".";
}

// A temporary left by a process that no longer runs is removed; one of a
// process still writing (a run side by side) is left alone.
void removeStaleTemporaries(const PathParts& parts) {
    const std::string prefix = temporaryPrefix(parts.name);
    DIR* dir = ::opendir(parts.folder.c_str());
    if (dir == nullptr) return;
    while (const dirent* entry = ::readdir(dir)) {
        const std::string_view entryName(entry->d_name);
        if (entryName.size() <= prefix.size() + 12 ||
            entryName.substr(0, prefix.size()) != prefix ||
            entryName.substr(entryName.size() - 4) != ".tmp") {
            continue;
        }
        std::string_view rest = entryName.substr(prefix.size());
        const std::size_t dash = rest.find('-');
        if (dash == 0 || dash == std::string_view::npos || dash > 9) continue;
        std::int64_t pid = 0;
        bool digits = true;
        for (char c : rest.substr(0, dash)) {
            if (c < '0' || c > '9') digits = false;
            pid = pid * 10 + (c - '0');
        }
        if (!digits || rest.size() != dash + 1 + 6 + 4) continue;
        if (::kill(static_cast<pid_t>(pid), 0) == 0 || errno != ESRCH) continue;
        ::unlinkat(::dirfd(dir), entry->d_name, 0);
    }
    ::closedir(dir);
}

// Creates the temporary file exclusively, so that neither a link planted
// under its name nor another run writing the same file can meet it.
int createTemporary(const PathParts& parts, std::string& temporary) {
    static constexpr char kLetters[] = "abcdefghijklmnopqrstuvwxyz0123456789";
    std::random_device seed;
    std::minstd_rand random(seed());
    const std::string stem =
        parts.folder + "/" + temporaryPrefix(parts.name) + std::to_string(::getpid()) + "-";
    for (int attempt = 0; attempt < 100; ++attempt) {
        temporary = stem;
        for (int i = 0; i < 6; ++i) temporary += kLetters[random() % (sizeof kLetters - 1)];
        temporary += ".tmp";
        const int fd =
            ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
        if (fd >= 0 || errno != EEXIST) return fd;
    }
    errno = EEXIST;
    return -1;
}

// Writes the temporary beside `target` and returns its name; raises naming `shown`.
std::string stageFile(const std::string& target, const std::string& shown, std::string_view bytes,
                      Durability durability) {
    const PathParts parts = splitPath(target);
    removeStaleTemporaries(parts);
    std::string temporary;
    const int fd = createTemporary(parts, temporary);
    if (fd < 0) raiseForWrite(errno, shown);
    // A replaced file keeps its permissions.
    struct stat old {};
    if (::stat(target.c_str(), &old) == 0 && S_ISREG(old.st_mode))
        ::fchmod(fd, old.st_mode & 07777);

    if (const int error = writeAndClose(fd, bytes, durability == Durability::RenameAndSync)) {
        ::unlink(temporary.c_str());
        raiseForWrite(error, shown);
    }
    return temporary;
}

void renameOver(const std::string& temporary, const std::string& target, const std::string& shown) {
    if (::rename(temporary.c_str(), target.c_str()) != 0) {
        const int error = errno;
        ::unlink(temporary.c_str());
        raiseForWrite(error, shown);
    }
}

// A device or a pipe named as output (-o /dev/stdout) is written into, never
// replaced by a plain file.
bool isSpecialFile(const std::string& path) {
    struct stat info {};
    return ::stat(path.c_str(), &info) == 0 && !S_ISREG(info.st_mode) && !S_ISDIR(info.st_mode);
}

void writeIntoSpecialFile(const std::string& path, std::string_view bytes) {
    const int fd = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
    if (fd < 0) raiseForWrite(errno, path);
    if (const int error = writeAndClose(fd, bytes, false)) raiseForWrite(error, path);
}

}  // namespace

bool fileExists(const std::string& path) {
    std::error_code ec;
    return !path.empty() && fs::is_regular_file(path, ec);
}

std::string readWholeFile(const std::string& path) {
    if (path.empty()) raise(FailureNumber::FileNotFound);
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) {
        switch (errno) {
            case ENOENT:
            case ENOTDIR:
            case ENAMETOOLONG: raise(FailureNumber::FileNotFound, path);
            case EACCES:
            case EPERM: raise(FailureNumber::PermissionDenied, path);
            default: raise(FailureNumber::PathFileAccess, path);
        }
    }
    struct stat info {};
    // Only plain files: a folder says so, and a pipe or a device would keep
    // the run waiting or never end.
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        const bool folder = S_ISDIR(info.st_mode);
        ::close(fd);
        RuntimeFailure failure(FailureNumber::PathFileAccess, path);
        if (folder) failure.withHint("Das ist ein Ordner, keine Datei.");
        throw failure;
    }
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(info.st_size));
    char buffer[65536];
    while (true) {
        const ssize_t got = ::read(fd, buffer, sizeof buffer);
        if (got == 0) break;
        if (got < 0) {
            if (errno == EINTR) continue;
            ::close(fd);
            raise(FailureNumber::PathFileAccess, path);
        }
        bytes.append(buffer, static_cast<std::size_t>(got));
    }
    ::close(fd);
    return bytes;
}

void replaceFileAtomically(const std::string& path, std::string_view bytes, Durability durability) {
    if (isSpecialFile(path)) {
        writeIntoSpecialFile(path, bytes);
        return;
    }
    const std::string target = linkTarget(path);
    const std::string temporary = stageFile(target, path, bytes, durability);
    renameOver(temporary, target, path);
    if (durability == Durability::RenameAndSync) syncFolder(splitPath(target).folder);
}

void writeWholeFile(const std::string& path, std::string_view bytes) {
    replaceFileAtomically(path, bytes, Durability::Rename);
}

FileSetWriter::~FileSetWriter() {
    for (const Staged& file : staged_) ::unlink(file.temporary.c_str());
}

void FileSetWriter::add(const std::string& path, std::string_view bytes) {
    const std::string target = linkTarget(path);
    staged_.push_back({target, stageFile(target, path, bytes, Durability::Rename)});
}

void FileSetWriter::commit() {
    while (!staged_.empty()) {
        const Staged file = staged_.front();
        staged_.erase(staged_.begin());
        renameOver(file.temporary, file.target, file.target);
    }
}

void deleteFileIfPresent(const std::string& path) {
    std::error_code ec;
    fs::remove(path, ec);
}

}  // namespace korvex
