#pragma once
// Runs the assembler on a source text in a private folder, without a screen,
// and reads what a user gets: the report, the listing and the output files.

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "assembler/assembler.h"
#include "base/host.h"

namespace korvex::testing {

// A small driver that every test source reads first: a run needs at least one
// vector to get its report.
extern const char* const kTestDriver;

inline constexpr OutputSwitches kAllOutputs{true, true, true, true};

// One row of a listing: its address and bytes ("74 05"), where it came from
// ("1:3"; a row a structure added takes the place of the row before it) and
// its source text.
struct ListedRow {
    std::string address;
    std::string bytes;
    std::string position;
    std::string source;
};
std::vector<ListedRow> listedRows(const std::string& listing);

// The findings of a report as "position marker", e.g. "1:3 ;>err6: ...".
std::vector<std::string> reportFindings(const std::string& report);

// Bytes as hexadecimal text "74 05".
std::string hexBytes(const std::string& bytes);

// A run of `source` as "quelle.a51" in `folder` with every output switched on:
// `programFolder` holds the drivers, includes are looked up in `folder`.
struct AssembledSource {
    RunOutcome outcome = RunOutcome::Failed;
    std::string report;
    std::vector<std::string> findings;
    std::string image;
    std::string hexText;
    std::string listing;
    std::string boxText;  // the last message box
};
AssembledSource assembleText(const std::string& source, const std::string& programFolder,
                             const std::string& folder);

class AssemblerFixture : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    // Writes `source` as the temporary file and runs it as "prog.a51". Line
    // indexes of the accessors below count from the source's first line.
    RunOutcome assemble(const std::string& source, OutputSwitches switches = kAllOutputs);
    // Runs "#cpu test" followed by the lines, joined with CR LF. Line indexes
    // then count from the first of `lines`.
    RunOutcome assembleLines(const std::vector<std::string>& lines,
                             OutputSwitches switches = kAllOutputs);

    std::string image() const { return readFile("prog.b51"); }
    std::string hexImage() const { return hexBytes(image()); }
    // The report of the last completed run, as the compile dialog shows it.
    const std::string& report() const { return host_.dialogText; }
    std::vector<std::string> findings() const { return reportFindings(report()); }
    // The finding's number on a line (0 when it has none).
    int findingAt(int line) const;
    // The listed bytes and address of the rows of a line.
    std::string bytesAt(int line) const;
    std::string addressAt(int line) const;
    // The value the symbol file gives a name, "-" when it has none.
    std::string symbol(const std::string& name) const;

    void writeFile(const std::string& name, const std::string& bytes) const;
    std::string readFile(const std::string& name) const;

    std::string folder_;  // ends in "/"
    int lineOffset_ = 1;
    QuietHost host_;
    std::unique_ptr<Assembler> assembler_;

  private:
    std::string position(int line) const { return "1:" + std::to_string(line + lineOffset_); }
};

}  // namespace korvex::testing
