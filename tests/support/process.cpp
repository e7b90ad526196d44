#include "testing/process.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <sys/wait.h>

#include "base/program_folder.h"

namespace korvex::testing {

ProcessResult runProcess(const std::string& command) {
    ProcessResult result;
    FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) return result;
    std::array<char, 4096> buffer{};
    std::size_t got = 0;
    while ((got = fread(buffer.data(), 1, buffer.size(), pipe)) > 0) {
        result.output.append(buffer.data(), got);
    }
    const int status = pclose(pipe);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}

ProcessResult runBash(const std::string& script) {
    std::string quoted;
    for (char c : script) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return runProcess("bash -c '" + quoted + "' 2>&1");
}

std::string readFileBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void writeFileBytes(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

ScratchFolder::ScratchFolder() : path_(makePrivateTemporaryFolder()) {}

ScratchFolder::~ScratchFolder() {
    std::error_code ec;
    if (!path_.empty()) std::filesystem::remove_all(path_, ec);
}

std::string ScratchFolder::write(const std::string& name, const std::string& bytes) const {
    writeFileBytes(path_ + name, bytes);
    return path_ + name;
}

std::string ScratchFolder::read(const std::string& name) const {
    return readFileBytes(path_ + name);
}

}  // namespace korvex::testing
