#include "base/cp1252.h"
#include "wizards/assistent89s53/assistent89s53.h"
#include "wizards/core/control_builders.h"

namespace korvex::wizards::assistent89s53 {

using namespace build;

AtmelSettings::AtmelSettings()
    : SOption1(optionGroup("SOption1", {"AT89S53", "AT89S8252"}, 0)),
      SLabel7(label("SLabel7", "Internes EEPROM verwenden")),
      SCheck3{disabled(checkBox("SCheck3", "zum Lesen", 0)),
              disabled(checkBox("SCheck3", "und zum Schreiben", 1))},
      WCheck2(checkBox("WCheck2", "Watchdog Timer verwenden")),
      WCheck1{disabled(checked(checkBox("WCheck1", "16 ms", 0))),
              disabled(checkBox("WCheck1", "32 ms", 1)),
              disabled(checkBox("WCheck1", "64 ms", 2)),
              disabled(checkBox("WCheck1", "128 ms", 3)),
              disabled(checkBox("WCheck1", "256 ms", 4)),
              disabled(checkBox("WCheck1", "512 ms", 5)),
              disabled(checkBox("WCheck1", "1024 ms", 6)),
              disabled(checkBox("WCheck1", "2048 ms", 7))},
      WCheck3{disabled(checkBox("WCheck3", "Timer 0 Interrupt", 0)),
              disabled(checkBox("WCheck3", "Timer 1 Interrupt", 1)),
              disabled(checkBox("WCheck3", "Timer 2 Interrupt", 2))},
      WText1(output(textBox("WText1", "Der Watchdog Timer wird nicht verwendet."))),
      SPICheck1(withTip(checkBox("SPICheck1", "SPI verwenden"), "Serial Peripheral Interface")),
      SPICheck2(disabled(checkBox("SPICheck2", "SPI Interrupt freigeben"))),
      SPIOption1(
          disabled(optionGroup("SPIOption1", {"Bit 7 (MSB) zuerst", "Bit 0 (LSB) zuerst"}, 0))),
      SPIOption2(disabled(optionGroup("SPIOption2", {"Slave", "Master"}, 1))),
      SPIList1(disabled(comboBox(
          "SPIList1", {"6000000 Baud", "1500000 Baud", "375000 Baud", "93750 Baud"}, false, 0))),
      SPIOption3(disabled(optionGroup(
          "SPIOption3",
          {"CPOL = 0, CPHA = 0", "CPOL = 1, CPHA = 0", "CPOL = 0, CPHA = 1", "CPOL = 1, CPHA = 1"},
          0))) {}

void AtmelSettings::registerControls(ControlRegistry& r) {
    r.add(SOption1), r.add(SLabel7), r.addArray(SCheck3);
    r.add(WCheck2), r.addArray(WCheck1), r.addArray(WCheck3), r.add(WText1);
    r.add(SPICheck1), r.add(SPICheck2), r.add(SPIOption1), r.add(SPIOption2), r.add(SPIList1);
    r.add(SPIOption3);
}

}  // namespace korvex::wizards::assistent89s53
