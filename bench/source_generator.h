#pragma once
// A deterministic 8051 source of plain instructions for the speed measurements.
// The first line names the driver; then every 16th line is a label standing
// alone. Near jumps go to the next label, long jumps and calls to labels
// further down, so the second pass has work. The syntax is the common ground
// with as31: commented out, the driver line is all that as31 has to skip.

#include <algorithm>
#include <cstdint>
#include <string>

namespace korvex::bench {

inline std::string generateSource(int lineCount) {
    constexpr int kBlock = 16;
    const int labels = (lineCount - 1 + kBlock - 1) / kBlock;
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

    std::string text = "#cpu 8051\r\n";
    text.reserve(static_cast<std::size_t>(lineCount) * 18);
    for (int line = 1; line < lineCount; ++line) {
        const int block = (line - 1) / kBlock;
        if ((line - 1) % kBlock == 0) {
            text += label(block) + ":\r\n";
            continue;
        }
        const std::string nearTarget = label(block + 1 < labels ? block + 1 : block);
        const int far = block + 1 + static_cast<int>(next(300));
        const std::string farTarget = label(far < labels ? far : 0);  // and L0 is used too
        // Mostly one- and two-byte forms, so 32,000 lines stay inside 64K of code.
        // A block ends with a near jump, so that every label is used.
        static constexpr std::uint32_t kNearForms[] = {14, 15, 19, 20, 23};
        const bool lastOfBlock = line % kBlock == 0;
        const std::uint32_t form = lastOfBlock ? kNearForms[next(5)] : next(24);
        // The operands are drawn one statement at a time: the order of the
        // operands of + is unspecified, and the text must not depend on the compiler.
        const std::string r = reg();
        const std::string d = direct();
        const std::string d2 = direct();
        const std::string imm = immediate();
        const std::string ri = "@r" + std::to_string(next(2));
        const bool other = next(2) == 1;
        std::string s;
        switch (form) {
            case 0:
            case 1: s = "mov a," + r; break;
            case 2:
            case 3: s = "add a," + r; break;
            case 4: s = "inc " + r; break;
            case 5: s = "mov " + r + ",a"; break;
            case 6: s = "anl a," + r; break;
            case 7: s = "xrl a," + ri; break;
            case 8: s = "orl a," + ri; break;
            case 9: s = "mov a," + imm; break;
            case 10: s = "add a," + d; break;
            case 11: s = "mov " + r + "," + imm; break;
            case 12: s = "mov " + d + ",a"; break;
            case 13: s = "anl a," + imm; break;
            case 14: s = (other ? "sjmp " : "jnz ") + nearTarget; break;
            case 15: s = "djnz " + r + "," + nearTarget; break;
            case 16: s = "mov " + d + "," + imm; break;
            case 17: s = "mov " + d + "," + d2; break;
            case 18: s = (other ? "anl " : "orl ") + d + "," + imm; break;
            case 19: s = "cjne a," + imm + "," + nearTarget; break;
            case 20: s = "cjne " + r + "," + imm + "," + nearTarget; break;
            case 21: s = "ljmp " + farTarget; break;
            case 22: s = "lcall " + farTarget; break;
            default: s = "djnz " + d + "," + nearTarget; break;
        }
        text += "\t" + s + "\r\n";
    }
    return text;
}

// A source of the whole language: variables, macros, IF, FOR and LOOP
// structures, tables and calls without mnemonic, in blocks of 24 lines. Each
// block calls the next one, the last calls the first, so every label is used
// and the calls are forward references for the second pass.
inline std::string generateStructuredSource(int lineCount) {
    constexpr int kBlock = 24;
    const int blocks = std::max(1, (lineCount - 9) / kBlock);
    std::string text =
        "#cpu 8051\r\n"
        "#use LCALL\r\n"
        "#byte Zaehler, Summe\r\n"
        "#bit Merker\r\n"
        "#word Zeiger\r\n"
        "#const Grenze=100\r\n"
        "#def Twice {INC R2 : INC R2}\r\n"
        "#def Load(reg,val) {mov (reg),#(val)}\r\n"
        "        MOV Zeiger,#Grenze\r\n";
    text.reserve(static_cast<std::size_t>(lineCount) * 20);
    for (int block = 0; block < blocks; ++block) {
        const std::string v = std::to_string(block % 200 + 1);
        const std::string k = std::to_string(block % 7 + 2);
        const std::string me = "Teil" + std::to_string(block);
        const std::string next = "Teil" + std::to_string(block + 1 < blocks ? block + 1 : 0);
        text += me + ":\r\n";
        text += "        Twice\r\n";
        text += "        Load(R3," + v + ")\r\n";
        text += "        Summe = A\r\n";
        text += "        IF A=#0 THEN\r\n";
        text += "            MOV A,Summe\r\n";
        text += "        ELSEIF R0=#" + v + " THEN\r\n";
        text += "            ADD A,R3\r\n";
        text += "        ELSE\r\n";
        text += "            SETB Merker\r\n";
        text += "        END IF\r\n";
        text += "        FOR R7=#" + k + "\r\n";
        text += "            ADD A,Zaehler : MOV Zaehler,A\r\n";
        text += "            IF BIT Merker THENEXITFOR\r\n";
        text += "        NEXT\r\n";
        text += "        LOOP WHILE A>#0\r\n";
        text += "            DEC A\r\n";
        text += "        END LOOP\r\n";
        text += "        LOOP\r\n";
        text += "            INC R1\r\n";
        text += "        UNTIL R1=#" + v + "\r\n";
        text += "        DB 'K', HIGH(" + me + ")\r\n";
        text += "        DW " + me + ", " + v + "*3\r\n";
        text += "        " + next + "\r\n";
    }
    return text;
}

}  // namespace korvex::bench
