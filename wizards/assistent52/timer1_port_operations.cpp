// The rules of a serial port whose only baud-rate generator is Timer 1.

#include "base/cp1252.h"
#include "wizards/assistent52/assistent52.h"

namespace korvex::wizards::assistent52 {

void Assistent52::timer1PortUseClick(const Timer1PortControls& port) {
    const bool on = port.use.value != 0;
    port.frame.enabled = on;
    auto& modes = port.mode.buttons;
    if (!on) {
        modes[1].enabled = modes[3].enabled = true;
        port.baud.enabled = port.receive.enabled = port.doubling.enabled = false;
        regenerateProgram();
        return;
    }
    if (timer1Busy()) {
        modes[1].enabled = modes[3].enabled = false;
        if (port.mode.selected != 2) selectOption(port.mode, 0);
        host_.note(
            text8("Die Modi 1 und 3 stehen nicht zur Verfügung, weil Timer 1 für andere Zwecke "
                  "verwendet wird.\r\nGeben Sie Timer 1 frei."));
    } else {
        modes[1].enabled = modes[3].enabled = true;
    }
    timer1PortModeClick(port, port.mode.selected);
}

void Assistent52::timer1PortModeClick(const Timer1PortControls& port, int index) {
    GuardHold hold(generationGuard_, guard_code::kSerialMode);
    if (index % 2 == 1 && s_.T1Check0.value != 0) {
        // (Only a Timer 1 that the user keeps can be given back here.)
        if (host_.question("Konflikt", text8("Timer 1 wird bereits für andere Zwecke verwendet. "
                                             "Möchten Sie diese Zuordnung aufheben?"))) {
            setCheck(s_.T1Check0, 0);
            setListIndex(s_.T1Combo1, 2);
            setCheck(s_.T1Check2, 1);
            setCheck(s_.T0Check3, 1);
        } else {
            // The mode goes back quietly: Timer 1 stays with its other work.
            index = port.lastMode;
            port.mode.selected = static_cast<std::int16_t>(index);
        }
    }
    port.baud.enabled = port.use.value != 0 && index % 2 == 1;
    port.receive.enabled = port.doubling.enabled = index != 0;
    port.sm2.enabled = index == 2 || index == 3;
    port.lastMode = index;
    hold.release();
    regenerateProgram();
}

}  // namespace korvex::wizards::assistent52
