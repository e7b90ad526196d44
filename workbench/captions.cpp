#include "workbench/captions.h"

#include "base/text.h"

namespace korvex {

std::string untitledCaption(int slot) {
    return std::string(kUntitled) + " " + decimalText(slot);
}

bool isUntitled(std::string_view caption) {
    return startsWith(caption, kUntitled);
}

bool isDisassembly(std::string_view caption) {
    return startsWith(caption, "Disassembling");
}

std::string fileOfCaption(std::string_view caption) {
    if (!isDisassembly(caption)) return std::string(caption);
    return caption.size() > kDisassemblingPrefix.size()
               ? std::string(caption.substr(kDisassemblingPrefix.size()))
               : std::string();
}

std::string backupName(std::string_view target) {
    const std::size_t dot = target.find('.');
    if (dot == std::string_view::npos) return std::string(target) + ".sik51";
    return std::string(target.substr(0, dot + 1)) + "sik51";
}

std::string folderOf(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? std::string() : std::string(path.substr(0, slash + 1));
}

}  // namespace korvex
