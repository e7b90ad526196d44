#pragma once
// Where the program's folder is: korvex.cfg, the drivers, help and pictures.
// Resolved once, in this order: an explicit folder (command line), the
// environment variable KORVEX_HOME, the executable's own folder when it holds
// the drivers (build tree, portable install), ~/.local/share/korvex when it
// holds the drivers, else the installed data (<prefix>/share/korvex beside
// <prefix>/bin), read where it lies.
//
// Resolving only looks: reading never creates a folder. Only a caller that
// must write into the per-user folder prepares it, and that creates it below an
// existing home folder and seeds it from the installed data.

#include <string>

namespace korvex {

struct ProgramFolderSources {
    std::string explicitFolder;    // --program-folder, empty if not given
    std::string environment;       // $KORVEX_HOME, empty if not set
    std::string executableFolder;  // folder of the running program
    std::string homeFolder;        // $HOME, empty if not set
    std::string installedData;     // where an installation keeps its data
};

// The folder to read from, always ending in "/". Without any folder that
// holds drivers it is the per-user folder (or the installed data when there is
// no home folder), so that a missing driver is reported there.
std::string resolveProgramFolder(const ProgramFolderSources& sources);

// The folder to write into, ending in "/": as resolveProgramFolder, except
// that where reading falls back to the per-user folder or the installed data,
// ~/.local/share/korvex is created and seeded from the installed data (files
// already there are kept). Empty when the home folder is unset or missing: a
// home folder is never created.
std::string prepareProgramFolderForWriting(const ProgramFolderSources& sources);

// The sources as this process sees them (its executable, environment).
ProgramFolderSources processProgramFolderSources(const std::string& explicitFolder);

// A folder that ends in "/".
std::string withTrailingSlash(std::string folder);

// A fresh private folder for temporary files (removed by the caller).
std::string makePrivateTemporaryFolder();

}  // namespace korvex
