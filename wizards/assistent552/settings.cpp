#include "base/cp1252.h"
#include "wizards/assistent552/assistent552.h"
#include "wizards/core/control_builders.h"

namespace korvex::wizards::assistent552 {

using namespace build;

namespace {

TextBox hexField(const char* name, int index, const char* label) {
    TextBox box = disabled(textBox(name, "00", label));
    box.index = index;
    return box;
}

ComboBox captureEdges(int index) {
    ComboBox list = disabled(comboBox(
        "CTCombo1", {"aus", "positive Flanke", "negative Flanke", "beide Flanken"}, false, 0));
    list.index = index;
    return list;
}

}  // namespace

Settings552::Settings552()
    : T2Combo2(disabled(comboBox("T2Combo2", {"1", "2", "4", "8"}, false, 0))),
      T2Check2(disabled(checkBox("T2Check2", "Interrupt auch bei 8-Bit Überlauf"))),
      CTCombo1{captureEdges(0), captureEdges(1), captureEdges(2), captureEdges(3)},
      CMText1{hexField("CMText1", 0, "CMH0"), hexField("CMText1", 1, "CMH1"),
              hexField("CMText1", 2, "CMH2")},
      CMText2{hexField("CMText2", 0, "CML0"), hexField("CMText2", 1, "CML1"),
              hexField("CMText2", 2, "CML2")},
      STEText1(disabled(textBox("STEText1", "00", "STE: von CM0 gesetzte Ausgänge"))),
      RTEText1(disabled(textBox("RTEText1", "00", "RTE: von CM1 rückgesetzte Ausgänge"))),
      PWMCheck1(checkBox("PWMCheck1", "PWM0 verwenden")),
      PWMCheck2(checkBox("PWMCheck2", "PWM1 verwenden")),
      PWMText1(disabled(textBox("PWMText1", "00", "Vorteiler PWMP"))),
      PWMSlider1(disabled(slider("PWMSlider1", 0, 255, 128))),
      PWMSlider2(disabled(slider("PWMSlider2", 0, 255, 128))),
      PWMCommand(command("PWMCommand", "Frequenz vorgeben", false)),
      PWMLabel1(label("PWMLabel1", "")),
      PWMLabel2(label("PWMLabel2", "")),
      PWMLabel3(label("PWMLabel3", "")),
      ICCheck1(checkBox("ICCheck1", "I²C-Bus verwenden")),
      ICSlider1(disabled(slider("ICSlider1", 0, 7, 0))),
      ICLabel1(label("ICLabel1", "")),
      ICLabel2(label("ICLabel2", "")),
      ICCheck2(disabled(checkBox("ICCheck2", "Eigene Slave-Adresse erkennen"))),
      ICText1(disabled(textBox("ICText1", "00", "Slave-Adresse"))),
      ICCheck4(disabled(checkBox("ICCheck4", "General Call erkennen"))),
      ICheck3(checkBox("ICheck3", "I²C Service-Routine einfügen")),
      ADCheck1(checkBox("ADCheck1", "A/D-Wandler verwenden")),
      ADCombo1(disabled(comboBox("ADCombo1",
                                 {"ADC0 (P5.0)", "ADC1 (P5.1)", "ADC2 (P5.2)", "ADC3 (P5.3)",
                                  "ADC4 (P5.4)", "ADC5 (P5.5)", "ADC6 (P5.6)", "ADC7 (P5.7)"},
                                 false, 0))),
      ADCheck2(disabled(checkBox("ADCheck2", "Start durch externes Signal an STADC"))),
      ADCheck3(disabled(checkBox("ADCheck3", "Wandlung sofort starten"))),
      WDCheck1(checkBox("WDCheck1", "Watchdog Timer verwenden")),
      WDText1(disabled(textBox("WDText1", "00", "Reloadwert Timer 3"))),
      WDLabel1(label("WDLabel1", "")),
      WDCheck3{disabled(checkBox("WDCheck3", "Timer 0", 0)),
               disabled(checkBox("WDCheck3", "Timer 1", 1)),
               disabled(checkBox("WDCheck3", "Timer 2", 2))} {}

void Settings552::registerControls(ControlRegistry& r) {
    r.add(T2Combo2), r.add(T2Check2), r.addArray(CTCombo1), r.addArray(CMText1);
    r.addArray(CMText2), r.add(STEText1), r.add(RTEText1);
    r.add(PWMCheck1), r.add(PWMCheck2), r.add(PWMText1), r.add(PWMSlider1), r.add(PWMSlider2);
    r.add(PWMCommand), r.add(PWMLabel1), r.add(PWMLabel2), r.add(PWMLabel3);
    r.add(ICCheck1), r.add(ICSlider1), r.add(ICLabel1), r.add(ICLabel2), r.add(ICCheck2);
    r.add(ICText1), r.add(ICCheck4), r.add(ICheck3);
    r.add(ADCheck1), r.add(ADCombo1), r.add(ADCheck2), r.add(ADCheck3);
    r.add(WDCheck1), r.add(WDText1), r.add(WDLabel1), r.addArray(WDCheck3);
}

}  // namespace korvex::wizards::assistent552
