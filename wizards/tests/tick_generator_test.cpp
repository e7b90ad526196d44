// The time base of the AT89S8253 and AT89LP4052: dividers, flags and
// polling blocks per chosen frequency, and the Timer 0 reloads.

#include <gtest/gtest.h>

#include "wizards/core/tick_generator.h"

namespace korvex::wizards {
namespace {

std::array<bool, kTickItems> chosen(std::initializer_list<std::size_t> items) {
    std::array<bool, kTickItems> selected{};
    for (std::size_t i : items) selected[i] = true;
    return selected;
}

TEST(TickGenerator, StagesDividersAndFlagsInListOrder) {
    const TickBlocks all =
        buildTickBlocks(TickChip::At89s8253, chosen({0, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(all.declarations,
              "#Bit 1 kHz, 500 Hz Teiler, 500 Hz, 100 Hz, 50 Hz, 20 Hz, 10 Hz, 4 Hz, "
              "2 Hz Teiler, 2 Hz, 1 Hz\r\n"
              "#Byte 20 kHz Teiler, 100 Hz Teiler, 50 Hz Teiler, 20 Hz Teiler, 10 Hz Teiler, "
              "4 Hz Teiler, 1 Hz Teiler\r\n");
    EXPECT_EQ(all.init,
              "20 kHz Teiler = #20: 100 Hz Teiler = #10: 50 Hz Teiler = #20: 20 Hz Teiler = #50: "
              "10 Hz Teiler = #100: 4 Hz Teiler = #250: 1 Hz Teiler = #4");
    EXPECT_EQ(all.routine,
              "Timer 0 Interrupt:\t; f = 20 kHz\r\n"
              "\tdjnz 20 kHz Teiler, T0 Return\r\n"
              "\t\t20 kHz Teiler = #20\r\n"
              "\tsetb 1 kHz\r\n"
              "\tcpl 500 Hz Teiler: jb 500 Hz Teiler, 500 Hz Ende\r\n"
              "\t\tsetb 500 Hz\r\n"
              "\t500 Hz Ende:\r\n"
              "\tdjnz 100 Hz Teiler, 100 Hz Ende\r\n"
              "\t\t100 Hz Teiler = #10: setb 100 Hz\r\n"
              "\t100 Hz Ende:\r\n"
              "\tdjnz 50 Hz Teiler, 50 Hz Ende\r\n"
              "\t\t50 Hz Teiler = #20: setb 50 Hz\r\n"
              "\t50 Hz Ende:\r\n"
              "\tdjnz 20 Hz Teiler, 20 Hz Ende\r\n"
              "\t\t20 Hz Teiler = #50: setb 20 Hz\r\n"
              "\t20 Hz Ende:\r\n"
              "\tdjnz 10 Hz Teiler, 10 Hz Ende\r\n"
              "\t\t10 Hz Teiler = #100: setb 10 Hz\r\n"
              "\t10 Hz Ende:\r\n"
              "\tdjnz 4 Hz Teiler, T0 Return\r\n"
              "\t\t4 Hz Teiler = #250: setb 4 Hz\r\n"
              "\t\tcpl 2 Hz Teiler: jb 2 Hz Teiler, 2 Hz Ende\r\n"
              "\t\t\tsetb 2 Hz\r\n"
              "\t\t2 Hz Ende:\r\n"
              "\t\tdjnz 1 Hz Teiler, T0 Return\r\n"
              "\t\t\t1 Hz Teiler = #4: setb 1 Hz\r\n"
              "T0 Return:\r\nreti\r\n");
    EXPECT_EQ(all.polling.rfind(
                  "\tif bit 1 kHz then\r\n\t\tclr 1 kHz\r\n\t\t; Befehle . .\r\n\tend if\r\n"
                  "\tif bit 500 Hz then\r\n",
                  0),
              0u);
}

TEST(TickGenerator, NoItemLeavesTheHeadAndTheReturn) {
    const TickBlocks at8253 = buildTickBlocks(TickChip::At89s8253, {});
    EXPECT_EQ(at8253.routine,
              "Timer 0 Interrupt:\t; f = 20 kHz\r\n\tdjnz 20 kHz Teiler, T0 Return\r\n"
              "\t\t20 kHz Teiler = #20\r\nT0 Return:\r\nreti\r\n");
    EXPECT_EQ(at8253.declarations, "#Byte 20 kHz Teiler\r\n");
    EXPECT_EQ(at8253.init, "20 kHz Teiler = #20");
    const TickBlocks at4052 = buildTickBlocks(TickChip::At89lp4052, {});
    EXPECT_EQ(at4052.routine, "Timer 0 Interrupt:\t; f = 1 kHz\r\nT0 Return:\r\nreti\r\n");
    EXPECT_EQ(at4052.declarations + at4052.init + at4052.polling, "");
}

TEST(TickGenerator, OneHertzBringsTheFourHertzStage) {
    std::array<bool, kTickItems> selected = chosen({8});
    implyTickItems(selected);
    EXPECT_EQ(selected, chosen({6, 8}));
    const TickBlocks blocks = buildTickBlocks(TickChip::At89lp4052, selected);
    EXPECT_EQ(blocks.init, "4 Hz Teiler = #250: 1 Hz Teiler = #4");
    EXPECT_NE(blocks.polling.find("\tif bit 4 Hz then"), std::string::npos);
    EXPECT_NE(blocks.polling.find("\tif bit 1 Hz then"), std::string::npos);
}

TEST(TickGenerator, Timer0Reloads) {
    EXPECT_EQ(tickReload8253(12, false).reload, 0xCE);     // q = 50
    EXPECT_EQ(tickReload8253(12, true).reload, 0x9C);      // q = 100
    const TickReload tooHigh = tickReload8253(62, false);  // q ≈ 258,3
    EXPECT_TRUE(tooHigh.tooHigh);
    EXPECT_EQ(tooHigh.reload, 0);
    EXPECT_FALSE(tickReload8253(61.44, false).tooHigh);  // q = 256 exactly
    EXPECT_EQ(tickReload4052(20), 65536 - 20000);
}

}  // namespace
}  // namespace korvex::wizards
