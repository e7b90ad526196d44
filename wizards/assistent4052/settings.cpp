#include "base/cp1252.h"
#include "wizards/assistent4052/assistent4052.h"
#include "wizards/core/control_builders.h"

namespace korvex::wizards::assistent4052 {

using namespace build;

namespace {

ComboBox prescaler(const char* name) {
    return comboBox(name, {"1", "2", "3", "4", "5", "6", "7", "8"}, false, 4);
}

ComboBox pinMode(int index) {
    ComboBox list = comboBox("PortText",
                             {"Input/Output: Quasi Bidirektional", "Output: Push.Pull",
                              "Input Only (High Impedance)", "Output: Open Drain"},
                             false, 0);
    list.index = index;
    return list;
}

CheckBox level(int index) {
    const int pin = index % 8;
    const std::string caption = (index < 8 ? "P1." : "P3.") + std::to_string(pin);
    CheckBox box = checked(checkBox("PortPegel", "", index));
    box.caption = caption;
    return box;
}

CheckBox tickItem(int index) {
    return checkBox("BList", kTickItemCaptions[static_cast<std::size_t>(index)], index);
}

Label indexed(Label l, int index) {
    l.index = index;
    return l;
}

}  // namespace

Settings4052::Settings4052()
    : SCheck4(checkBox("SCheck4", "Power Down Exit durch externe Ereignisse")),
      UCheck5(checkBox("UCheck5", "Frame Error Erkennung")),
      ULabel5(label("ULabel5",
                    "Baudratengenerator ist Timer 1. Wählen Sie ein Baudrate oder "
                    "geben Sie eine ein.")),
      T0Combo2(prescaler("T0Combo2")),
      T1Combo2(disabled(prescaler("T1Combo2"))),
      T0Label{indexed(label("T0Label", "Vorteiler-Bits"), 0),
              indexed(hidden(label("T0Label", "")), 1)},
      T1Label{indexed(label("T1Label", "Vorteiler-Bits"), 0),
              indexed(hidden(label("T1Label", "")), 1)},
      CaktivCheck(checkBox("CaktivCheck", "Analogkomparator verwenden")),
      CIdleCheck(disabled(checkBox("CIdleCheck", "Komparator im Idle-Modus abschalten"))),
      CCmdPin(command("CCmdPin", "AIN0 und AIN1 als Eingänge schalten", false)),
      COption(disabled(optionGroup(
          "COption",
          {"negative Flanke", "positive Flanke", "Pegeländerung", "positiver (High) Pegel",
           "negativer (Low) Pegel", "negative Flanke mit Entprellung*",
           "positive Flanke mit Entprellung*", "Pegeländerung mit Entprellung*"},
          0))),
      CLabel(label("CLabel", "* verwendet Timer 1 Überlauf")),
      PWM0Chkverwenden(
          checkBox("PWM0Chkverwenden", "verwenden, benutzt Timer 0, Ausgang ist P3.4")),
      PWM1Chkverwenden(
          checkBox("PWM1Chkverwenden", "verwenden, benutzt Timer 1, Ausgang ist P3.5")),
      PWM0Text(disabled(textBox("PWM0Text", "00", "Vorteiler"))),
      PWM1Text(disabled(textBox("PWM1Text", "00", "Vorteiler"))),
      PWM0Slider(disabled(slider("PWM0Slider", 0, 255, 128))),
      PWM1Slider(disabled(slider("PWM1Slider", 0, 255, 128))),
      PWM0Label(label("PWM0Label", "")),
      PWM1Label(label("PWM1Label", "")),
      PWM0Meldung(hidden(label("PWM0Meldung", "Timer 0 wird vom Betriebssystem verwendet."))),
      PWM1Meldung(hidden(label("PWM1Meldung", "Timer 1 wird vom seriellen Port verwendet."))),
      PortText{pinMode(0),  pinMode(1),  pinMode(2),  pinMode(3), pinMode(4),  pinMode(5),
               pinMode(6),  pinMode(7),  pinMode(8),  pinMode(9), pinMode(10), pinMode(11),
               pinMode(12), pinMode(13), pinMode(14), pinMode(15)},
      PortPegel{level(0),  level(1),  level(2),  level(3), level(4),  level(5),
                level(6),  level(7),  level(8),  level(9), level(10), level(11),
                level(12), level(13), level(14), level(15)},
      BLabel1(label("BLabel1",
                    "Erzeugt mit Timer 0 zeitgesteuerte Ereignisse. Wählen Sie die "
                    "gewünsch- ten Zeiten aus nebenstehender Tabelle aus.")),
      BCheckTakt(checkBox("BCheckTakt", "Betriebssystem erzeugen")),
      BList{tickItem(0), tickItem(1), tickItem(2), tickItem(3), tickItem(4),
            tickItem(5), tickItem(6), tickItem(7), tickItem(8)},
      BMeldung(hidden(label("BMeldung",
                            "Ereignissteuerung ist nicht möglich, da Timer 0 als PWM "
                            "verwendet wird."))),
      SPICkEnhanced(disabled(checkBox("SPICkEnhanced", "Enhanced SPI Modus"))),
      SPICkSOD(disabled(checkBox("SPICkSOD", "Dissable Slave Output"))) {}

void Settings4052::registerControls(ControlRegistry& r) {
    r.add(SCheck4), r.add(UCheck5), r.add(ULabel5), r.add(T0Combo2), r.add(T1Combo2);
    r.addArray(T0Label), r.addArray(T1Label);
    r.add(CaktivCheck), r.add(CIdleCheck), r.add(CCmdPin), r.add(COption), r.add(CLabel);
    r.add(PWM0Chkverwenden), r.add(PWM1Chkverwenden), r.add(PWM0Text), r.add(PWM1Text);
    r.add(PWM0Slider), r.add(PWM1Slider), r.add(PWM0Label), r.add(PWM1Label);
    r.add(PWM0Meldung), r.add(PWM1Meldung);
    r.addArray(PortText), r.addArray(PortPegel);
    r.add(BLabel1), r.add(BCheckTakt), r.addArray(BList), r.add(BMeldung);
    r.add(SPICkEnhanced), r.add(SPICkSOD);
}

}  // namespace korvex::wizards::assistent4052
