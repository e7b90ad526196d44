#pragma once
// The private folder of one command-line run (TmpFile.tmp, include copies,
// Disas.tmp). It holds copies of the user's source, so it goes when the run
// ends, also when the run is stopped by Ctrl-C, SIGTERM, SIGHUP or a broken
// pipe (`korvex-disasm ... | head`).

#include <string>

namespace korvex {

class TemporaryFolder {
  public:
    // Creates the folder; path() is empty when that failed.
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    // Ends in "/".
    const std::string& path() const { return path_; }

  private:
    std::string path_;
};

}  // namespace korvex
