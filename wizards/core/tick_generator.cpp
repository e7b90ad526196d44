#include "wizards/core/tick_generator.h"

#include <cmath>
#include <string_view>

#include "wizards/core/number_text.h"

namespace korvex::wizards {
namespace {

constexpr std::string_view kEnd = "\r\n";

// One stage: its lines, its flag, and its byte divider with start value.
struct Stage {
    std::array<const char*, 3> lines;
    const char* flag;
    const char* dividerBit;   // a divider kept in a bit, or null
    const char* dividerByte;  // a divider kept in a byte, or null
    const char* start;        // its start value, or null
};

constexpr std::array<Stage, kTickItems> kStages = {{
    {{"\tsetb 1 kHz", nullptr, nullptr}, "1 kHz", nullptr, nullptr, nullptr},
    {{"\tcpl 500 Hz Teiler: jb 500 Hz Teiler, 500 Hz Ende", "\t\tsetb 500 Hz", "\t500 Hz Ende:"},
     "500 Hz",
     "500 Hz Teiler",
     nullptr,
     nullptr},
    {{"\tdjnz 100 Hz Teiler, 100 Hz Ende", "\t\t100 Hz Teiler = #10: setb 100 Hz",
      "\t100 Hz Ende:"},
     "100 Hz",
     nullptr,
     "100 Hz Teiler",
     "100 Hz Teiler = #10"},
    {{"\tdjnz 50 Hz Teiler, 50 Hz Ende", "\t\t50 Hz Teiler = #20: setb 50 Hz", "\t50 Hz Ende:"},
     "50 Hz",
     nullptr,
     "50 Hz Teiler",
     "50 Hz Teiler = #20"},
    {{"\tdjnz 20 Hz Teiler, 20 Hz Ende", "\t\t20 Hz Teiler = #50: setb 20 Hz", "\t20 Hz Ende:"},
     "20 Hz",
     nullptr,
     "20 Hz Teiler",
     "20 Hz Teiler = #50"},
    {{"\tdjnz 10 Hz Teiler, 10 Hz Ende", "\t\t10 Hz Teiler = #100: setb 10 Hz", "\t10 Hz Ende:"},
     "10 Hz",
     nullptr,
     "10 Hz Teiler",
     "10 Hz Teiler = #100"},
    {{"\tdjnz 4 Hz Teiler, T0 Return", "\t\t4 Hz Teiler = #250: setb 4 Hz", nullptr},
     "4 Hz",
     nullptr,
     "4 Hz Teiler",
     "4 Hz Teiler = #250"},
    {{"\t\tcpl 2 Hz Teiler: jb 2 Hz Teiler, 2 Hz Ende", "\t\t\tsetb 2 Hz", "\t\t2 Hz Ende:"},
     "2 Hz",
     "2 Hz Teiler",
     nullptr,
     nullptr},
    {{"\t\tdjnz 1 Hz Teiler, T0 Return", "\t\t\t1 Hz Teiler = #4: setb 1 Hz", nullptr},
     "1 Hz",
     nullptr,
     "1 Hz Teiler",
     "1 Hz Teiler = #4"},
}};

void join(std::string& list, std::string_view separator, std::string_view item) {
    if (!list.empty()) list.append(separator);
    list.append(item);
}

}  // namespace

const std::array<const char*, kTickItems> kTickItemCaptions = {
    "1000 Hz, t = 1 ms", "500 Hz, t = 2 ms", "100 Hz, t = 10 ms",
    "50 Hz, t = 20 ms",  "20 Hz, t = 50 ms", "10 Hz, t = 0,1 s",
    "4 Hz, t = 0,25 s",  "2 Hz, t = 0,5 s",  "1 Hz, t = 1s"};

void implyTickItems(std::array<bool, kTickItems>& selected) {
    if (selected[7] || selected[8]) selected[6] = true;
}

TickBlocks buildTickBlocks(TickChip chip, const std::array<bool, kTickItems>& selected) {
    TickBlocks blocks;
    std::string bits;
    std::string bytes;
    if (chip == TickChip::At89s8253) {
        blocks.routine.append("Timer 0 Interrupt:\t; f = 20 kHz").append(kEnd);
        blocks.routine.append("\tdjnz 20 kHz Teiler, T0 Return").append(kEnd);
        blocks.routine.append("\t\t20 kHz Teiler = #20").append(kEnd);
        bytes = "20 kHz Teiler";
        blocks.init = "20 kHz Teiler = #20";
    } else {
        blocks.routine.append("Timer 0 Interrupt:\t; f = 1 kHz").append(kEnd);
    }
    for (std::size_t i = 0; i < kTickItems; ++i) {
        if (!selected[i]) continue;
        const Stage& stage = kStages[i];
        for (const char* text : stage.lines) {
            if (text != nullptr) blocks.routine.append(text).append(kEnd);
        }
        if (stage.dividerBit != nullptr) join(bits, ", ", stage.dividerBit);
        join(bits, ", ", stage.flag);
        if (stage.dividerByte != nullptr) join(bytes, ", ", stage.dividerByte);
        if (stage.start != nullptr) join(blocks.init, ": ", stage.start);
        for (std::string_view text : {"\tif bit ", "\t\tclr ", "\t\t; Befehle . .", "\tend if"}) {
            blocks.polling.append(text);
            if (text == "\tif bit ") blocks.polling.append(stage.flag).append(" then");
            if (text == "\t\tclr ") blocks.polling.append(stage.flag);
            blocks.polling.append(kEnd);
        }
    }
    blocks.routine.append("T0 Return:").append(kEnd).append("reti").append(kEnd);
    if (!bits.empty()) blocks.declarations.append("#Bit ").append(bits).append(kEnd);
    if (!bytes.empty()) blocks.declarations.append("#Byte ").append(bytes).append(kEnd);
    return blocks;
}

TickReload tickReload8253(double megahertz, bool doubled) {
    TickReload result;
    double q = megahertz * (doubled ? 2 : 1) * 50.0 / 12.0;
    if (q > 256) {
        result.tooHigh = true;
        q = 256;
    }
    result.reload = roundToInt32(256 - q);
    return result;
}

std::int32_t tickReload4052(double megahertz) {
    return roundToInt32(65536 - megahertz * 1000);
}

}  // namespace korvex::wizards
