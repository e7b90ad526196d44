#pragma once
// A deterministic 8051 source of plain instructions for the speed measurements.
// Every 16th line is a label standing alone; near jumps go to the next label,
// long jumps and calls to labels further down, so the second pass has work.
// The syntax is the common ground with as31, so both can assemble the same file.

#include <cstdint>
#include <string>

namespace korvex::bench {

inline std::string generateSource(int lineCount) {
    constexpr int kBlock = 16;
    const int labels = (lineCount + kBlock - 1) / kBlock;
    std::uint32_t seed = 0x51u;
    auto next = [&seed](std::uint32_t range) {
        seed = seed * 1664525u + 1013904223u;  // fixed LCG: the same text on every machine
        return (seed >> 8) % range;
    };
    auto label = [](int n) { return "L" + std::to_string(n); };
    auto reg = [&] { return "r" + std::to_string(next(8)); };
    auto direct = [&] { return std::to_string(0x30 + next(0x50)); };
    auto hexByte = [&] {
        static const char* kDigits = "0123456789ABCDEF";
        const std::uint32_t v = next(256);
        return std::string("0") + kDigits[v / 16] + kDigits[v % 16] + "h";
    };
    auto immediate = [&] { return "#" + (next(2) ? std::to_string(next(256)) : hexByte()); };

    std::string text;
    text.reserve(static_cast<std::size_t>(lineCount) * 18);
    for (int line = 0; line < lineCount; ++line) {
        const int block = line / kBlock;
        if (line % kBlock == 0) {
            text += label(block) + ":\r\n";
            continue;
        }
        const std::string nearTarget = label(block + 1 < labels ? block + 1 : block);
        const int far = block + 1 + static_cast<int>(next(300));
        const std::string farTarget = label(far < labels ? far : labels - 1);
        std::string s;
        // Mostly one- and two-byte forms, so 32,000 lines stay inside 64K of code.
        switch (next(24)) {
            case 0: case 1: s = "mov a," + reg(); break;
            case 2: case 3: s = "add a," + reg(); break;
            case 4: s = "inc " + reg(); break;
            case 5: s = "mov " + reg() + ",a"; break;
            case 6: s = "anl a," + reg(); break;
            case 7: s = "xrl a,@r" + std::to_string(next(2)); break;
            case 8: s = "orl a,@r" + std::to_string(next(2)); break;
            case 9: s = "mov a," + immediate(); break;
            case 10: s = "add a," + direct(); break;
            case 11: s = "mov " + reg() + "," + immediate(); break;
            case 12: s = "mov " + direct() + ",a"; break;
            case 13: s = "anl a," + immediate(); break;
            case 14: s = (next(2) ? "sjmp " : "jnz ") + nearTarget; break;
            case 15: s = "djnz " + reg() + "," + nearTarget; break;
            case 16: s = "mov " + direct() + "," + immediate(); break;
            case 17: s = "mov " + direct() + "," + direct(); break;
            case 18: s = (next(2) ? "anl " : "orl ") + direct() + "," + immediate(); break;
            case 19: s = "cjne a," + immediate() + "," + nearTarget; break;
            case 20: s = "cjne " + reg() + "," + immediate() + "," + nearTarget; break;
            case 21: s = "ljmp " + farTarget; break;
            case 22: s = "lcall " + farTarget; break;
            default: s = "djnz " + direct() + "," + nearTarget; break;
        }
        text += "\t" + s + "\r\n";
    }
    return text;
}

}  // namespace korvex::bench
