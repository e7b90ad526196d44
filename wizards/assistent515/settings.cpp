#include "base/cp1252.h"
#include "wizards/assistent515/assistent515.h"
#include "wizards/core/control_builders.h"

namespace korvex::wizards::assistent515 {

using namespace build;

namespace {

TextBox hexField(const char* name, int index, const char* label) {
    TextBox box = disabled(textBox(name, "00", label));
    box.index = index;
    return box;
}

ComboBox levels(int index) {
    ComboBox list = comboBox("IPCombo1", {"0", "1", "2", "3"}, false, 0);
    list.index = index;
    return list;
}

ComboBox compareMode(int index) {
    ComboBox list = disabled(
        comboBox("CCCombo1", {"aus", "Capture bei Flanke", "Compare", "Capture bei Schreibzugriff"},
                 false, 0));
    list.index = index;
    return list;
}

}  // namespace

Settings515::Settings515()
    : SCheck0(withTip(checkBox("SCheck0", "Systemtakt an CLKOUT (P1.6) ausgeben"),
                      "Teilt die Oszillatorfrequenz durch 12")),
      SLabel7(label("SLabel7", "Resetherkunft prüfen")),
      SCheck3(checkBox("SCheck3", "Watchdog Timer")),
      UOption3(disabled(optionGroup("UOption3", {"Timer 1", "Baudratengenerator"}, 1))),
      ULabel2(label("ULabel2", "Baudrate")),
      T2Combo2(disabled(
          comboBox("T2Combo2", {"Vorteiler 1:1 (fosc/12)", "Vorteiler 1:2 (fosc/24)"}, false, 0))),
      T2Check2(disabled(checkBox("T2Check2", "positive Flanke am CC0-Eingang (P1.0)"))),
      T2Check3(disabled(checkBox("T2Check3", "Compare-Modus 1"))),
      CCCombo1{compareMode(0), compareMode(1), compareMode(2), compareMode(3)},
      CCText1{hexField("CCText1", 0, "CCL1"), hexField("CCText1", 1, "CCL2"),
              hexField("CCText1", 2, "CCL3")},
      CCText2{hexField("CCText2", 0, "CCH1"), hexField("CCText2", 1, "CCH2"),
              hexField("CCText2", 2, "CCH3")},
      ADCheck1(checkBox("ADCheck1", "A/D-Wandler verwenden")),
      ADOption1(
          disabled(optionGroup("ADOption1", {"Einzelkonvertierung", "Dauerkonvertierung"}, 0))),
      ADCombo1(disabled(comboBox("ADCombo1",
                                 {"AN0 (P6.0)", "AN1 (P6.1)", "AN2 (P6.2)", "AN3 (P6.3)",
                                  "AN4 (P6.4)", "AN5 (P6.5)", "AN6 (P6.6)", "AN7 (P6.7)"},
                                 false, 0))),
      ADCombo2(disabled(comboBox("ADCombo2", {}))),
      ADCombo3(disabled(comboBox("ADCombo3", {}))),
      WDCheck1(checkBox("WDCheck1", "Watchdog Timer verwenden")),
      WDCheck2(disabled(checkBox("WDCheck2", "Watchdog Timer starten"))),
      WDCheck3{disabled(checkBox("WDCheck3", "Timer 0", 0)),
               disabled(checkBox("WDCheck3", "Timer 1", 1)),
               disabled(checkBox("WDCheck3", "Timer 2", 2)),
               disabled(checkBox("WDCheck3", "Compare-Timer", 3))},
      WDCommand1(command("WDCommand1", "Watchdog Periode ändern", false)),
      WDLabel(label("WDLabel", "0h, Teiler 24")),
      IPCombo1{levels(0), levels(1), levels(2), levels(3), levels(4), levels(5)} {}

void Settings515::registerControls(ControlRegistry& r) {
    r.add(SCheck0), r.add(SLabel7), r.add(SCheck3), r.add(UOption3), r.add(ULabel2);
    r.add(T2Combo2), r.add(T2Check2), r.add(T2Check3), r.addArray(CCCombo1);
    r.addArray(CCText1), r.addArray(CCText2);
    r.add(ADCheck1), r.add(ADOption1), r.add(ADCombo1), r.add(ADCombo2), r.add(ADCombo3);
    r.add(WDCheck1), r.add(WDCheck2), r.addArray(WDCheck3), r.add(WDCommand1), r.add(WDLabel);
    r.addArray(IPCombo1);
}

}  // namespace korvex::wizards::assistent515
