#pragma once
// Runs the assembler on a source text in a private folder, without a screen.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "assembler/assembler.h"
#include "base/host.h"

namespace korvex {

// The tests' seam into the assembler: the evaluator, and the run state that a
// single routine needs set up.
class AssemblerProbe {
  public:
    explicit AssemblerProbe(Assembler& assembler) : assembler_(assembler) {}
    RunState& state() { return assembler_.state_; }
    void evaluateExpression(std::string& text, std::int32_t& value, bool& found) {
        assembler_.evaluateExpression(text, value, found);
    }

  private:
    Assembler& assembler_;
};

}  // namespace korvex

namespace korvex::testing {

// A small driver that every test source reads first: a run needs at least one
// vector to get its report.
extern const char* const kTestDriver;

class AssemblerFixture : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    // Writes `source` as the temporary file and runs it as it stands.
    RunOutcome assemble(const std::string& source, OutputSwitches switches = {});
    // Runs "#cpu test" followed by the lines, joined with CR LF. Row numbers of
    // the accessors below then count from the first of `lines`.
    RunOutcome assembleLines(const std::vector<std::string>& lines, OutputSwitches switches = {});

    // The cleaned code image of the last run, as the binary writer makes it.
    std::string image() const;
    // Bytes of the first row that emits code, as hexadecimal text "74 05".
    std::string bytesOfRow(int row) const;
    // A row's columns as the listing shows them.
    struct RowColumns {
        std::string marker, position, statement, sourceText;
        bool retry = false;
    };
    RowColumns row(int index) const;
    const std::string& code(int index) const;
    // The marker number of a row (0 when clean).
    int markerNumber(int row) const;
    // Rows with a marker, as "position marker".
    std::vector<std::string> markers() const;

    void writeFile(const std::string& name, const std::string& bytes) const;
    std::string readFile(const std::string& name) const;

    std::string folder_;  // ends in "/"
    int rowOffset_ = 0;
    QuietHost host_;
    std::unique_ptr<Assembler> assembler_;
    AssemblerProbe probe() { return AssemblerProbe(*assembler_); }
};

}  // namespace korvex::testing
