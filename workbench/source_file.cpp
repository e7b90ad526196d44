#include "workbench/source_file.h"

#include "base/cp1252.h"
#include "base/files.h"
#include "base/text.h"
#include "workbench/captions.h"
#include "workbench/rtf_text.h"

namespace korvex {

std::string readSourceFile(const std::string& name) {
    std::string bytes = readWholeFile(toUtf8(name));
    return looksLikeRtf(bytes) ? plainTextOfRtf(bytes) : bytes;
}

std::string withoutDoubledCr(std::string bytes) {
    while (bytes.find("\r\r") != std::string::npos) bytes = replaceAll(bytes, "\r\r", "\r");
    return bytes;
}

void writeTextFile(const std::string& text, const std::string& name) {
    replaceFileAtomically(toUtf8(name), withoutDoubledCr(text));
}

void writeBackupOf(const std::string& name) {
    const std::string path = toUtf8(name);
    if (!fileExists(path)) return;
    replaceFileAtomically(toUtf8(backupName(name)), readWholeFile(path), Durability::Rename);
}

}  // namespace korvex
