#pragma once
// The assembler: one object per workbench (or command-line run). A run turns
// the temporary copy of a source into rows of code text, a report and the
// selected output files. Source errors become markers on rows; run-time
// failures end the run through the one trap of the driver.

#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include "assembler/run_state.h"
#include "assembler/source_file.h"
#include "base/host.h"

namespace korvex {

struct AssemblerSettings {
    std::string programFolder;    // drivers live here; ends in "/"
    std::string temporaryFolder;  // TmpFile.tmp and the include copies; ends in "/"
    std::string sourceFolder;     // folder of the compiled source; ends in "/"
    std::string listingExtension = "l51";
    std::string binaryExtension = "b51";
    std::string hexExtension = "h51";
    std::string symbolExtension = "s51";
};

struct OutputSwitches {
    bool binary = false;
    bool hex = false;
    bool listing = false;
    bool symbols = false;
};

enum class RunOutcome { Completed, Aborted, Failed };

class Assembler {
public:
    Assembler(Host& host, AssemblerSettings settings);

    // Assembles `temporaryFolder` + "TmpFile.tmp", which the caller has written.
    // `sourceName` is the full path of the source; its extension is cut in place.
    RunOutcome assembleSource(std::string& sourceName, OutputSwitches switches);

    // Set by the compile dialog (through the host's pending events) to stop a run.
    void requestAbort() { abortRequested_ = true; }
    void clearAbort() { abortRequested_ = false; }

    RunState& state() { return state_; }
    const RunState& state() const { return state_; }
    AssemblerSettings& settings() { return settings_; }

    // The routines of the line code, public so that they can be checked one by one.
    void prepareLine(std::string& line);
    void processStatement(std::string& text);
    void evaluateExpression(std::string& text, std::int32_t& value, bool& found);
    void encodeInstruction();
    void classifyOperand(std::string& text, std::int16_t& operandClass, std::int32_t& value);
    void parseBitOperand(std::string& text, std::int16_t& operandClass, std::int32_t& value);
    std::int32_t relativeOffset(std::int32_t target, std::int32_t length);
    void defineLabel(std::string& text, const std::string& position);
    void recordError();

    // The run as the driver does it, without the trap; for callers that want
    // the failure itself (tests). `assembleSource` wraps it.
    RunOutcome runUntrapped(std::string& sourceName, OutputSwitches switches);

private:
    void foldCharacterLiterals(std::string& text);
    void splitTokens(const std::string& text);
    void expandAllMacros(std::string& line);
    bool handleDirective(std::string& text);

    void resetRun();
    bool firstPass();
    bool secondPassOver();
    void writeOutputs(std::string& sourceName, OutputSwitches switches);
    void letEventsRun();

    // Lines of the main source and of an include are read through file numbers.
    SourceFile& file(int number);
    void closeFile(int number);

    void growRowsTo(std::int32_t row);
    void setCodeText(const std::string& text);
    std::string positionText() const;

    // Instruction families, in the order of the dispatch.
    void encodeArithmetic();
    void encodeIncDec();
    void encodeMulDiv();
    void encodeAccumulatorOrBit();
    void encodeLogic();
    void encodePushPop();
    void encodeXchd();
    void encodeMovxMovc();
    void encodeMov();
    void encodeMovDirectForms();
    void encodeReturnOrNop();
    void encodeConditionalJump();
    void encodeBitJump();
    void encodeDjnz();
    void encodeCjne();
    void encodeLongJumpOrCall();
    void encodeAbsoluteJumpOrCall();
    bool encodeOrg();
    void encodeEnd();
    bool encodeAssignment();
    void encodeImplicitCall();
    void writeListingTail();

    void genericError();
    void storeByte(int index, std::int64_t value);
    void storeLongTarget(std::int32_t target);
    bool sameBlock(std::int32_t from, std::int32_t target) const;

    Host& host_;
    AssemblerSettings settings_;
    RunState state_;
    bool abortRequested_ = false;
    std::map<int, SourceFile> files_;
};

// Index of the first entry equal to `key`, or -1. The callers fold the case.
int findInList(const std::string& key, const std::vector<std::string>& list);

}  // namespace korvex
