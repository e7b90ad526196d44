#pragma once
// What the file-touching fuzz targets share: one private scratch folder per
// process, and the rule that keeps every path of an input inside it.

#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

namespace korvex::fuzz {

// One private folder per process: parallel fuzzing jobs must not meet. It
// goes when the process exits.
struct ScratchFolder {
    ScratchFolder() {
        path = (std::filesystem::temp_directory_path() / "korvex-fuzz-XXXXXX").string();
        if (mkdtemp(path.data()) == nullptr) std::abort();
        path += '/';
    }
    ~ScratchFolder() {
        std::error_code ec;
        std::filesystem::remove_all(path, ec);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    std::string path;
};

// Without a separator a file name the input writes (#INCLUDE, #CPU, #PART OF,
// the command line) is one name in the folder it is looked up in: no "..\",
// no absolute path, no drive can lead out. ".." alone names a folder, which
// no reader takes for a file.
inline std::string withoutSeparators(std::string_view bytes) {
    std::string text(bytes);
    for (char& c : text) {
        if (c == '/' || c == '\\') c = '_';
    }
    return text;
}

// Empties `folder` except for the names it keeps, so that what one run wrote
// (outputs, temporary files) can't feed the next: every run starts alike.
template <typename Keep>
void clearFolder(const std::string& folder, Keep keep) {
    std::error_code ec;
    for (const auto& entry : std::filesystem::directory_iterator(folder, ec)) {
        if (keep(entry.path().filename().string())) continue;
        std::error_code removeError;
        std::filesystem::remove_all(entry.path(), removeError);
    }
}

// The shipped drivers copied into `folder`, for a run that must not read
// anything outside its scratch folder.
inline void copyDrivers(const std::string& from, const std::string& folder) {
    std::filesystem::create_directories(folder);
    for (const auto& entry : std::filesystem::directory_iterator(from)) {
        if (entry.path().extension() != ".cpu") continue;
        std::filesystem::copy_file(entry.path(), folder + entry.path().filename().string(),
                                   std::filesystem::copy_options::overwrite_existing);
    }
}

}  // namespace korvex::fuzz
