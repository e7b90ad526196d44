// The program text, section by section, as the wizard writes it, with its
// quirks: the texts and numbers are the wizard's own, missing "h" and blanks
// behind "#" included.

#include <gtest/gtest.h>

#include "base/cp1252.h"
#include "wizard_fixture.h"

namespace korvex::wizards::testing {
namespace {

using GeneratedProgramText = WizardFixture;

// Settings, and lines that must stand in the program one after the other.
struct Block {
    std::string name;
    std::vector<std::string> settings;
    std::vector<std::string> lines;
};

std::vector<Block> blocks() {
    const std::string t0 = "; Timer 0 im Modus 0 = 13-Bit Timer/Zähler.";
    return {
        {"Header",
         {"SText5=Förderband", "SCheck2=1"},
         {"; Förderband, 23.11.2026 14:05:33", "", "#cpu = 80C32\t; @12 MHz", "#use LCALL"}},
        {"SystemLines",
         {"SText2=0A", "SCheck1=1", "SText3=20", "SCombo1=2"},
         {"; Initialisierung", "mov SP, #09h\t; Stackbeginn", "clr a\t; Variablenbereich löschen",
          "mov r0, #20h", "loop", "\tmov @r0, a", "\tinc r0", "until r0 = #0h", "",
          "orl PSW, #10\t; Registerbank 2"}},
        // "10" reads as ten.
        {"StackTen",
         {"SText2=10", "SCheck1=1", "SText4=7F"},
         {"mov SP, #0Fh\t; Stackbeginn", "clr a\t; Variablenbereich löschen", "mov r0, #01h",
          "loop", "\tmov @r0, a", "\tinc r0", "until r0 = #80h"}},
        {"PriorityAloneWritesVectorAndRoutine",
         {"ICheck2(3)=1"},
         {"ajmp Initialisierung", "", "Timer 1:\t; Timer 1 Interrupt", "ajmp Timer 1 Interrupt"}},
        {"InterruptEnablesWithTriggers",
         {"ICheck1(0)=1", "IOption1=1", "ICheck1(2)=1", "ICheck2(2)=1", "ICheck0=1"},
         {"; Interrupts", "setb EX0\t; externen Interrupt 0 freigeben",
          "setb IT0\t; Auslöser: negative Flanke an P3.2",
          "setb EX1\t; externen Interrupt 1 freigeben", "; Auslöser: Low-Pegel an P3.3",
          "setb PX1\t; Priorität für externen Interrupt 1",
          "setb EA\t; globale Interruptfreigabe"}},
        {"SerialMode0DropsSconAndFlags",
         {"UCheck1=1", "UOption1=2", "UCheck2=1", "UCheck3=1", "UOption1=0"},
         {"; Serieller Port", "; Modus 0 ist aktiv mit Baudrate = 1000000", t0}},
        {"SerialReceiveByTimer1SendByTimer2",
         {"UCheck1=1", "UOption1=1", "UCheck3=1", "UCombo2=1", "UCombo4=9600"},
         {"; Serieller Port",
          "mov SCON, #50h\t; Modus 1, asynchron, 10 Bit, Baudrate Timer 1/2 Überlauf, "
          "Datenempfang freigeben",
          "", "; Baudrate für Empfang mit Timer 1 erzeugen.",
          "mov TMOD, #20h\t; Timer 1 Autoreloadmodus",
          "mov TH1, #F3h\t; Reloadwert für Baudrate 2403,846", "setb TR1\t; Timer 1 Start", "",
          "; Baudrate für Senden mit Timer 2 erzeugen:", "mov RCAP2L, #D9h\t; Reloadwerte für",
          "mov RCAP2H, #FFh\t; 9615,385 Baud",
          "mov T2CON, #14h\t; Timer 2 als Baudratengenerator für Senden, Timer 2 Run", t0}},
        {"SerialBothByTimer2",
         {"UCheck1=1", "UOption1=3", "UCombo1=1", "UCombo2=1", "T2Check1=1"},
         {"mov RCAP2L, #64h\t; Reloadwerte für", "mov RCAP2H, #FFh\t; 2403,846 Baud",
          "mov T2CON, #34h\t; Timer 2 als Baudratengenerator, Timer 2 Run", t0,
          "; Die Überlauffrequenz des Timer 0 beträgt 122,0703 Hz, die Periodendauer 8,192 ms.",
          "orl T2CON, # 8\t; T2EX-Eingang als externen Interrupt verwenden (negative Flanke "
          "setzt EXF2)"}},
        // Timer 1's gate in mode 0 has no "h".
        {"GatesInMode0",
         {"T0Check1=1", "T1Check0=1", "T1Check1=1"},
         {"orl TMOD, #08\t; Gate Control. High-Pegel an INT0: Timer 0 läuft, Low-Pegel an INT0: "
          "Timer 0 steht.",
          "; Timer 1 im Modus 0 = 13-Bit Timer/Zähler.",
          "; Die Überlauffrequenz des Timer 1 beträgt 122,0703 Hz, die Periodendauer 8,192 ms.",
          "orl TMOD, #80\t; Gate Control. High-Pegel an INT1: Timer 1 läuft, Low-Pegel an INT1: "
          "Timer 1 steht."}},
        {"Timer0Mode2WithGate",
         {"T0Check1=1", "T0Combo1=2", "T0Text2=9C", "T0Check2=1"},
         {"orl TMOD, #0Ah\t; Timer 0 im 8-Bit Autoreload-Modus. ",
          "; Die Überlauffrequenz des Timer 0 beträgt 10000 Hz, die Periodendauer 0,1 ms.",
          "; Gate Control. High-Pegel an INT0: Timer 0 läuft, Low-Pegel an INT0: Timer 0 steht.",
          "mov TH0, #9Ch\t; Reloadwert", "setb TR0\t; Timer 0 läuft."}},
        // Counters: two blanks where mode 2's words are missing.
        {"Counter0",
         {"T0Combo1=1", "T0Option1=1"},
         {"; Timer 0 wird als externer Ereigniszähler verwendet.",
          "; Die Überlauffrequenz des Zähler 0 hängt vom Eingangssignal an T0  ab.",
          "orl TMOD, #05h\t; Modus 1, 16-Bit Zähler"}},
        {"Timer0Mode3DescribesBothHalves",
         {"T0Combo1=3", "T0Check3=1"},
         {"orl TMOD, #03h\t; Timer 0 (LSB) als 8-Bit Timer 0, Timer 0 (MSB) als 8-Bit Timer 1 in "
          "Modus 3. ",
          "; Die Überlauffrequenz des Timer 0 beträgt 3906,25 Hz, die Periodendauer 0,256 ms.",
          "; Die Überlauffrequenz des Timer 1 beträgt 3906,25 Hz, die Periodendauer 0,256 ms.",
          "setb TR1\t; High-Byte Timer 0 läuft separat als 8-Bit Timer"}},
        {"Timer2HasABlankBehindTheNumberSign",
         {"T2Check0=1", "T2Combo1=2", "T2Text4=9C", "T2Text5=FF", "T2Text3=FF", "ICheck1(5)=1"},
         {"; Timer 2:",
          "; Timer 2 ist ein 16-Bit Aufwärtszähler mit automatischer Nachladung aus den "
          "Reload-Registern bei Überlauf oder bei negativer Flanke am Eingang T2EX. Die "
          "Überlauffrequenz beträgt 10000 Hz, die Periodendauer 0,1 ms.",
          "mov T2CON, # 8h", "mov RCAP2L, # 9Ch", "mov RCAP2H, # FFh", "mov TH2, # FFh"}},
        // Function 2 can be triggered by T2EX: the routine tells the sources apart.
        {"Timer2RoutineForTwoSources",
         {"T2Check0=1", "T2Combo1=2", "ICheck1(5)=1"},
         {"Timer 2 Interrupt:", "\tjbc TF2, Timer 2 Überlauf", "\tjbc EXF2, T2EX Trigger", "reti"}},
        {"SerialInterruptWithPort",
         {"UCheck1=1", "UOption1=1", "ICheck1(4)=1"},
         {"loop\t; Routine für seriellen Empfang", "\tif bit Empfang then", "\t\tclr Empfang",
          "\t\tSerielle Daten auswerten", "\tend if", "end loop"}},
    };
}

class ProgramBlocks : public WizardFixture, public ::testing::WithParamInterface<Block> {};

TEST_P(ProgramBlocks, StandInTheProgram) {
    apply(GetParam().settings);
    const std::vector<std::string> all = lines();
    const auto first = std::find(all.begin(), all.end(), GetParam().lines.front());
    ASSERT_NE(first, all.end()) << toUtf8(program());
    const auto size = std::min<std::ptrdiff_t>(all.end() - first, GetParam().lines.size());
    EXPECT_EQ(std::vector<std::string>(first, first + size), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(Assistent52, ProgramBlocks, ::testing::ValuesIn(blocks()),
                         [](const auto& info) { return info.param.name; });

TEST_F(GeneratedProgramText, DefaultProgramDescribesTimer0Only) {
    EXPECT_EQ(
        toUtf8(program()),
        "; 23.11.2026 14:05:33\r\n\r\n#cpu = 80C32\t; @12 MHz\r\n\r\n; Initialisierung\r\n"
        "; Timer 0 im Modus 0 = 13-Bit Timer/Zähler.\r\n"
        "; Die Überlauffrequenz des Timer 0 beträgt 122,0703 Hz, die Periodendauer 8,192 ms.\r\n"
        "\r\nend\r\n; * * * Hauptprogramm Ende * * *\r\n");
    // A second run with the same settings writes the same text; "8" writes no stack line.
    const std::string first = program();
    set("SText2", "8");
    EXPECT_EQ(program(), first);
}

TEST_F(GeneratedProgramText, FieldTextsAndWhatIsLeftOut) {
    apply({"ICheck2(3)=1", "UCheck1=1", "UOption1=1", "UCombo2=1", "T0Combo1=2", "T0Text2=9C"});
    EXPECT_FALSE(hasLine("setb ET1\t; Timer 1 Interrupt freigeben"));  // priority alone
    EXPECT_EQ(toUtf8(s().T2Text1.text),
              "Timer 2 wird als Baudratengenerator verwendet.Sie können den Eingang T2EX als "
              "zusätzlichen externen Interrupt verwenden. Dieser verwendet den Interruptvektor des "
              "Timer 2.\r\n Geben Sie dazu den Timer 2 Interrupt frei.");
    EXPECT_EQ(toUtf8(s().T0Text3.text),
              "Die Überlauffrequenz des Timer 0 beträgt 10000 Hz, die Periodendauer 0,1 ms.\r\n"
              "Sie sollten Timer 0 mit dem Reloadwert beschreiben.");
}

TEST_F(GeneratedProgramText, ReloadsLongerThanTwoDigitsAreReckonedWithoutWrapping) {
    apply({"T2Check0=1", "T2Text4=9C", "T2Text5=FF", "T2Combo1=8", "T2Check1=1", "ICheck1(5)=1"});
    EXPECT_EQ(toUtf8(s().T2Text1.text),
              "Timer 2 wird als Baudratengenerator für Senden + Empfang verwendet. Die Baudrate "
              "beträgt 3750 Baud.Sie verwenden den Eingang T2EX als zusätzlichen externen "
              "Interrupt. Eine negative Flanke an T2EX setzt das Bit EXF2. \r\nDieses löst den "
              "Timer 2 Interrupt aus.");
    // The dialog's fields take two digits; a value set otherwise is a number
    // all the same: 256 x 800000h is 2^31, past a 32-bit integer.
    apply({"T2Text4=00", "T2Text5=800000"});
    EXPECT_NE(toUtf8(s().T2Text1.text).find("Die Baudrate beträgt -"), std::string::npos)
        << toUtf8(s().T2Text1.text);
    // 256 - 80000000h is positive.
    apply({"T0Combo1=2", "T0Text2=80000000"});
    EXPECT_EQ(toUtf8(s().T0Text3.text).find("beträgt -"), std::string::npos)
        << toUtf8(s().T0Text3.text);
}

}  // namespace
}  // namespace korvex::wizards::testing
