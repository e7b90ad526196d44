#include "base/cp1252.h"
#include "wizards/assistent8253/assistent8253.h"
#include "wizards/core/control_builders.h"

namespace korvex::wizards::assistent8253 {

using namespace build;

namespace {

CheckBox box(const char* caption, int index) {
    return checkBox("ICheck1", caption, index);
}

Slider level(int index) {
    return slider("IPSlider", 0, 3, 0, index);
}

CheckBox tickItem(int index) {
    return checkBox("BList", kTickItemCaptions[static_cast<std::size_t>(index)], index);
}

TextBox address(const char* label, int index) {
    TextBox field = textBox("UAdresse", "00", label);
    field.index = index;
    return field;
}

}  // namespace

Settings8253::Settings8253()
    : ACkIntel(checkBox("ACkIntel", "Intel Power Down Exit")),
      SCkALE(checkBox("SCkALE", "ALE-Signal abschalten")),
      SCkX2(checkBox("SCkX2", "X2-Modus (Taktverdoppelung)")),
      UCkFrameError(checkBox("UCkFrameError", "Frame Error Erkennung")),
      UAdresse{address("Slave-Adresse (SADDR)", 0), address("Adressmaske (SADEN)", 1)},
      SPICkEnhanced(disabled(checkBox("SPICkEnhanced", "SPI Enhanced Modus"))),
      SPICkSOD(disabled(checkBox("SPICkSOD", "Slave Output abschalten"))),
      WCkStart(checkBox("WCkStart", "Watchdog starten")),
      WCkIdle(checkBox("WCkIdle", "Watchdog im Idle-Modus anhalten")),
      WCkReset(checkBox("WCkReset", "Keine Resetausgabe am Reset-Pin")),
      WCkHardware(checkBox("WCkHardware", "Hardware-Modus")),
      WOption1(optionGroup("WOption1", {"", "", "", "", "", "", "", ""}, 0)),
      ICheck1{box("Globale Interruptfreigabe", 0),
              box("Externer Interrupt 0, Low-Pegel an P3.2", 1),
              box("Externer Interrupt 0, negative Flanke an P3.2", 2),
              box("Timer 0 Interrupt", 3),
              box("Externer Interrupt 1, Low-Pegel an P3.3", 4),
              box("Externer Interrupt 1, negative Flanke an P3.3", 5),
              box("Timer 1 Interrupt", 6),
              box("Serieller Port Interrupt", 7),
              box("SPI Interrupt", 8),
              box("Timer 2 Interrupt", 9)},
      IPSlider{level(0), level(1), level(2), level(3), level(4), level(5)},
      BLabel1(label("BLabel1",
                    "Erzeugt mit Timer 0 zeitgesteuerte Ereignisse. Wählen Sie die "
                    "gewünsch- ten Zeiten aus nebenstehender Tabelle aus.")),
      BCheckTakt(checkBox("BCheckTakt", "Betriebssytem erzeugen")),
      BList{tickItem(0), tickItem(1), tickItem(2), tickItem(3), tickItem(4),
            tickItem(5), tickItem(6), tickItem(7), tickItem(8)},
      T0Meldung(hidden(label("T0Meldung", "Timer 0 wird für das Betriebssystem verwendet."))) {}

void Settings8253::registerControls(ControlRegistry& r) {
    r.add(ACkIntel), r.add(SCkALE), r.add(SCkX2), r.add(UCkFrameError), r.addArray(UAdresse);
    r.add(SPICkEnhanced), r.add(SPICkSOD);
    r.add(WCkStart), r.add(WCkIdle), r.add(WCkReset), r.add(WCkHardware), r.add(WOption1);
    r.addArray(ICheck1), r.addArray(IPSlider);
    r.add(BLabel1), r.add(BCheckTakt), r.addArray(BList), r.add(T0Meldung);
}

}  // namespace korvex::wizards::assistent8253
