#include "pin_pictures.h"

#include <algorithm>
#include <map>

#include "base/cp1252.h"
#include "base/files.h"
#include "base/text.h"
#include "html.h"

namespace korvex::help {
namespace {

// "P3.0" -> "RXD" and the like, from the bit comments of a driver
// ("B0 RXD ; P3.0 serieller Eingang"), and the ports the driver names.
struct PortFunctions {
    std::map<std::string, std::vector<std::string>> functions;
    std::vector<std::string> ports;
};

PortFunctions readPorts(const std::string& path) {
    PortFunctions read;
    const std::string file = readWholeFile(path);  // the lines are views into it
    std::string section;
    for (std::string_view raw : textLines(file)) {
        const std::string line = toUtf8(raw);
        const std::string head = upperCase(trimBlanks(line));
        if (head == "VECTOR" || head == "SFR" || head == "BIT") {
            section = head;
            continue;
        }
        const std::size_t semicolon = line.find(';');
        if (line.empty() || semicolon == std::string::npos || semicolon == 0) continue;
        const std::string code = trimBlanks(line.substr(0, semicolon));
        const std::string comment = trimBlanks(line.substr(semicolon + 1));
        const std::size_t blank = code.find(' ');
        if (blank == std::string::npos) continue;
        const std::string name = trimBlanks(code.substr(blank));
        if (section == "SFR" && name.size() == 2 && name[0] == 'P' && name[1] >= '0' &&
            name[1] <= '9' && startsWith(comment, "Port"))
            read.ports.push_back(name);
        if (section == "BIT" && comment.size() >= 4 && comment[0] == 'P' && comment[2] == '.' &&
            comment.substr(0, 4) != name) {
            const std::string pin = comment.substr(0, 4);
            auto& list = read.functions[pin];
            if (std::find(list.begin(), list.end(), name) == list.end()) list.push_back(name);
        }
    }
    std::sort(read.ports.begin(), read.ports.end());
    return read;
}

std::string label(const PortFunctions& ports, const std::string& pin) {
    std::string text = pin;
    const auto found = ports.functions.find(pin);
    if (found != ports.functions.end())
        for (const std::string& function : found->second) text += " / " + function;
    return text;
}

// The dual-in-line packages: pin n's signal, from pin 1 down the left side
// and up the right.
std::vector<std::string> dip40() {
    std::vector<std::string> pins(41);
    for (int i = 0; i < 8; ++i) {
        pins[1 + i] = "P1." + std::to_string(i);
        pins[10 + i] = "P3." + std::to_string(i);
        pins[21 + i] = "P2." + std::to_string(i);
        pins[39 - i] = "P0." + std::to_string(i);
    }
    pins[9] = "RST";
    pins[18] = "XTAL2";
    pins[19] = "XTAL1";
    pins[20] = "GND";
    pins[29] = "PSEN";
    pins[30] = "ALE";
    pins[31] = "EA";
    pins[40] = "VCC";
    return pins;
}

std::vector<std::string> dip20() {
    return {"",     "RST",  "P3.0", "P3.1", "XTAL2", "XTAL1", "P3.2", "P3.3", "P3.4", "P3.5", "GND",
            "P3.7", "P1.0", "P1.1", "P1.2", "P1.3",  "P1.4",  "P1.5", "P1.6", "P1.7", "VCC"};
}

// The paper, in numbers: the viewer reads no percentages here.
std::string background(int width, int height) {
    return "<rect x=\"0\" y=\"0\" width=\"" + std::to_string(width) + "\" height=\"" +
           std::to_string(height) + "\" fill=\"white\"/>\n";
}

std::string svgText(int x, int y, const std::string& text, const char* anchor, int size = 12) {
    return "<text x=\"" + std::to_string(x) + "\" y=\"" + std::to_string(y) +
           "\" font-family=\"sans-serif\" font-size=\"" + std::to_string(size) +
           "\" text-anchor=\"" + anchor + "\">" + escaped(text) + "</text>\n";
}

std::string dipPicture(const std::string& chip, const std::vector<std::string>& pins,
                       const PortFunctions& ports, bool externalBus) {
    const int count = static_cast<int>(pins.size()) - 1;
    const int half = count / 2;
    const int pitch = 22;
    const int top = 60;
    const int bodyLeft = 230;
    const int bodyWidth = 140;
    const int width = bodyLeft * 2 + bodyWidth;
    const int height = top + half * pitch + 40;
    std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + std::to_string(width) +
                      "\" height=\"" + std::to_string(height) + "\">\n";
    svg += background(width, height);
    svg += svgText(width / 2, 28, chip + " (DIP-" + std::to_string(count) + ")", "middle", 16);
    svg += "<rect x=\"" + std::to_string(bodyLeft) + "\" y=\"" + std::to_string(top - 10) +
           "\" width=\"" + std::to_string(bodyWidth) + "\" height=\"" +
           std::to_string(half * pitch + 10) + "\" fill=\"#e8eef8\" stroke=\"black\"/>\n";
    svg += "<circle cx=\"" + std::to_string(width / 2) + "\" cy=\"" + std::to_string(top - 10) +
           "\" r=\"8\" fill=\"white\" stroke=\"black\"/>\n";
    for (int pin = 1; pin <= count; ++pin) {
        const bool left = pin <= half;
        const int row = left ? pin - 1 : count - pin;
        const int y = top + row * pitch + 6;
        std::string signal = label(ports, pins[static_cast<std::size_t>(pin)]);
        // The multiplexed bus of the parts with external memory.
        if (externalBus && startsWith(signal, "P0.")) signal += " / AD" + signal.substr(3, 1);
        if (externalBus && startsWith(signal, "P2."))
            signal += " / A" + std::to_string(8 + (signal[3] - '0'));
        const int pinX = left ? bodyLeft - 24 : bodyLeft + bodyWidth;
        svg += "<rect x=\"" + std::to_string(pinX) + "\" y=\"" + std::to_string(y - 9) +
               "\" width=\"24\" height=\"12\" fill=\"#c0c0c0\" stroke=\"black\"/>\n";
        svg += svgText(left ? bodyLeft + 6 : bodyLeft + bodyWidth - 6, y + 1, std::to_string(pin),
                       left ? "start" : "end", 11);
        svg += svgText(left ? bodyLeft - 30 : bodyLeft + bodyWidth + 30, y + 1, signal,
                       left ? "end" : "start");
    }
    return svg + "</svg>\n";
}

// The large packages: the ports with their functions, for the pin numbers
// of the package the data sheet.
std::string portPicture(const std::string& chip, const PortFunctions& ports) {
    const int columnWidth = 190;
    const int columns = 3;
    const int rows = (static_cast<int>(ports.ports.size()) + columns - 1) / columns;
    const int boxHeight = 8 * 18 + 30;
    const int width = columns * columnWidth + 20;
    const int height = 80 + rows * (boxHeight + 14) + 20;
    std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + std::to_string(width) +
                      "\" height=\"" + std::to_string(height) + "\">\n";
    svg += background(width, height);
    svg += svgText(width / 2, 28, chip + ": Portbelegung", "middle", 16);
    svg += svgText(width / 2, 50,
                   "Die Nummern der Gehäuseanschlüsse nennt das Datenblatt des Herstellers.",
                   "middle", 11);
    for (std::size_t index = 0; index < ports.ports.size(); ++index) {
        const int x = 10 + static_cast<int>(index % columns) * columnWidth;
        const int y = 70 + static_cast<int>(index / columns) * (boxHeight + 14);
        svg += "<rect x=\"" + std::to_string(x) + "\" y=\"" + std::to_string(y) + "\" width=\"" +
               std::to_string(columnWidth - 10) + "\" height=\"" + std::to_string(boxHeight) +
               "\" fill=\"#e8eef8\" stroke=\"black\"/>\n";
        const std::string& port = ports.ports[index];
        svg += svgText(x + 8, y + 18, "Port " + port.substr(1), "start", 13);
        for (int bit = 0; bit < 8; ++bit)
            svg += svgText(x + 8, y + 38 + bit * 18, label(ports, port + "." + std::to_string(bit)),
                           "start", 11);
    }
    return svg + "</svg>\n";
}

struct Picture {
    std::string_view file;
    std::string_view chip;
    std::string_view driver;
    int package;  // 40 or 20 pins, 0 for a port picture
};

constexpr Picture kPictures[] = {
    {"8032.svg", "80C32/80C52", "8032", 40},
    {"80C320.svg", "80C320 (Dallas)", "80C320", 40},
    {"89C420.svg", "89C420 (Dallas)", "89C420", 40},
    {"89LP51ED2.svg", "AT89LP51ED2 (Atmel)", "89LP51ED2", 40},
    {"89cxx.svg", "AT89S53/8252 (Atmel)", "89S8252", 40},
    {"4052.svg", "AT89LP4052 (Atmel)", "89LP4052", 20},
    {"C509.svg", "C509 (Infineon)", "C509", 0},
    {"C515.svg", "C515 (Infineon)", "C515", 0},
    {"C517.svg", "C517 (Infineon)", "C517", 0},
    {"80c552.svg", "80C552 (Philips)", "80C552", 0},
};

}  // namespace

std::vector<PinPicture> pinPictures(const std::string& driverFolder) {
    std::vector<PinPicture> pictures;
    for (const Picture& picture : kPictures) {
        const PortFunctions ports = readPorts(driverFolder + std::string(picture.driver) + ".cpu");
        const std::string chip(picture.chip);
        std::string svg;
        if (picture.package == 40) svg = dipPicture(chip, dip40(), ports, true);
        if (picture.package == 20) svg = dipPicture(chip, dip20(), ports, false);
        if (picture.package == 0) svg = portPicture(chip, ports);
        pictures.push_back({std::string(picture.file), std::move(svg)});
    }
    return pictures;
}

}  // namespace korvex::help
