// The serial port's section of the program and the two derived mode captions.

#include "wizards/assistent52/assistent52.h"
#include "wizards/assistent52/program_lines.h"
#include "wizards/core/timer_arithmetic.h"

namespace korvex::wizards::assistent52 {

void Assistent52::writeTimer1BaudLines(std::string& code, float fosc, double baud) {
    writeTimer1BaudLines(code, fosc, baud, s_.UCheck4.value != 0, &s_.T1Text2);
}

double Assistent52::writeTimer1BaudLines(std::string& code, float fosc, double baud, bool doubled,
                                         TextBox* reloadField) {
    const BaudSetting setting =
        timer1Baud(static_cast<float>(fosc * timer1BaudFactor()), baud, doubled);
    line(code, load("TMOD", "20h") + "\t; Timer 1 Autoreloadmodus");
    line8(code, load("TH1", hexText(setting.reload)) + text8("h\t; Reloadwert für Baudrate ") +
                    str(toSingle(setting.actual)));
    if (!s_.T0Check3.visible) line(code, "setb TR1\t; Timer 1 Start");
    if (reloadField != nullptr) reloadField->text = hexText(setting.reload);
    return setting.actual;
}

void Assistent52::writeTimer2BaudLines(std::string& code, float fosc, double baud,
                                       const std::string& t2con) {
    const BaudSetting setting = timer2Baud(fosc, baud);
    line(code, load("RCAP2L", hexText(setting.reload % 256)) + "h\t; Reloadwerte für");
    line8(code, load("RCAP2H", hexText(setting.reload / 256)) + "h\t; " +
                    str(toSingle(setting.actual)) + " Baud");
    line8(code, t2con);
    s_.T2Text4.text = hex2(setting.reload % 256);
    s_.T2Text5.text = hex2(setting.reload / 256);
}

void Assistent52::writeBaudLines(std::string& code, float fosc) {
    const double receiveBaud = valNumber(s_.UCombo3.text);
    const double sendBaud = valNumber(s_.UCombo4.text);
    const int receive = s_.UCombo1.listIndex;
    const int send = s_.UCombo2.listIndex;
    if (receive == 0 && send == 0) {
        if (receiveBaud > 0) {
            code += kLineEnd;
            writeTimer1BaudLines(code, fosc, receiveBaud);
        }
    } else if (receive == 0 && send == 1) {
        if (receiveBaud > 0) {
            code += kLineEnd;
            line(code);
            line(code, "; Baudrate für Empfang mit Timer 1 erzeugen.");
            writeTimer1BaudLines(code, fosc, receiveBaud);
        }
        if (sendBaud > 0) {
            code += kLineEnd;
            line(code, "; Baudrate für Senden mit Timer 2 erzeugen:");
            writeTimer2BaudLines(
                code, fosc, sendBaud,
                load("T2CON", "14h") + text8("\t; Timer 2 als Baudratengenerator für "
                                             "Senden, Timer 2 Run"));
        }
    } else if (receive == 1 && send == 0) {
        if (receiveBaud > 0) {
            code += kLineEnd;
            line(code);
            line(code, "; Baudrate für Empfang mit Timer 2 erzeugen:");
            writeTimer2BaudLines(
                code, fosc, receiveBaud,
                load("T2CON", "24h") + text8("\t; Timer 2 als Baudratengenerator für "
                                             "Empfang, Timer 2 Run"));
        }
        if (sendBaud > 0) {
            code += kLineEnd;
            line(code, "; Baudrate für Senden mit Timer 1 erzeugen:");
            writeTimer1BaudLines(code, fosc, sendBaud);
        }
    } else if (receive == 1 && send == 1) {
        if (receiveBaud > 0) {
            code += kLineEnd;
            writeTimer2BaudLines(
                code, fosc, receiveBaud,
                load("T2CON", "34h") + "\t; Timer 2 als Baudratengenerator, Timer 2 Run");
        }
    }
}

void Assistent52::writeSerialPort(ProgramParts& out, const GenerationContext& context) {
    const float fosc = context.fosc;
    const bool doubled = s_.UCheck4.value != 0;
    s_.UOption1.buttons[0].caption =
        "Modus 0, synchron, 8 Bit, " + str(serialMode0Baud(fosc)) + " Baud";
    s_.UOption1.buttons[2].caption =
        profile_.mode2Caption +
        doubleText((doubled ? 2.0 : 1.0) * fosc / serialMode2Divider(), options_.numberFormat) +
        " Baud";
    if (s_.UCheck1.value == 0) return;

    std::string& code = out.code;
    line(code);
    line8(code, serialPortTitle());
    int scon = 0;
    std::string flags;
    if (s_.UCheck2.value != 0) {
        scon += 32;
        flags = ", " + s_.UCheck2.caption;
    }
    if (s_.UCheck3.value != 0) {
        scon += 16;
        flags += ", " + s_.UCheck3.caption;
    }
    const int mode = s_.UOption1.selected;
    if (mode == 0) {
        line8(code, "; Modus 0 ist aktiv mit Baudrate = " + str(serialMode0Baud(fosc)));
        writeSerialMode0Extras(code);
    } else if (mode == 2) {
        line8(code,
              load(sconName(), hexText(scon + 128)) + "h\t; " + s_.UOption1.buttons[2].caption);
    } else {
        // The SCON line of modes 1 and 3 stays open: each baud branch begins with its line end.
        code += load(sconName(), hexText(scon + (mode == 1 ? 64 : 192))) + "h\t; " +
                s_.UOption1.buttons[static_cast<std::size_t>(mode)].caption + flags;
        writeBaudLines(code, fosc);
    }
    writeDoublingLine(code);
}

void Assistent52::writeDoublingLine(std::string& code) {
    if (s_.UCheck4.value != 0 && s_.UCheck4.enabled && s_.UCheck4.visible) {
        line(code,
             operation("orl", "PCON", "80h") + "\t; Bit SMOD für Baudratenverdoppelung setzen");
    }
}

}  // namespace korvex::wizards::assistent52
