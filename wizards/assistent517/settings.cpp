#include "base/cp1252.h"
#include "wizards/assistent517/assistent517.h"
#include "wizards/core/control_builders.h"

namespace korvex::wizards::assistent517 {

using namespace build;

namespace {

OptionGroup assignment(int index) {
    OptionGroup group = optionGroup("CMOption1",
                                    {"Zuordnung zum Compare Timer, Com- pare-Modus 0",
                                     "Zuordnung zu Timer 2, Com- pare-Modus 1"},
                                    0);
    group.index = index;
    return group;
}

CheckBox compare(int index) {
    return checkBox("CMCheck1", ("CM" + std::to_string(index) + " verwenden").c_str(), index);
}

TextBox compareValue(int index) {
    const int n = index / 2;
    TextBox box = textBox("CMText1", "00");
    box.index = index;
    box.label = (index % 2 == 0 ? "CML" : "CMH") + std::to_string(n);
    return box;
}

}  // namespace

Settings517::Settings517()
    : SCheck4(checkBox("SCheck4", "Oszillator Watchdog")),
      U1Check1(checkBox("U1Check1", "Seriellen Port 1 verwenden")),
      U1Frame1(frame("U1Frame1", false)),
      U1Option1(disabled(optionGroup("U1Option1",
                                     {"Modus 1, asynchron, 10 Bit, Baudratengenerator 1",
                                      "Modus 3, asynchron, 11 Bit, Baudratengenerator 1"},
                                     0))),
      U1Check2(disabled(checkBox("U1Check2", "Multicontroller Kommunikation unterstützen."))),
      U1Check3(disabled(checkBox("U1Check3", "Datenempfang freigeben"))),
      U1Combo1(disabled(
          comboBox("U1Combo1",
                   {"110", "300", "600", "1200", "2400", "4800", "9600", "14400", "19200", "28800"},
                   true, 4))),
      U1Label2(label("U1Label2", "Baudrate")),
      CC4Combo1(comboBox("CC4Combo1",
                         {"aus", "Capture bei Flanke", "Compare", "Capture bei Schreibzugriff"},
                         false, 0)),
      CC4Combo2(comboBox("CC4Combo2",
                         {"keine gleichzeitige Ausgabe", "gleichzeitige Ausgabe an Port 5"}, false,
                         0)),
      CC4Slider(disabled(slider("CC4Slider", 1, 8, 1))),
      CC4Text1(textBox("CC4Text1", "00", "CCL4")),
      CC4Text2(textBox("CC4Text2", "00", "CCH4")),
      CMCheck1{compare(0), compare(1), compare(2), compare(3),
               compare(4), compare(5), compare(6), compare(7)},
      CMOption1{assignment(0), assignment(1), assignment(2), assignment(3),
                assignment(4), assignment(5), assignment(6), assignment(7)},
      CMText1{compareValue(0),  compareValue(1),  compareValue(2),  compareValue(3),
              compareValue(4),  compareValue(5),  compareValue(6),  compareValue(7),
              compareValue(8),  compareValue(9),  compareValue(10), compareValue(11),
              compareValue(12), compareValue(13), compareValue(14), compareValue(15)},
      CTCheck1(checkBox("CTCheck1", "Compare Timer verwenden")),
      CTCombo1(disabled(comboBox(
          "CTCombo1",
          {"fosc/2", "fosc/4", "fosc/8", "fosc/16", "fosc/32", "fosc/64", "fosc/128", "fosc/256"},
          false, 0))),
      CTText1(disabled(textBox("CTText1", "00", "CTRELL"))),
      CTText2(disabled(textBox("CTText2", "00", "CTRELH"))),
      MDU1(checkBox("MDU1", "32 Bit / 16 Bit")),
      MDU2(checkBox("MDU2", "16 Bit / 16 Bit")),
      MDU3(checkBox("MDU3", "16 Bit × 16 Bit")),
      MDU4(checkBox("MDU4", "Normalisierung")),
      MDU5(checkBox("MDU5", "Shift left")),
      MDUText1(disabled(withTip(textBox("MDUText1", ""), "Zahlen von 1 bis 31"))),
      MDU6(checkBox("MDU6", "Shift right")),
      MDUText2(disabled(withTip(textBox("MDUText2", ""), "Zahlen von 1 bis 31"))) {}

void Settings517::registerControls(ControlRegistry& r) {
    r.add(SCheck4), r.add(U1Check1), r.add(U1Frame1), r.add(U1Option1), r.add(U1Check2);
    r.add(U1Check3), r.add(U1Combo1), r.add(U1Label2);
    r.add(CC4Combo1), r.add(CC4Combo2), r.add(CC4Slider), r.add(CC4Text1), r.add(CC4Text2);
    r.addArray(CMCheck1), r.addArray(CMOption1), r.addArray(CMText1);
    r.add(CTCheck1), r.add(CTCombo1), r.add(CTText1), r.add(CTText2);
    r.add(MDU1), r.add(MDU2), r.add(MDU3), r.add(MDU4), r.add(MDU5), r.add(MDUText1);
    r.add(MDU6), r.add(MDUText2);
}

}  // namespace korvex::wizards::assistent517
