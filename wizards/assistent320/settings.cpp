#include "base/cp1252.h"
#include "wizards/assistent320/assistent320.h"
#include "wizards/core/control_builders.h"

namespace korvex::wizards::assistent320 {

using namespace build;

namespace {

TextBox address(const char* name, const char* text, const char* label, int index) {
    TextBox box = textBox(name, text, label);
    box.index = index;
    return box;
}

}  // namespace

Settings320::Settings320()
    : S2Label1(label("S2Label1", "Taktrate für Timer")),
      S2Check1{checkBox("S2Check1", "Timer 0", 0), checkBox("S2Check1", "Timer 1", 1),
               checkBox("S2Check1", "Timer 2", 2)},
      S2Combo1(comboBox(
          "S2Combo1",
          {"2 Maschinenzyklen", "3 Maschinenzyklen", "4 Maschinenzyklen", "5 Maschinenzyklen",
           "6 Maschinenzyklen", "7 Maschinenzyklen", "8 Maschinenzyklen", "9 Maschinenzyklen"},
          false, 1)),
      UCheck5(checkBox("UCheck5", "Framing Error erkennen")),
      U1Check1(checkBox("U1Check1", "Seriellen Port 1 verwenden")),
      U1Frame1(frame("U1Frame1", false)),
      U1Option1(optionGroup("U1Option1",
                            {"Modus 0, synchron, 8 Bit, Baudrate fosc/12",
                             "Modus 1, asynchron, 10 Bit, Baudrate Timer 1 Überlauf",
                             "Modus 2, asynchron, 11 Bit, Baudrate fosc/64 oder /32",
                             "Modus 3, asynchron, 11 Bit, Baudrate Timer 1 Überlauf"},
                            0)),
      U1Check2(disabled(checkBox("U1Check2", "Verdreifachung der Baudrate in Modus 0"))),
      U1Check3(disabled(checkBox("U1Check3", "Datenempfang freigeben"))),
      U1Check4(disabled(checkBox("U1Check4", "Baudratenverdopplung"))),
      U1Combo1(disabled(
          comboBox("U1Combo1",
                   {"110", "300", "600", "1200", "2400", "4800", "9600", "14400", "19200", "28800"},
                   true, 4))),
      U1Label1(label("U1Label1", "Es steht nur Timer 1 für die Baudratenerzeugung zur Verfügung.")),
      MCText1{address("MCText1", "00000000", "Slave-Adresse Port 0", 0),
              address("MCText1", "00000000", "Adressmaske Port 0", 1),
              address("MCText1", "00000000", "Slave-Adresse Port 1", 2),
              address("MCText1", "00000000", "Adressmaske Port 1", 3)},
      MCText2{address("MCText2", "00", "SADDR0", 0), address("MCText2", "00", "SADEN0", 1),
              address("MCText2", "00", "SADDR1", 2), address("MCText2", "00", "SADEN1", 3)},
      WCheck2(checkBox("WCheck2", "Watchdog Timer starten")),
      WCheck1{disabled(checked(checkBox("WCheck1", "", 0))), disabled(checkBox("WCheck1", "", 1)),
              disabled(checkBox("WCheck1", "", 2)), disabled(checkBox("WCheck1", "", 3))},
      WCheck3{disabled(checkBox("WCheck3", "Timer 0 Interrupt", 0)),
              disabled(checkBox("WCheck3", "Timer 1 Interrupt", 1)),
              disabled(checkBox("WCheck3", "Timer 2 Interrupt", 2))},
      ICheck3(withTip(checkBox("ICheck3", "Power Fail Interrupt"),
                      "Hat höchste Priorität und kann jeden anderen Interrupt unterbrechen.")) {}

void Settings320::registerControls(ControlRegistry& r) {
    r.add(S2Label1), r.addArray(S2Check1), r.add(S2Combo1), r.add(UCheck5);
    r.add(U1Check1), r.add(U1Frame1), r.add(U1Option1), r.add(U1Check2), r.add(U1Check3);
    r.add(U1Check4), r.add(U1Combo1), r.add(U1Label1);
    r.addArray(MCText1), r.addArray(MCText2);
    r.add(WCheck2), r.addArray(WCheck1), r.addArray(WCheck3), r.add(ICheck3);
}

}  // namespace korvex::wizards::assistent320
