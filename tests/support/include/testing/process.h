#pragma once
// What the end-to-end tests share: a program run through the shell with its
// output collected, a private folder that goes with the test, whole files.

#include <string>

namespace korvex::testing {

struct ProcessResult {
    int exitCode = -1;   // -1 when the program did not end by itself
    std::string output;  // standard output, byte for byte
};

// Runs `command` with /bin/sh; add " 2>&1" to the command to collect errors too.
ProcessResult runProcess(const std::string& command);

// Runs `script` with bash (for ulimit, pipes, job control), errors joined.
ProcessResult runBash(const std::string& script);

std::string readFileBytes(const std::string& path);
void writeFileBytes(const std::string& path, const std::string& bytes);

// A fresh private folder, removed with everything in it at the end of its scope.
class ScratchFolder {
  public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    // Ends in "/".
    const std::string& path() const { return path_; }
    // Writes a file in the folder and returns its full path.
    std::string write(const std::string& name, const std::string& bytes) const;
    std::string read(const std::string& name) const;

  private:
    std::string path_;
};

}  // namespace korvex::testing
