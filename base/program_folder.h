#pragma once
// Where the program's folder is: korvex.cfg, the drivers, help and pictures.
// Resolved once, in this order: an explicit folder (command line), the
// environment variable KORVEX_HOME, the executable's own folder when it holds
// the drivers (build tree, portable install), else ~/.local/share/korvex,
// created and seeded from the installed data on first use.

#include <string>

namespace korvex {

struct ProgramFolderSources {
    std::string explicitFolder;   // --program-folder, empty if not given
    std::string environment;      // $KORVEX_HOME, empty if not set
    std::string executableFolder; // folder of the running program
    std::string homeFolder;       // $HOME
    std::string installedData;    // where an installation keeps its data, for seeding
};

// The folder, always ending in "/".
std::string resolveProgramFolder(const ProgramFolderSources& sources);

// The sources as this process sees them (argv[0], environment).
ProgramFolderSources processProgramFolderSources(const std::string& explicitFolder);

// A folder that ends in "/".
std::string withTrailingSlash(std::string folder);

// A fresh private folder for temporary files (removed by the caller).
std::string makePrivateTemporaryFolder();

}  // namespace korvex
