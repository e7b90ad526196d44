#pragma once
// The assembler: one object per workbench (or command-line run). A run turns
// the temporary copy of a source into rows of code text, a report and the
// selected output files. Source errors become markers on rows; run-time
// failures end the run through the one trap of the driver.

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "assembler/cpu_driver.h"
#include "assembler/run_state.h"
#include "assembler/source_file.h"
#include "base/host.h"

namespace korvex {

struct CalendarDate {
    int day = 1;
    int month = 1;
    int year = 2000;
};

// "3. Mai 2024", the date of the listing's first line.
std::string germanDate(const CalendarDate& date);
CalendarDate todaysDate();

struct AssemblerSettings {
    std::string programFolder;    // drivers live here; ends in "/"
    std::string temporaryFolder;  // TmpFile.tmp and the include copies; ends in "/"
    std::string listingExtension = "l51";
    std::string binaryExtension = "b51";
    std::string hexExtension = "h51";
    std::string symbolExtension = "s51";
    std::optional<CalendarDate> today;  // the listing's date; the system's when empty
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

    // Assembles `temporaryFolder` + "TmpFile.tmp", which the caller has written,
    // as the source `sourceName` (full path, file system form): the outputs are
    // named after it without its extension, its includes are looked up in its
    // folder. A run-time failure ends in the failure box and `Failed`.
    RunOutcome assembleSource(const std::string& sourceName, OutputSwitches switches);
    // The same run without the trap, for callers that want the failure itself.
    RunOutcome runUntrapped(const std::string& sourceName, OutputSwitches switches);

    // Set by the compile dialog (through the host's pending events) to stop a run.
    void requestAbort() { abortRequested_ = true; }
    void clearAbort() { abortRequested_ = false; }

    // What the last run left: rows, tables, report.
    const RunState& state() const { return state_; }
    // The driver the last "#cpu" brought; its counters outlive the runs.
    const CpuDriver& cpuDriver() const { return driver_; }
    // Folders and extensions; the workbench sets them before a run.
    AssemblerSettings& settings() { return settings_; }
    const AssemblerSettings& settings() const { return settings_; }

    // The listing of the last run.
    std::string listingText() const;

  private:
    // The routines of the line code.
    void prepareLine(std::string& line);
    void processStatement(std::string& text);
    void evaluateExpression(std::string& text, std::int32_t& value, bool& found);
    void encodeInstruction();
    void classifyOperand(std::string& text, std::int16_t& operandClass, std::int32_t& value);
    void parseBitOperand(std::string& text, std::int16_t& operandClass, std::int32_t& value);
    std::int32_t relativeOffset(std::int32_t target, std::int32_t length);
    void defineLabel(std::string& text, const std::string& position);
    void recordError();

    // Directives, declarations and drivers.
    bool handleDirective(std::string& text);
    void readCpuDriver(const std::string& head, const std::string& tail);
    void keepDriver(const CpuDriver& read);
    void declareList(std::string list, const std::string& kind);
    void declareName(std::string key, std::string written, int kind);

    // Macros.
    void expandMacros(std::string& line);
    void expandMacroCall(std::string& line, std::int32_t& macro);
    void substituteParameter(std::string& body, const std::string& parameter,
                             const std::string& argument);

    // Structures and tables.
    void compileCondition(std::string text);
    void compileExitCondition(std::string text);
    void compileTable();

    void buildReport(std::int32_t endOfCode);

    void evaluatePart(std::string_view text, std::int32_t& value, bool& found, std::string* caller);
    void foldCharacterLiterals(std::string& text);
    void splitTokens(const std::string& text);
    void expandAllMacros(std::string& line);
    void defineMacro(const std::string& text);
    void openInclude(const std::string& text);
    void excludeRange(const std::string& text, bool bits);
    void setRowMarker(const std::string& marker);
    void addSymbol(const std::string& written, const std::string& kind, std::int64_t value);

    void resetRun();
    bool firstPass();
    bool secondPassOver();
    void writeOutputs(const std::string& sourceName, OutputSwitches switches,
                      std::int32_t endOfCode);
    void refuseOverwritingSource(const std::string& output, const std::string& sourceName) const;
    void letEventsRun();

    // Lines of the main source and of an include are read through file numbers.
    SourceFile& file(int number);
    void closeFile(int number);

    void growRowsTo(std::int32_t row);
    void setCodeText(const std::string& text);
    std::string positionText() const;
    // Gives a row the place of the line being read.
    void placeRow(SourceRow& row) const;

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

    // Structures: each returns whether the listing tail still has to run.
    bool compileIf();
    bool compileElse();
    bool compileElseIf();
    bool compileEndIf();
    bool compileExit();
    void compileExitIf();
    void compileExitFor();
    void compileExitLoop();
    bool compileFor();
    bool compileNext();
    bool compileLoop();
    bool compileLoopEnd();
    bool compileConditionForm(const std::string& text, bool jumpWhenTrue);
    void addExitEntry(std::vector<std::optional<ExitPatch>>& patches, int level);
    void resolveExits(std::vector<std::optional<ExitPatch>>& patches, int level,
                      std::int32_t target, std::int32_t extra);
    void patchLastByte(std::int32_t line, std::int32_t length, std::int32_t distance);
    void markOutOfRange(std::int32_t line);
    void growForNewRow();
    void compileTableItem(const std::string& item, bool& sawQuote, bool words);

    void genericError();
    void storeByte(int index, std::int64_t value);
    void storeLongTarget(std::int32_t target);
    bool storeCompareOpcode(std::int16_t leftClass, std::int32_t left, std::int16_t rightClass);
    bool sameBlock(std::int32_t from, std::int32_t target) const;

    static constexpr int kDeepestExpression = 1000;

    Host& host_;
    AssemblerSettings settings_;
    int expressionDepth_ = 0;
    RunState state_;
    CpuDriver driver_;
    bool abortRequested_ = false;
    // Where the statements of the line being prepared end; kept to spare an
    // allocation per line.
    std::vector<std::size_t> statementEnds_;
    std::map<int, SourceFile> files_;
};

// Index of the first entry equal to `key`, or -1. The callers fold the case.
int findInList(const std::string& key, const std::vector<std::string>& list);

// Whether the first occurrence of `name` in the line stands as a word of its own.
bool isWholeWord(const std::string& upperLine, const std::string& name);

// The path an #INCLUDE names, relative to the source's folder; "..\\" goes up.
std::string resolveIncludePath(std::string path, const std::string& sourceFolder);

}  // namespace korvex
