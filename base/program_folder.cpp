#include "base/program_folder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include <unistd.h>

namespace korvex {
namespace fs = std::filesystem;

namespace {

bool holdsDrivers(const std::string& folder) {
    std::error_code ec;
    if (folder.empty() || !fs::is_directory(folder, ec)) return false;
    for (const auto& entry : fs::directory_iterator(folder, ec)) {
        if (entry.path().extension() == ".cpu") return true;
    }
    return false;
}

void seedFrom(const std::string& source, const std::string& target) {
    std::error_code ec;
    fs::create_directories(target, ec);
    if (source.empty() || !fs::is_directory(source, ec)) return;
    fs::copy(source, target, fs::copy_options::recursive | fs::copy_options::skip_existing, ec);
}

}  // namespace

std::string withTrailingSlash(std::string folder) {
    if (folder.empty() || folder.back() != '/') folder += '/';
    return folder;
}

std::string resolveProgramFolder(const ProgramFolderSources& sources) {
    if (!sources.explicitFolder.empty()) return withTrailingSlash(sources.explicitFolder);
    if (!sources.environment.empty()) return withTrailingSlash(sources.environment);
    if (holdsDrivers(sources.executableFolder)) return withTrailingSlash(sources.executableFolder);
    const std::string home = withTrailingSlash(sources.homeFolder) + ".local/share/korvex/";
    if (!holdsDrivers(home)) seedFrom(sources.installedData, home);
    return home;
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
