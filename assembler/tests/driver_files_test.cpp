// Every shipped driver file loads, starts at the reset vector, names each
// thing once, gives bits that sit in their register, and has what the chip's
// wizard writes into its programs.

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <sstream>

#include "assembler/cpu_driver.h"
#include "assembler_fixture.h"
#include "base/text.h"

namespace korvex::testing {
namespace {

const std::string kShipped = std::string(KORVEX_DATA_DIR) + "/cpu/";

const std::set<std::string> kControllers = {
    "8032",     "80C31",    "80C32",    "8051",     "80C51",   "80C52",   "80C320",
    "89C420",   "DS5000",   "DS5001",   "89S53",    "89S8252", "89S8253", "89LP51ED2",
    "89LP4052", "89LPC912", "89LPC913", "89LPC914", "C509",    "80515",   "80C515",
    "C515",     "80535",    "80C535",   "80C517",   "80C537",  "C517",    "80C552"};

// What the 80C52 wizard writes: registers, bits, vectors.
const char* const kWizardNames =
    "TMOD TH1 TL1 TH0 TL0 SCON SBUF T2CON RCAP2L RCAP2H TL2 TH2 PCON SP PSW IE IP "
    "ES PS PX0 PT0 PX1 PT1 ET2 PT2 TR2 TF2 EXF2 TI RI TR0 TR1 EA "
    "EXTI0 TIMER0 EXTI1 TIMER1 SINT TIMER2";

TEST(DriverFiles, EveryShippedDriverIsSound) {
    std::set<std::string> shipped;
    for (const auto& entry : std::filesystem::directory_iterator(kShipped)) {
        shipped.insert(entry.path().stem().string());
    }
    EXPECT_EQ(shipped, kControllers);
    for (const std::string& chip : kControllers) {
        SCOPED_TRACE(chip);
        const DriverReading reading = readCpuDriverFile(cpuDriverPath(chip, kShipped));
        ASSERT_FALSE(reading.failure);
        const CpuDriver& driver = reading.driver;
        ASSERT_FALSE(driver.vectors.empty());
        EXPECT_EQ(driver.vectors[0].name, "RESET");
        EXPECT_EQ(driver.vectors[0].address, 0);
        std::set<std::string> names[3];  // each kind names a thing once
        std::set<int> registers;
        for (const DriverName& sfr : driver.sfrs) {
            EXPECT_TRUE(names[0].insert(sfr.name).second) << sfr.name;
            registers.insert(static_cast<int>(parseHexPrefix(sfr.address)));
        }
        for (const DriverName& bit : driver.bits) {
            EXPECT_TRUE(names[1].insert(bit.name).second) << bit.name;
            const auto address = static_cast<int>(parseHexPrefix(bit.address));
            EXPECT_TRUE(address < 0x80 || registers.count(address & 0xF8)) << bit.name;
        }
        for (const DriverVector& vector : driver.vectors) {
            EXPECT_TRUE(names[2].insert(vector.name).second) << vector.name;
            EXPECT_LT(vector.address.value_or(0x8000), 0x8000) << vector.name;
        }
        if (chip != "80C32") continue;
        std::istringstream wanted(kWizardNames);
        for (std::string name; wanted >> name;) {
            EXPECT_TRUE(names[0].count(name) + names[1].count(name) + names[2].count(name)) << name;
        }
    }
    // An interrupt enabled by IE.n jumps to 3 + 8n: the comparator of the 89LP4052 (IE.6) to 0033h.
    const auto vectors = readCpuDriverFile(cpuDriverPath("89LP4052", kShipped)).driver.vectors;
    EXPECT_TRUE(std::any_of(vectors.begin(), vectors.end(), [](const DriverVector& v) {
        return v.name == "COMPARATOR" && v.address == 0x33;
    }));
}

class DriverFilesTest : public AssemblerFixture {};

// A driver is read as the classic reader wrote its tables: a section header
// restarts its kind, and a failure keeps what came before it.
TEST_F(DriverFilesTest, ReadingKeepsTheLastSectionAndWhatCameBeforeAFailure) {
    writeFile("zwei.cpu",
              "VECTOR\r\n0000 A\r\n0003 B\r\nSFR\r\n81 SP\r\nVECTOR\r\n0010 C\r\n"
              "VECTOR\r\nBIT\r\n");
    DriverReading reading = readCpuDriverFile(cpuDriverPath("zwei", folder_));
    ASSERT_FALSE(reading.failure);
    ASSERT_EQ(reading.driver.vectors.size(), 1u);
    EXPECT_EQ(reading.driver.vectors[0].name, "C");
    EXPECT_EQ(reading.driver.vectorCount, 0);  // the last header had no lines
    EXPECT_TRUE(reading.driver.bitHeader);
    EXPECT_TRUE(reading.driver.bits.empty());

    writeFile("kaputt.cpu", "VECTOR\r\n0000 RESET\r\n123456789 ZU_LANG\r\n0003 NIE\r\n");
    reading = readCpuDriverFile(cpuDriverPath("kaputt", folder_));
    ASSERT_TRUE(reading.failure);
    EXPECT_EQ(reading.failure->number(), 6);
    ASSERT_EQ(reading.driver.vectors.size(), 2u);
    EXPECT_FALSE(reading.driver.vectors[1].address);
    EXPECT_EQ(reading.driver.vectorCount, 1);
    EXPECT_EQ(driverFailureText(reading).substr(0, 11), "Fehler  6: ");  // the classic Str$ blank

    // In a run the box tells the failure and the run goes on with the names
    // read before it: RESET at 0, and the name whose address failed, at 0 too.
    ASSERT_EQ(assemble("#cpu kaputt\r\nljmp RESET\r\nljmp ZU_LANG\r\n"), RunOutcome::Completed);
    EXPECT_EQ(host_.boxCount, 1);
    EXPECT_EQ(image(), std::string("\x02\x00\x00\x02\x00\x00", 6));
}

}  // namespace
}  // namespace korvex::testing
