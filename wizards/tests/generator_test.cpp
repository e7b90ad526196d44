// The program text, section by section, as the wizard writes it.

#include <gtest/gtest.h>

#include "base/cp1252.h"
#include "wizard_fixture.h"

namespace korvex::wizards::testing {
namespace {

using GeneratedProgramText = WizardFixture;

// Lines from the first one equal to `first`, `count` of them.
std::vector<std::string> block(const std::vector<std::string>& lines, const std::string& first,
                               std::size_t count) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i] == first) {
            return {lines.begin() + static_cast<long>(i),
                    lines.begin() + static_cast<long>(std::min(lines.size(), i + count))};
        }
    }
    return {};
}

TEST_F(GeneratedProgramText, DefaultProgramDescribesTimer0Only) {
    EXPECT_EQ(
        toUtf8(program()),
        "; 23.11.2026 14:05:33\r\n"
        "\r\n"
        "#cpu = 80C32\t; @12 MHz\r\n"
        "\r\n"
        "; Initialisierung\r\n"
        "; Timer 0 im Modus 0 = 13-Bit Timer/Zähler.\r\n"
        "; Die Überlauffrequenz des Timer 0 beträgt 122,0703 Hz, die Periodendauer 8,192 ms.\r\n"
        "\r\n"
        "end\r\n"
        "; * * * Hauptprogramm Ende * * *\r\n");
    // A second run with the same settings writes the same text.
    const std::string first = program();
    wizard_.regenerateProgram();
    EXPECT_EQ(program(), first);
}

TEST_F(GeneratedProgramText, HeaderSystemLinesAndTheirQuirks) {
    apply({"SText5=Förderband", "SCheck2=1", "SText2=0A", "SCheck1=1", "SText3=20", "SCombo1=2"});
    const auto l = lines();
    EXPECT_EQ(l[0], "; Förderband, 23.11.2026 14:05:33");
    EXPECT_EQ(l[3], "#use LCALL");
    EXPECT_EQ(block(l, "; Initialisierung", 10),
              (std::vector<std::string>{"; Initialisierung", "mov SP, #09h\t; Stackbeginn",
                                        "clr a\t; Variablenbereich löschen", "mov r0, #20h", "loop",
                                        "\tmov @r0, a", "\tinc r0", "until r0 = #0h", "",
                                        "orl PSW, #10\t; Registerbank 2"}));
    // "8" reads as 8 and writes no stack line; "10" reads as ten and does.
    set("SText2", "8");
    EXPECT_EQ(program().find("mov SP"), std::string::npos);
    set("SText2", "10");
    EXPECT_TRUE(hasLine("mov SP, #0Fh\t; Stackbeginn"));
    set("SText4", "7F");
    EXPECT_TRUE(hasLine("until r0 = #80h"));
}

TEST_F(GeneratedProgramText, PriorityAloneWritesVectorAndRoutineButNoEnable) {
    set("ICheck2(3)", "1");
    const auto l = lines();
    EXPECT_EQ(block(l, "ajmp Initialisierung", 4),
              (std::vector<std::string>{"ajmp Initialisierung", "", "Timer 1:\t; Timer 1 Interrupt",
                                        "ajmp Timer 1 Interrupt"}));
    EXPECT_TRUE(hasLine("Initialisierung:"));
    EXPECT_TRUE(hasLine("setb PT1\t; Priorität für Timer 1 Interrupt"));
    EXPECT_FALSE(hasLine("setb ET1\t; Timer 1 Interrupt freigeben"));
    EXPECT_EQ(block(l, "Timer 1 Interrupt:", 3),
              (std::vector<std::string>{"Timer 1 Interrupt:", "\t; Befehle ...", "reti"}));
}

TEST_F(GeneratedProgramText, InterruptEnablesWithTriggers) {
    apply({"ICheck1(0)=1", "IOption1=1", "ICheck1(2)=1", "ICheck2(2)=1", "ICheck0=1"});
    EXPECT_EQ(block(lines(), "; Interrupts", 7),
              (std::vector<std::string>{
                  "; Interrupts", "setb EX0\t; externen Interrupt 0 freigeben",
                  "setb IT0\t; Auslöser: negative Flanke an P3.2",
                  "setb EX1\t; externen Interrupt 1 freigeben", "; Auslöser: Low-Pegel an P3.3",
                  "setb PX1\t; Priorität für externen Interrupt 1",
                  "setb EA\t; globale Interruptfreigabe"}));
}

TEST_F(GeneratedProgramText, SerialMode0DropsSconAndFlags) {
    apply({"UCheck1=1", "UOption1=2", "UCheck2=1", "UCheck3=1"});
    EXPECT_TRUE(hasLine("mov SCON, #B0h\t; Modus 2, asynchron, 11 Bit, 187500 Baud"));
    set("UOption1", "0");
    EXPECT_EQ(
        block(lines(), "; Serieller Port", 3),
        (std::vector<std::string>{"; Serieller Port", "; Modus 0 ist aktiv mit Baudrate = 1000000",
                                  "; Timer 0 im Modus 0 = 13-Bit Timer/Zähler."}));
}

TEST_F(GeneratedProgramText, SerialReceiveByTimer1SendByTimer2) {
    apply({"UCheck1=1", "UOption1=1", "UCheck3=1", "UCombo2=1", "UCombo4=9600"});
    EXPECT_EQ(block(lines(), "; Serieller Port", 13),
              (std::vector<std::string>{
                  "; Serieller Port",
                  "mov SCON, #50h\t; Modus 1, asynchron, 10 Bit, Baudrate Timer 1/2 Überlauf, "
                  "Datenempfang freigeben",
                  "", "; Baudrate für Empfang mit Timer 1 erzeugen.",
                  "mov TMOD, #20h\t; Timer 1 Autoreloadmodus",
                  "mov TH1, #F3h\t; Reloadwert für Baudrate 2403,846", "setb TR1\t; Timer 1 Start",
                  "", "; Baudrate für Senden mit Timer 2 erzeugen:",
                  "mov RCAP2L, #D9h\t; Reloadwerte für", "mov RCAP2H, #FFh\t; 9615,385 Baud",
                  "mov T2CON, #14h\t; Timer 2 als Baudratengenerator für Senden, Timer 2 Run",
                  "; Timer 0 im Modus 0 = 13-Bit Timer/Zähler."}));
    EXPECT_EQ(s().T2Text4.text, "D9");
    EXPECT_EQ(s().T2Text5.text, "FF");
    EXPECT_EQ(toUtf8(s().T2Text1.text),
              "Timer 2 wird als Baudratengenerator verwendet.Sie können den Eingang T2EX als "
              "zusätzlichen externen Interrupt verwenden. Dieser verwendet den Interruptvektor des "
              "Timer 2.\r\n Geben Sie dazu den Timer 2 Interrupt frei.");
}

TEST_F(GeneratedProgramText, SerialBothByTimer2AndTheT2exInput) {
    apply({"UCheck1=1", "UOption1=3", "UCombo1=1", "UCombo2=1", "T2Check1=1"});
    EXPECT_EQ(block(lines(), "mov RCAP2L, #64h\t; Reloadwerte für", 5),
              (std::vector<std::string>{
                  "mov RCAP2L, #64h\t; Reloadwerte für", "mov RCAP2H, #FFh\t; 2403,846 Baud",
                  "mov T2CON, #34h\t; Timer 2 als Baudratengenerator, Timer 2 Run",
                  "; Timer 0 im Modus 0 = 13-Bit Timer/Zähler.",
                  "; Die Überlauffrequenz des Timer 0 beträgt 122,0703 Hz, die Periodendauer 8,192 "
                  "ms."}));
    EXPECT_TRUE(
        hasLine("orl T2CON, # 8\t; T2EX-Eingang als externen Interrupt verwenden (negative "
                "Flanke setzt EXF2)"));
}

TEST_F(GeneratedProgramText, TimerSectionsByModeSourceAndGate) {
    apply({"T0Check1=1", "T1Check0=1", "T1Check1=1"});
    EXPECT_TRUE(
        hasLine("orl TMOD, #08\t; Gate Control. High-Pegel an INT0: Timer 0 läuft, "
                "Low-Pegel an INT0: Timer 0 steht."));
    // Timer 1's gate in mode 0 has no "h".
    EXPECT_TRUE(
        hasLine("orl TMOD, #80\t; Gate Control. High-Pegel an INT1: Timer 1 läuft, "
                "Low-Pegel an INT1: Timer 1 steht."));
    apply({"T1Combo1=1", "T1Check1=0", "T1Check2=1", "T1Text1=0A"});
    EXPECT_EQ(
        block(lines(), "orl TMOD, #10h\t; Timer 1 als 16-Bit Timer. ", 4),
        (std::vector<std::string>{
            "orl TMOD, #10h\t; Timer 1 als 16-Bit Timer. ",
            "; Die Überlauffrequenz des Timer 1 beträgt 15,25879 Hz, die Periodendauer 65,536 ms.",
            "mov TL1, #0Ah", "setb TR1\t; Timer 1 läuft."}));
    apply({"T0Combo1=2", "T0Text2=9C", "T0Check2=1"});
    EXPECT_EQ(
        block(lines(), "orl TMOD, #0Ah\t; Timer 0 im 8-Bit Autoreload-Modus. ", 5),
        (std::vector<std::string>{
            "orl TMOD, #0Ah\t; Timer 0 im 8-Bit Autoreload-Modus. ",
            "; Die Überlauffrequenz des Timer 0 beträgt 10000 Hz, die Periodendauer 0,1 ms.",
            "; Gate Control. High-Pegel an INT0: Timer 0 läuft, Low-Pegel an INT0: Timer 0 steht.",
            "mov TH0, #9Ch\t; Reloadwert", "setb TR0\t; Timer 0 läuft."}));
    EXPECT_EQ(toUtf8(s().T0Text3.text),
              "Die Überlauffrequenz des Timer 0 beträgt 10000 Hz, die Periodendauer 0,1 ms.\r\n"
              "Sie sollten Timer 0 mit dem Reloadwert beschreiben.");
    // Counters: two blanks where mode 2's words are missing.
    apply({"T0Combo1=1", "T0Option1=1", "T0Check1=0"});
    EXPECT_EQ(block(lines(), "; Timer 0 wird als externer Ereigniszähler verwendet.", 3),
              (std::vector<std::string>{
                  "; Timer 0 wird als externer Ereigniszähler verwendet.",
                  "; Die Überlauffrequenz des Zähler 0 hängt vom Eingangssignal an T0  ab.",
                  "orl TMOD, #05h\t; Modus 1, 16-Bit Zähler"}));
    apply({"T1Combo1=3"});
    EXPECT_TRUE(hasLine("orl TMOD, #30h\t; Timer 1 Modus 3, d.h. Timer 1 steht. "));
    EXPECT_TRUE(hasLine("; Timer 1 steht. Modus 3 ist für Timer 1 nicht verfügbar."));
}

TEST_F(GeneratedProgramText, Timer0Mode3DescribesBothHalves) {
    apply({"T0Combo1=3", "T0Check3=1"});
    EXPECT_EQ(
        block(lines(),
              "orl TMOD, #03h\t; Timer 0 (LSB) als 8-Bit Timer 0, Timer 0 (MSB) als "
              "8-Bit Timer 1 in Modus 3. ",
              4),
        (std::vector<std::string>{
            "orl TMOD, #03h\t; Timer 0 (LSB) als 8-Bit Timer 0, Timer 0 (MSB) als 8-Bit "
            "Timer 1 in Modus 3. ",
            "; Die Überlauffrequenz des Timer 0 beträgt 3906,25 Hz, die Periodendauer 0,256 ms.",
            "; Die Überlauffrequenz des Timer 1 beträgt 3906,25 Hz, die Periodendauer 0,256 ms.",
            "setb TR1\t; High-Byte Timer 0 läuft separat als 8-Bit Timer"}));
}

TEST_F(GeneratedProgramText, Timer2LinesHaveABlankBehindTheNumberSign) {
    apply({"T2Check0=1", "T2Combo1=2", "T2Text4=9C", "T2Text5=FF", "T2Text3=FF", "ICheck1(5)=1"});
    EXPECT_EQ(block(lines(), "; Timer 2:", 6),
              (std::vector<std::string>{
                  "; Timer 2:",
                  "; Timer 2 ist ein 16-Bit Aufwärtszähler mit automatischer Nachladung aus den "
                  "Reload-Registern bei Überlauf oder bei negativer Flanke am Eingang T2EX. Die "
                  "Überlauffrequenz beträgt 10000 Hz, die Periodendauer 0,1 ms.",
                  "mov T2CON, # 8h", "mov RCAP2L, # 9Ch", "mov RCAP2H, # FFh", "mov TH2, # FFh"}));
    // Function 2 can be triggered by T2EX: the routine tells the sources apart.
    EXPECT_EQ(block(lines(), "Timer 2 Interrupt:", 4),
              (std::vector<std::string>{"Timer 2 Interrupt:", "\tjbc TF2, Timer 2 Überlauf",
                                        "\tjbc EXF2, T2EX Trigger", "reti"}));
    set("T2Combo1", "1");
    EXPECT_EQ(
        block(lines(), "Timer 2 Interrupt:", 4),
        (std::vector<std::string>{"Timer 2 Interrupt:", "\t; Befehle . .", "\tclr TF2", "reti"}));
    set("T2Combo1", "8");
    set("T2Check1", "1");
    EXPECT_TRUE(
        hasLine("mov T2CON, # 38h\t; T2EX-Eingang als externen Interrupt verwenden "
                "(negative Flanke setzt EXF2)"));
    EXPECT_EQ(toUtf8(s().T2Text1.text),
              "Timer 2 wird als Baudratengenerator für Senden + Empfang verwendet. Die Baudrate "
              "beträgt 3750 Baud.Sie verwenden den Eingang T2EX als zusätzlichen externen "
              "Interrupt. Eine negative Flanke an T2EX setzt das Bit EXF2. \r\nDieses löst den "
              "Timer 2 Interrupt aus.");
}

TEST_F(GeneratedProgramText, SerialInterruptWithPortWritesMainLoopAndRoutines) {
    apply({"UCheck1=1", "UOption1=1", "ICheck1(4)=1"});
    const auto l = lines();
    EXPECT_EQ(l[3], "#Bit Empfang, Sendebusy");
    EXPECT_EQ(block(l, "loop\t; Routine für seriellen Empfang", 6),
              (std::vector<std::string>{"loop\t; Routine für seriellen Empfang",
                                        "\tif bit Empfang then", "\t\tclr Empfang",
                                        "\t\tSerielle Daten auswerten", "\tend if", "end loop"}));
    EXPECT_EQ(block(l, "Serieller Interrupt:", 11),
              (std::vector<std::string>{"Serieller Interrupt:", "\t; Herkunft ermitteln",
                                        "\tif bit TI then\t; Senden", "\t\tclr TI",
                                        "\t\tclr Sendebusy", "\telse\t; Empfangen", "\t\tclr RI",
                                        "\t\tsetb Empfang", "\tend if", "reti"}));
}

TEST_F(GeneratedProgramText, ReloadsLongerThanTwoDigitsAreReckonedWithoutWrapping) {
    // The dialog's fields take two digits; a value set otherwise is a number
    // all the same: 256 x 800000h is 2^31, past a 32-bit integer.
    apply({"T2Check0=1", "T2Combo1=8", "T2Text4=00", "T2Text5=800000"});
    EXPECT_NE(toUtf8(s().T2Text1.text).find("Die Baudrate beträgt -"), std::string::npos)
        << toUtf8(s().T2Text1.text);
    // 256 - 80000000h is positive.
    apply({"T0Combo1=2", "T0Text2=80000000"});
    EXPECT_EQ(toUtf8(s().T0Text3.text).find("beträgt -"), std::string::npos)
        << toUtf8(s().T0Text3.text);
}

}  // namespace
}  // namespace korvex::wizards::testing
