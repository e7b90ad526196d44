// The start-up program: the frame of one generation, header, vectors and the
// first steps of the initialisation.

#include "wizards/assistent52/assistent52.h"
#include "wizards/assistent52/program_lines.h"
#include "wizards/core/timer_arithmetic.h"

namespace korvex::wizards::assistent52 {
namespace {

// The generator's own guard code while it runs, and 0 at its end, also when
// a failure of the arithmetic ends it.
class GeneratorRun {
  public:
    explicit GeneratorRun(GenerationGuard& guard) : guard_(guard) {
        guard_.set(guard_code::kGenerator);
    }
    ~GeneratorRun() { guard_.set(0); }
    GeneratorRun(const GeneratorRun&) = delete;
    GeneratorRun& operator=(const GeneratorRun&) = delete;

  private:
    GenerationGuard& guard_;
};

}  // namespace

void Assistent52::regenerateProgram() {
    if (generationGuard_.value() > 0) return;
    GeneratorRun run(generationGuard_);
    beforeGeneration();
    GenerationContext context;
    context.fosc = oscillatorHz(effectiveMegahertz());
    context.used.resize(profile_.interrupts.size());
    for (std::size_t i = 0; i < context.used.size(); ++i) {
        context.used[i] = interruptUsed(i);
        context.anyInterrupt = context.anyInterrupt || context.used[i];
    }
    ProgramParts out;
    writeHeader(out, context);
    writeVectors(out, context);
    writeInitialisation(out, context);
    writeSerialPort(out, context);
    writeTimer0(out, context);
    writeTimer1(out, context);
    writeTimer2(out, context);
    writeInterruptEnables(out, context);
    writeMainProgram(out, context);
    writeRoutines(out, context);
    finishProgram(out, context);
    setPreview(out.header + std::string(kLineEnd) + out.declarations + out.code);
}

void Assistent52::writeHeader(ProgramParts& out, const GenerationContext&) {
    out.header = "; ";
    if (!s_.SText5.text.empty()) out.header += s_.SText5.text + ", ";
    out.header += nowText();
    out.header += kLineEnd;
    out.header += kLineEnd;
    out.header += "#cpu = " + cpuName() + "\t; @" + s_.SText1.text + " MHz";
    if (s_.SCheck2.value != 0) line(out.code, "#use LCALL");
}

void Assistent52::writeVectors(ProgramParts& out, const GenerationContext& context) {
    if (!context.anyInterrupt) return;
    line(out.code);
    line(out.code, "ajmp Initialisierung");
    const std::string jump = profile_.indentedVectorJumps ? "\tajmp " : "ajmp ";
    for (std::size_t i = 0; i < profile_.interrupts.size(); ++i) {
        if (!context.used[i]) continue;
        const InterruptSource& source = profile_.interrupts[i];
        line(out.code);
        line(out.code, std::string(source.vectorLabel) + "\t; " + source.vectorComment);
        line(out.code, jump + source.routine);
    }
}

void Assistent52::writeInitialisation(ProgramParts& out, const GenerationContext& context) {
    std::string& code = out.code;
    line(code);
    line(code, context.anyInterrupt ? "Initialisierung:" : "; Initialisierung");

    // "08" and "8" read as 8 and write nothing; "0A" reads as 0 and does.
    if (valNumber(s_.SText2.text) != 8) {
        line8(code, load("SP", hex2(std::int64_t{hexFieldValue(s_.SText2.text)} - 1) + "h") +
                        "\t; " + stackComment());
    }

    if (s_.SCheck1.value != 0) writeRamClearing(code);

    // No "h" behind the number: banks 2 and 3 write 10 and 18, read as decimal.
    const int bank = s_.SCombo1.listIndex;
    if (bank != 0) {
        line(code, operation(profile_.bankMnemonic, "PSW", hexText(bank * 8)) +
                       "\t; Registerbank " + std::to_string(bank));
    }
}

void Assistent52::writeRamClearing(std::string& code) {
    line(code, "clr a\t; Variablenbereich löschen");
    line8(code, load("r0", s_.SText3.text + "h"));
    line(code, "loop");
    line(code, "\tmov @r0, a");
    line(code, "\tinc r0");
    line(code, "until r0 = #" + ramClearingEnd() + "h");
    line(code);
}

std::string Assistent52::ramClearingEnd() const {
    return hexText((std::int64_t{hexFieldValue(s_.SText4.text)} + 1) % 256);
}

}  // namespace korvex::wizards::assistent52
