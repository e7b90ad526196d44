#include "base/program_folder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include <unistd.h>

namespace korvex {
namespace fs = std::filesystem;

namespace {

bool isFolder(const std::string& path) {
    std::error_code ec;
    return !path.empty() && fs::is_directory(path, ec);
}

// Stepping with an error code: an unreadable folder holds no drivers rather
// than throwing out of a plain range loop.
bool holdsDrivers(const std::string& folder) {
    if (!isFolder(folder)) return false;
    std::error_code ec;
    for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
        if (it->path().extension() == ".cpu") return true;
    }
    return false;
}

std::string perUserFolder(const std::string& homeFolder) {
    return withTrailingSlash(homeFolder) + ".local/share/korvex/";
}

// The sources that name a folder outright, or the executable's folder when it
// holds the drivers; empty when the choice falls to the per-user folder.
std::string chosenBeforePerUser(const ProgramFolderSources& sources) {
    if (!sources.explicitFolder.empty()) return withTrailingSlash(sources.explicitFolder);
    if (!sources.environment.empty()) return withTrailingSlash(sources.environment);
    if (holdsDrivers(sources.executableFolder)) return withTrailingSlash(sources.executableFolder);
    return {};
}

}  // namespace

std::string withTrailingSlash(std::string folder) {
    if (folder.empty() || folder.back() != '/') folder += '/';
    return folder;
}

std::string resolveProgramFolder(const ProgramFolderSources& sources) {
    if (std::string chosen = chosenBeforePerUser(sources); !chosen.empty()) return chosen;
    const std::string perUser =
        sources.homeFolder.empty() ? std::string() : perUserFolder(sources.homeFolder);
    if (!perUser.empty() && holdsDrivers(perUser)) return perUser;
    if (holdsDrivers(sources.installedData)) return withTrailingSlash(sources.installedData);
    if (!perUser.empty()) return perUser;
    if (!sources.installedData.empty()) return withTrailingSlash(sources.installedData);
    if (!sources.executableFolder.empty()) return withTrailingSlash(sources.executableFolder);
    return "./";
}

std::string prepareProgramFolderForWriting(const ProgramFolderSources& sources) {
    if (std::string chosen = chosenBeforePerUser(sources); !chosen.empty()) return chosen;
    if (!isFolder(sources.homeFolder)) return {};
    const std::string folder = perUserFolder(sources.homeFolder);
    std::error_code ec;
    fs::create_directories(folder, ec);
    if (ec || !isFolder(folder)) return {};
    if (isFolder(sources.installedData)) {
        // Files the user already has there (korvex.cfg, own drivers) stay.
        fs::copy(sources.installedData, folder,
                 fs::copy_options::recursive | fs::copy_options::skip_existing, ec);
        if (ec) return {};
    }
    return folder;
}

ProgramFolderSources processProgramFolderSources(const std::string& explicitFolder) {
    ProgramFolderSources sources;
    sources.explicitFolder = explicitFolder;
    if (const char* env = std::getenv("KORVEX_HOME")) sources.environment = env;
    if (const char* home = std::getenv("HOME")) sources.homeFolder = home;
    std::error_code ec;
    const fs::path self = fs::read_symlink("/proc/self/exe", ec);
    if (!ec) {
        sources.executableFolder = self.parent_path().string();
        // An installation keeps its data in ../share/korvex beside bin/.
        sources.installedData = (self.parent_path().parent_path() / "share" / "korvex").string();
    }
    return sources;
}

std::string makePrivateTemporaryFolder() {
    std::error_code ec;
    std::string pattern = (fs::temp_directory_path(ec) / "korvex-XXXXXX").string();
    if (ec) pattern = "/tmp/korvex-XXXXXX";
    if (::mkdtemp(pattern.data()) == nullptr) return {};
    return withTrailingSlash(pattern);
}

}  // namespace korvex
