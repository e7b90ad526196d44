#pragma once
// Runs the assembler on a source text in a private folder, without a screen.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "assembler/assembler.h"
#include "base/host.h"

namespace korvex::testing {

// Records every box, and answers with the scripted answers, else the first button.
class RecordingHost : public QuietHost {};

class AssemblerFixture : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Writes `source` (lines joined with CR LF) as the temporary file and runs.
    RunOutcome assemble(const std::string& source, OutputSwitches switches = {});
    RunOutcome assembleLines(const std::vector<std::string>& lines, OutputSwitches switches = {});

    // The cleaned code image of the last run, as the binary writer makes it.
    std::string image() const;
    // Bytes of the first row that emits code, as hexadecimal text "74 05".
    std::string bytesOfRow(int row) const;
    const SourceRow& row(int index) const;
    // The marker number of a row (0 when clean).
    int markerNumber(int row) const;
    // Rows with a marker, as "position marker".
    std::vector<std::string> markers() const;

    void writeFile(const std::string& name, const std::string& bytes) const;
    std::string readFile(const std::string& name) const;

    std::string folder_;  // ends in "/"
    RecordingHost host_;
    std::unique_ptr<Assembler> assembler_;
};

}  // namespace korvex::testing
