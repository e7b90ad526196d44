#pragma once
// A loaded 80C52 wizard without a screen: scripted answers, a fixed date and
// the German decimal comma. `set` acts as the user does: the control's change
// operation, and for a typed field leaving it afterwards. Its programs are
// assembled with the shipped 80C32 driver, as the compile command would.

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "assembler_fixture.h"
#include "testing/s51_runner.h"
#include "wizards/assistent52/assistent52.h"
#include "wizards/core/wizard_host.h"

namespace korvex::wizards::testing {

inline constexpr const char* kFixedDate = "23.11.2026 14:05:33";

class WizardFixture : public ::testing::Test {
  protected:
    WizardFixture();

    // "ICheck1(4)" names a member of a control array.
    void set(const std::string& control, const std::string& value);
    void click(const std::string& control);
    // Settings as "FIELD=VALUE" pairs, in order.
    void apply(const std::vector<std::string>& settings);

    const std::string& program() const { return wizard_.previewText(); }
    // The program's lines without their CR LF.
    std::vector<std::string> lines() const;
    bool hasLine(const std::string& utf8Line) const;
    // Boxes of the given kind, texts only.
    std::vector<std::string> boxTexts(ScriptedWizardHost::Kind kind) const;

    assistent52::WizardSettings& s() { return wizard_.settings(); }

    int generations_ = 0;
    ScriptedWizardHost host_;
    assistent52::Assistent52 wizard_;
};

using korvex::testing::AssembledSource;
using korvex::testing::runInSimulator;
using korvex::testing::simulatorAvailable;

AssembledSource assembleProgram(const std::string& program);
// Address of the first code row at or after the last row whose statement,
// upper case, without comment and cleaned, is `stopStatement`.
std::optional<std::int32_t> stopAddress(const AssembledSource& assembled,
                                        const std::string& stopStatement);

}  // namespace korvex::wizards::testing
