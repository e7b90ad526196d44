#pragma once
// Runs the disassembler on bytes in a private folder, without a screen, and
// the assembler on its text for the way back.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "assembler_fixture.h"
#include "base/host.h"
#include "disassembler/disassembler.h"

namespace korvex::testing {

// Driver "test": TCON at 88h without a name for bit 8Bh, and TR0 named.
extern const char* const kNamingDriver;

class DisassemblerFixture : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    // Writes `bytes` as `fileName` in the folder and disassembles it.
    DisassemblyResult disassemble(const std::string& bytes, DisassemblerOptions options = {},
                                  const std::string& fileName = "prog.b51");
    // The window's text of a run that must complete.
    std::string text(const std::string& bytes, DisassemblerOptions options = {},
                     const std::string& fileName = "prog.b51");
    // The statements of a completed run: Disas2.tmp without its header.
    std::vector<std::string> statements(const std::string& bytes);

    // Assembles `source` in the folder, where the drivers lie and sources can be included.
    AssembledSource assemble(const std::string& source) const;

    void useController(const std::string& name) { disassembler_->settings().controllerName = name; }
    std::string path(const std::string& name) const { return folder_ + name; }

    std::string folder_;  // program and temporary folder; ends in "/"
    QuietHost host_;
    std::unique_ptr<Disassembler> disassembler_;
};

// Lines of a text with CR LF line ends.
std::vector<std::string> splitLines(const std::string& text);
std::string bytes(std::initializer_list<int> values);

}  // namespace korvex::testing
