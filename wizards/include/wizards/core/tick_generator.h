#pragma once
// The time base of the "Betriebssystem" tab (AT89S8253, AT89LP4052): Timer 0
// interrupts at a fixed rate, its routine divides the rate down and sets one
// bit flag per chosen frequency, and the main loop polls the flags.

#include <array>
#include <cstdint>
#include <string>

namespace korvex::wizards {

// The AT89S8253's timer runs at 20 kHz and its routine divides by 20 first;
// the AT89LP4052's runs at 1 kHz.
enum class TickChip { At89s8253, At89lp4052 };

inline constexpr std::size_t kTickItems = 9;
// The list: 1000, 500, 100, 50, 20, 10, 4, 2 and 1 Hz.
extern const std::array<const char*, kTickItems> kTickItemCaptions;

struct TickBlocks {
    std::string declarations;  // "#Bit ..." and "#Byte ..." lines
    std::string init;          // the divider start values, one line without its end
    std::string routine;       // the whole Timer 0 interrupt routine
    std::string polling;       // the blocks of the main loop
};

// The 2 Hz and 1 Hz stages hang behind the 4 Hz stage: choosing either
// chooses the 4 Hz too.
void implyTickItems(std::array<bool, kTickItems>& selected);

// The four blocks for the selected items, in list order.
TickBlocks buildTickBlocks(TickChip chip, const std::array<bool, kTickItems>& selected);

// The AT89S8253's 20 kHz reload in mode 2: q = f × 2^x × 50 / 12, with f in
// MHz and x = 1 for the doubled clock. A q above 256 is too high for the
// timer: the reload is then 00 and `tooHigh` set.
struct TickReload {
    std::int32_t reload = 0;
    bool tooHigh = false;
};
TickReload tickReload8253(double megahertz, bool doubled);

// The AT89LP4052's 1 kHz reload in its 16-bit auto-reload mode:
// 65536 − f × 1000, the chip having no divider by 12. No check.
std::int32_t tickReload4052(double megahertz);

}  // namespace korvex::wizards
