// The sections of Timers 0, 1 and 2 and their result texts.

#include "wizards/assistent52/assistent52.h"
#include "wizards/assistent52/program_lines.h"
#include "wizards/core/timer_arithmetic.h"

namespace korvex::wizards::assistent52 {

std::string Assistent52::mode0GateLine(int timer) const {
    switch (profile_.style) {
        case LiteralStyle::Compact: return timer == 0 ? "orl TMOD, #08" : "orl TMOD, #80";
        case LiteralStyle::Blank: return timer == 0 ? "orl TMOD, # 8" : "orl TMOD, # 80h";
        case LiteralStyle::Assignment: break;
    }
    return timer == 0 ? "orl TMOD, #08h" : "orl TMOD, #80h";
}

double Assistent52::timerDivisor(int, int mode, const std::string& reloadText) const {
    return timer01Divisor(mode, hexFieldValue(reloadText));
}

std::string Assistent52::mode1Comment(int timer) const {
    return "Timer " + std::to_string(timer) + " als 16-Bit Timer. ";
}

std::string Assistent52::overflowText(float fosc, int timer, int mode,
                                      const std::string& reloadText) const {
    const OverflowRate rate =
        overflowRate(fosc, timerDivisor(timer, mode, reloadText), timerCycleDivider(timer));
    return text8("Die Überlauffrequenz des Timer ") + std::to_string(timer) + text8(" beträgt ") +
           str(rate.frequency) + " Hz, die Periodendauer " + str(rate.periodMs) + " ms.";
}

void Assistent52::writeTimer0(ProgramParts& out, const GenerationContext& context) {
    writeTimer01(out.code, timer0(), context.fosc);
}

void Assistent52::writeTimer1(ProgramParts& out, const GenerationContext& context) {
    if (s_.T1Check0.value != 0) writeTimer01(out.code, timer1(), context.fosc);
}

void Assistent52::writeTimer01(std::string& code, const TimerControls& timer, float fosc) {
    const int n = timer.number;
    const std::string number = std::to_string(n);
    const int mode = timer.mode.listIndex;
    const bool gate = timer.gate.value != 0;
    // Timer 0 keeps TMOD's low nibble, Timer 1 the high one.
    const auto tmod = [this, n](const std::string& digits) {
        return operation("orl", "TMOD", n == 0 ? "0" + digits + "h" : digits + "0h");
    };
    std::string result;
    int g = 0;
    if (timer.source.selected == 1) {
        if (n == 1 && mode == 3) {
            result = text8("Zähler 1 ist gestoppt. Modus 3 ist für Zähler 1 nicht verfügbar.");
        } else {
            result = text8("Die Überlauffrequenz des ") + text8(counterWord(n)) + " " + number +
                     text8(" hängt vom Eingangssignal an T") + number + " " +
                     (mode == 2 ? "und vom Reloadwert" : "") + " ab.";
        }
        line(code, "; Timer " + number + " wird als externer Ereigniszähler verwendet.");
        commentLines(code, result);
        if (gate) line8(code, "; " + timer.gate.caption);
        line8(code, tmod(hexText((gate ? 8 : 0) + mode + 4)) + "\t; " + timer.mode.text);
        if (n == 0 && mode == 3) {
            const std::string upperHalf = overflowText(fosc, 1, 3, timer.high.text);
            result += std::string(kLineEnd) + upperHalf;
            line8(code, "; " + upperHalf);
        }
    } else {
        if (n == 1 && mode == 3) {
            result = text8("Timer 1 steht. Modus 3 ist für Timer 1 nicht verfügbar.") +
                     std::string(kLineEnd);
        } else {
            result = overflowText(fosc, n, mode, timer.high.text);
            if (mode == 3) {
                result += std::string(kLineEnd) + overflowText(fosc, 1, 3, timer.high.text) +
                          std::string(kLineEnd);
            }
        }
        switch (mode) {
            case 0:
                line(code,
                     "; Timer " + number + " im Modus 0 = " + mode0Width(n) + "-Bit Timer/Zähler.");
                commentLines(code, result);
                // The base's gate line of Timer 1 has no "h": it reads as decimal 80.
                if (gate) line8(code, mode0GateLine(n) + "\t; " + timer.gate.caption);
                break;
            case 1:
                g = gate ? 9 : 1;
                line(code, tmod(std::to_string(g)) + "\t; " + mode1Comment(n));
                commentLines(code, result);
                break;
            case 2:
                g = gate ? 10 : 2;
                line(code,
                     tmod(hexText(g)) + "\t; Timer " + number + " im 8-Bit Autoreload-Modus. ");
                commentLines(code, result);
                if (timer.low.text != timer.high.text) {
                    result += std::string(kLineEnd) + "Sie sollten Timer " + number +
                              " mit dem Reloadwert beschreiben.";
                }
                break;
            default:
                g = gate ? 11 : 3;
                line(code, n == 0 ? tmod(hexText(g)) +
                                        "\t; Timer 0 (LSB) als 8-Bit Timer 0, Timer 0 (MSB) als "
                                        "8-Bit Timer 1 in Modus 3. "
                                  : tmod(hexText(g)) + "\t; Timer 1 Modus 3, d.h. Timer 1 steht. ");
                commentLines(code, result);
                break;
        }
        if (g > 8) line8(code, "; " + timer.gate.caption);
    }
    if (hexFieldValue(timer.low.text) != 0) {
        line8(code, load("TL" + number, timer.low.text + "h"));
    }
    if (hexFieldValue(timer.high.text) != 0) {
        line8(code,
              load("TH" + number, timer.high.text + "h") + (mode == 2 ? "\t; Reloadwert" : ""));
    }
    writeTimerReloadRegisters(code, timer);
    if (timer.run.value == 1) line(code, "setb TR" + number + "\t; Timer " + number + " läuft.");
    if (n == 0 && s_.T0Check3.value != 0 && s_.T0Check3.visible && !s_.T1Check2.enabled) {
        line(code, "setb TR1\t; High-Byte Timer 0 läuft separat als 8-Bit Timer");
    }
    timer.result.text = result;
}

std::string Assistent52::timer2Hint() const {
    if (s_.T2Check1.value != 0 && s_.T2Check1.visible) {
        return text8(
                   "Sie verwenden den Eingang T2EX als zusätzlichen externen Interrupt. Eine "
                   "negative Flanke an T2EX setzt das Bit EXF2. \r\n") +
               text8(timer2InterruptEnabled()
                         ? "Dieses löst den Timer 2 Interrupt aus."
                         : "Dieses kann den Timer 2 Interrupt auslösen. Geben Sie dazu "
                           "den Timer 2 Interrupt frei.");
    }
    std::string hint = text8(
        "Sie können den Eingang T2EX als zusätzlichen externen Interrupt verwenden. "
        "Dieser verwendet den Interruptvektor des Timer 2.\r\n");
    if (!timer2InterruptEnabled()) hint += " Geben Sie dazu den Timer 2 Interrupt frei.";
    return hint;
}

bool Assistent52::describeTimer2(int, float, std::int64_t, int&, int&, std::string&) {
    return false;
}

void Assistent52::writeTimer2(ProgramParts& out, const GenerationContext& context) {
    std::string& code = out.code;
    const bool used = s_.T2Check0.value != 0;
    if (used) line(code, "; Timer 2:");

    const bool exen2 = s_.T2Check1.value != 0;
    const std::string hint = timer2Hint();
    const int function = selectedTimer2Function();
    // The fields take two digits in the dialog, but a value set otherwise may be
    // longer: the reload is reckoned as a number, never wrapped.
    const std::int64_t reload = std::int64_t{hexFieldValue(s_.T2Text4.text)} +
                                256 * std::int64_t{hexFieldValue(s_.T2Text5.text)};
    const auto rateText = [&](double divisor) {
        const OverflowRate rate = overflowRate(context.fosc, divisor, timerCycleDivider(2));
        return text8(" Die Überlauffrequenz beträgt ") + str(rate.frequency) +
               " Hz, die Periodendauer " + str(rate.periodMs) + " ms.";
    };
    const std::string upCounter = text8("Timer 2 ist ein 16-Bit Aufwärtszähler");
    const std::string reloadText =
        text8(" mit automatischer Nachladung aus den Reload-Registern bei Überlauf");
    const std::string captureText = text8(
        ". Eine negative Flanke am Eingang T2EX bewirkt, dass der "
        "Zählerstand in die RCAP2-Register geschrieben wird.");
    const std::string triggerText = text8(" oder bei negativer Flanke am Eingang T2EX.");
    const std::string clockInput = text8(" Das Taktsignal stammt vom Eingang T2.");
    int t2con = 0;
    int t2mod = 0;
    std::string description;
    switch (function) {
        case T2Timer16:
            t2con = 1;
            description = upCounter + "." + rateText(65536);
            break;
        case T2TimerReload:
            t2con = 0;
            description = upCounter + reloadText + "." + rateText(65536 - reload);
            break;
        case T2TimerReloadTrigger:
            t2con = 8;
            description = upCounter + reloadText + triggerText + rateText(65536 - reload);
            break;
        case T2TimerCapture:
            t2con = 9;
            description = upCounter + captureText + rateText(65536);
            break;
        case T2Counter16:
            t2con = 3;
            description = text8("Zähler 2 ist ein 16-Bit Ereigniszähler.") + clockInput;
            break;
        case T2CounterReload:
            t2con = 2;
            description = text8("Zähler 2 ist ein 16-Bit Ereigniszähler.") + clockInput +
                          text8(
                              " Bei Überlauf wird der Zähler mit dem Inhalt der Reload-Register "
                              "nachgeladen.");
            break;
        case T2CounterReloadTrigger:
            t2con = 10;
            description = text8("Zähler 2 ist ein 16-Bit Aufwärtszähler") + reloadText +
                          triggerText + clockInput;
            break;
        case T2CounterCapture:
            t2con = 11;
            description =
                text8("Zähler 2 ist ein 16-Bit Aufwärtszähler") + captureText + clockInput;
            break;
        case T2BaudOscillator:
        case T2BaudExternal:
        case T2BaudOscillatorOutput: {
            const int direction = s_.T2Option1.selected;
            const std::string& caption =
                s_.T2Option1.buttons[static_cast<std::size_t>(direction)].caption;
            t2con = (direction == 0   ? 16
                     : direction == 1 ? 32
                                      : 48) +
                    (exen2 ? 8 : 0) + (function == T2BaudExternal ? 2 : 0);
            description =
                text8("Timer 2 wird als Baudratengenerator für ") + caption + " verwendet.";
            if (function == T2BaudOscillatorOutput) t2mod = 2;  // T2OE: the rate out on T2
            if (function != T2BaudExternal) {
                const float baud = toSingle(static_cast<double>(context.fosc) /
                                            static_cast<double>((65536 - reload) * 32));
                description += text8(" Die Baudrate beträgt ") + str(baud) + " Baud." + hint;
            } else {
                description += text8(
                                   " Die Baudrate hängt von der Eingangsfrequenz an T2 und den "
                                   "Reload-Registern ab.") +
                               hint;
            }
            break;
        }
        default: describeTimer2(function, context.fosc, reload, t2con, t2mod, description); break;
    }

    if (used) {
        s_.T2Text1.text = description;
        line8(code, "; " + description.substr(0, description.find(kLineEnd)));
        if (t2con != 0) {
            line8(code, timer2Load("T2CON", hexText(t2con) + "h") +
                            (exen2 ? "\t; " + s_.T2Check1.caption : std::string()));
        }
        if (t2mod != 0) line8(code, timer2Load("T2MOD", hexText(t2mod) + "h"));
        if (hexFieldValue(s_.T2Text4.text) != 0 && s_.T2Text4.enabled) {
            line8(code, timer2Load("RCAP2L", s_.T2Text4.text + "h"));
        }
        if (hexFieldValue(s_.T2Text5.text) != 0 && s_.T2Text5.enabled) {
            line8(code, timer2Load("RCAP2H", s_.T2Text5.text + "h"));
        }
        if (hexFieldValue(s_.T2Text2.text) != 0) {
            line8(code, timer2Load("TL2", s_.T2Text2.text + "h"));
        }
        if (hexFieldValue(s_.T2Text3.text) != 0) {
            line8(code, timer2Load("TH2", s_.T2Text3.text + "h"));
        }
        line(code, "setb TR2\t; Timer 2 läuft.");
        return;
    }
    if (exen2 && s_.T2Check1.visible) {
        const bool t2conWritten = code.find("T2CON") != std::string::npos;
        line8(code, (t2conWritten ? timer2OrLine("T2CON", "8") : timer2Load("T2CON", "8")) +
                        "\t; " + s_.T2Check1.caption);
    }
    const bool baudGenerator =
        s_.UCheck1.value != 0 && (s_.UCombo1.listIndex == 1 || s_.UCombo2.listIndex == 1);
    s_.T2Text1.text = text8(baudGenerator ? "Timer 2 wird als Baudratengenerator verwendet."
                                          : "Timer 2 ist nicht aktiviert.") +
                      hint;
}

}  // namespace korvex::wizards::assistent52
