#pragma once
// The code image is the list of cleaned code texts, one per row: empty, or four
// address digits followed by each byte behind a separator. The writers read it
// by position and write the binary, Intel-HEX and symbol files.

#include <cstdint>
#include <string>
#include <vector>

#include "assembler/text_table.h"

namespace korvex {

struct CodeEntry {
    std::int32_t address = 0;
    std::vector<std::uint8_t> bytes;
};

// Reads address and bytes of a cleaned entry; false for an empty entry.
bool readCodeEntry(const std::string& entry, CodeEntry& out);

std::string binaryImage(const std::vector<std::string>& codeText);
std::string hexFileText(const std::vector<std::string>& codeText);
std::string symbolFileText(const TextTable<3>& symbolList);

void writeBinaryFile(const std::string& path, const std::vector<std::string>& codeText);
void writeHexFile(const std::string& path, const std::vector<std::string>& codeText);
void writeSymbolFile(const std::string& path, const TextTable<3>& symbolList);

}  // namespace korvex
