#pragma once
// Runs the assembler on a source text in a private folder, without a screen,
// and reads what a user gets: the report, the listing and the output files.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "assembler/assembler.h"
#include "base/host.h"

namespace korvex::testing {

inline constexpr OutputSwitches kAllOutputs{true, true, true, true};

// A listing row: address, bytes ("74 05"), position ("1:3"; a row a structure
// added takes the place of the row before it) and source text.
struct ListedRow {
    std::string address, bytes, position, source;
};
std::vector<ListedRow> listedRows(const std::string& listing);
// The findings of a report as "position marker", e.g. "1:3 ;>err6: ...".
std::vector<std::string> reportFindings(const std::string& report);
std::string hexBytes(const std::string& bytes);  // "74 05"

// A run of `source` as "quelle.a51" in `folder` with every output switched on:
// `programFolder` holds the drivers, includes are looked up in `folder`.
struct AssembledSource {
    RunOutcome outcome = RunOutcome::Failed;
    std::vector<std::string> findings;
    std::string report, image, hexText, listing, boxText;
};
AssembledSource assembleText(const std::string& source, const std::string& programFolder,
                             const std::string& folder);

class AssemblerFixture : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    // Writes `source` as the temporary file and runs it as "prog.a51"; line
    // indexes below count from the source's first line.
    RunOutcome assemble(const std::string& source, OutputSwitches switches = kAllOutputs);
    // Runs "#cpu test" (a small driver with three vectors) and the lines; line
    // indexes below count from the first of `lines`.
    RunOutcome assembleLines(const std::vector<std::string>& lines,
                             OutputSwitches switches = kAllOutputs);

    std::string image() const { return readFile("prog.b51"); }
    std::string hexImage() const { return hexBytes(image()); }
    const std::string& report() const { return host_.dialogText; }
    std::vector<std::string> findings() const { return reportFindings(report()); }
    int findingAt(int line) const;                      // the finding's number, 0 for none
    std::string bytesAt(int line) const;                // of all rows of the line
    std::string addressAt(int line) const;              // of its first row, "-" for none
    std::string symbol(const std::string& name) const;  // its value in the symbol file, or "-"

    void writeFile(const std::string& name, const std::string& bytes) const;
    std::string readFile(const std::string& name) const;

    std::string folder_;  // ends in "/"
    int lineOffset_ = 1;
    QuietHost host_;
    std::unique_ptr<Assembler> assembler_;

  private:
    std::vector<ListedRow> rowsAt(int line) const;
};

}  // namespace korvex::testing
