#include "wizards/assistent52/wizard_settings.h"

#include "base/cp1252.h"
#include "wizards/core/control_builders.h"

namespace korvex::wizards::assistent52 {
namespace {

using namespace build;

constexpr std::initializer_list<const char*> kBaudRates = {
    "110", "300", "600", "1200", "2400", "4800", "9600", "14400", "19200", "28800"};

}  // namespace

WizardSettings::WizardSettings(std::span<const InterruptSource> interrupts)
    : SText1(textBox("SText1", "12")),
      SText2(textBox("SText2", "08")),
      SCheck1(checkBox("SCheck1", "")),
      SText3(disabled(textBox("SText3", "01"))),
      SText4(disabled(textBox("SText4", "FF"))),
      SCombo1(comboBox("SCombo1", {"0", "1", "2", "3"})),
      SCheck2(withTip(checkBox("SCheck2", ""), "Nur nötig für Programme > 400 Bytes")),
      SText5(textBox("SText5", "")),
      SLabel6(label("SLabel6", "Programmkommentar:")),
      SCommand1(command("SCommand1", "Werte zurücksetzen")),

      UCheck1(checkBox("UCheck1", "Seriellen Port verwenden")),
      UFrame1(frame("UFrame1", false)),
      UOption1(optionGroup("UOption1",
                           {"Modus 0, synchron, 8 Bit, Baudrate fosc/12",
                            "Modus 1, asynchron, 10 Bit, Baudrate Timer 1/2 Überlauf",
                            "Modus 2, asynchron, 11 Bit, Baudrate fosc/64 oder /32",
                            "Modus 3, asynchron, 11 Bit, Baudrate Timer 1/2 Überlauf"},
                           0)),
      UCheck2(disabled(checkBox("UCheck2", "Multicontroller Kommunikation unterstützen."))),
      UCheck3(disabled(checkBox("UCheck3", "Datenempfang freigeben"))),
      UCheck4(disabled(withTip(
          checkBox("UCheck4", "Baudratenverdopplung (nur bei Timer 1 oder im Modus 2 möglich)"),
          "Nur zur Verwendung für Timer 1 oder in Modus 2"))),
      ULabel3(label("ULabel3", "Empfang:")),
      ULabel4(label("ULabel4", "Senden:")),
      UCombo1(disabled(comboBox("UCombo1", {"Timer 1", "Timer 2"}))),
      UCombo2(disabled(comboBox("UCombo2", {"Timer 1", "Timer 2"}))),
      UCombo3(disabled(comboBox("UCombo3", kBaudRates, true))),
      UCombo4(hidden(disabled(comboBox("UCombo4", kBaudRates, true)))),

      T0Frame1(frame("T0Frame1")),
      T0Combo1(comboBox("T0Combo1", {"Modus 0, 13-Bit Timer", "Modus 1, 16-Bit Timer",
                                     "Modus 2, 8-Bit Autoreload Timer",
                                     "Modus 3, zwei 8-Bit Timer oder Timer/Zähler"})),
      T0Option1(optionGroup("T0Option1",
                            {"Timer: Taktquelle ist interner Oszillator",
                             "Zähler: Taktquelle ist externes Signal an Pin T0"},
                            0)),
      T0Check1(checkBox("T0Check1",
                        "Gate Control. High-Pegel an INT0: Timer 0 läuft, "
                        "Low-Pegel an INT0: Timer 0 steht.")),
      T0Text1(textBox("T0Text1", "00")),
      T0Text2(textBox("T0Text2", "00")),
      T0Label2(label("T0Label2", "Timer 0 Lowbyte")),
      T0Label3(label("T0Label3", "Timer 0 Highbyte")),
      T0Check2(checkBox("T0Check2", "Run Timer 0")),
      T0Check3(hidden(
          withTip(checkBox("T0Check3", "Run Timer 1"), "Steuert Hgh-Byte von Timer 0 in Modus 3"))),
      T0Text3(output(textBox("T0Text3", ""))),
      T0Command1(command("T0Command1", "Frequenz vorgeben", false)),

      T1Check0(checkBox("T1Check0", "Timer 1 verwenden")),
      T1Frame1(frame("T1Frame1", false)),
      T1Combo1(disabled(
          comboBox("T1Combo1", {"Modus 0, 13-Bit Timer", "Modus 1, 16-Bit Timer",
                                "Modus 2, 8-Bit Autoreload Timer", "Modus 3, Timer 1 steht."}))),
      T1Option1(optionGroup("T1Option1",
                            {"Timer: Taktquelle ist interner Oszillator",
                             "Zähler: Taktquelle ist externes Signal an Pin T1"},
                            0)),
      T1Check1(checkBox("T1Check1",
                        "Gate Control. High-Pegel an INT1: Timer 1 läuft, "
                        "Low-Pegel an INT1: Timer 1 steht.")),
      T1Text1(disabled(textBox("T1Text1", "00"))),
      T1Text2(disabled(textBox("T1Text2", "00"))),
      T1Label2(label("T1Label2", "Timer 1 Lowbyte")),
      T1Label3(label("T1Label3", "Timer 1 Highbyte")),
      T1Check2(disabled(checkBox("T1Check2", "Run Timer 1"))),
      T1Text3(output(textBox("T1Text3", ""))),
      T1Command1(command("T1Command1", "Frequenz vorgeben", false)),

      T2Check0(checkBox("T2Check0", "Timer 2 verwenden")),
      T2Combo1(disabled(comboBox(
          "T2Combo1",
          {"16-Bit Timer", "Timer, Autoreload-Modus",
           "Timer, Autoreload und extern getriggerter Reload  (T2EX)",
           "Timer, Capture-Modus extern getriggert (T2EX)", "16-Bit Zähler",
           "Zähler, Autoreload-Modus", "Zähler, Autoreload und extern getriggerter Reload  (T2EX)",
           "Zähler, Capture-Modus extern getriggert (T2EX)",
           "Baudratengenerator, Taktquelle = Osziillator",
           "Baudratengenerator, Taktquelle = externes Signal an T2"}))),
      T2Text2(disabled(textBox("T2Text2", "00", "Timer 2 Low-Byte"))),
      T2Text3(disabled(textBox("T2Text3", "00", "Timer 2 High-Byte"))),
      T2Text4(disabled(textBox("T2Text4", "00", "Reload Register Low"))),
      T2Text5(disabled(textBox("T2Text5", "00", "Reload Register High"))),
      T2Frame1(frame("T2Frame1", false)),
      T2Option1(optionGroup("T2Option1", {"Senden", "Empfang", "Senden + Empfang"}, 2)),
      T2Check1(checkBox("T2Check1",
                        "T2EX-Eingang als externen Interrupt verwenden "
                        "(negative Flanke setzt EXF2)")),
      T2Text1(output(textBox("T2Text1", "Timer 2 wird nicht verwendet."))),
      T2Command1(command("T2Command1", "Freqenz vorgeben", false)),

      ICheck0(checkBox("ICheck0", "Globale Interruptfreigabe")),
      IOption1(optionGroup("IOption1", {"Low-Pegel an P3.2", "negative Flanke an P3.2"}, 0)),
      IOption2(optionGroup("IOption2", {"Low-Pegel an P3.3", "negative Flanke an P3.3"}, 0)),
      ILabel1(label("ILabel1", "Hohe Priorität")),

      Command1(command("Command1", "Abbrechen")),
      Command2(command("Command2", "Übernehmen")) {
    UCombo3.width = kBaudListWideWidth;
    for (std::size_t i = 0; i < interrupts.size(); ++i) {
        ICheck1.push_back(checkBox("ICheck1", interrupts[i].caption, static_cast<int>(i)));
        ICheck2.push_back(checkBox("ICheck2", "", static_cast<int>(i)));
    }
}

void WizardSettings::registerControls(ControlRegistry& r) {
    r.add(SText1), r.add(SText2), r.add(SCheck1), r.add(SText3), r.add(SText4), r.add(SCombo1);
    r.add(SCheck2), r.add(SText5), r.add(SLabel6), r.add(SCommand1);
    r.add(UCheck1), r.add(UFrame1), r.add(UOption1), r.add(UCheck2), r.add(UCheck3);
    r.add(UCheck4), r.add(ULabel3), r.add(ULabel4), r.add(UCombo1), r.add(UCombo2);
    r.add(UCombo3), r.add(UCombo4);
    r.add(T0Frame1), r.add(T0Combo1), r.add(T0Option1), r.add(T0Check1), r.add(T0Text1);
    r.add(T0Text2), r.add(T0Label2), r.add(T0Label3), r.add(T0Check2), r.add(T0Check3);
    r.add(T0Text3), r.add(T0Command1);
    r.add(T1Check0), r.add(T1Frame1), r.add(T1Combo1), r.add(T1Option1), r.add(T1Check1);
    r.add(T1Text1), r.add(T1Text2), r.add(T1Label2), r.add(T1Label3), r.add(T1Check2);
    r.add(T1Text3), r.add(T1Command1);
    r.add(T2Check0), r.add(T2Combo1), r.add(T2Text2), r.add(T2Text3), r.add(T2Text4);
    r.add(T2Text5), r.add(T2Frame1), r.add(T2Option1), r.add(T2Check1), r.add(T2Text1);
    r.add(T2Command1);
    r.add(ICheck0), r.addArray(ICheck1), r.addArray(ICheck2), r.add(IOption1), r.add(IOption2);
    r.add(ILabel1);
    r.add(Command1), r.add(Command2);
}

}  // namespace korvex::wizards::assistent52
