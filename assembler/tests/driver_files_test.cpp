// Every shipped driver file loads, starts at the reset vector, names each
// thing once, gives bits that sit in their register, and has what the chip
// wizards write into their programs.

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>
#include <sstream>

#include "assembler_fixture.h"
#include "base/text.h"

namespace korvex::testing {
namespace {

const std::vector<std::string> kControllers = {
    "8032",     "80C31",    "80C32",    "8051",     "80C51",   "80C52",   "80C320",
    "89C420",   "DS5000",   "DS5001",   "89S53",    "89S8252", "89S8253", "89LP51ED2",
    "89LP4052", "89LPC912", "89LPC913", "89LPC914", "C509",    "80515",   "80C515",
    "C515",     "80535",    "80C535",   "80C517",   "80C537",  "C517",    "80C552"};

// Names the wizards of a chip write, by kind: registers, bits, vectors.
struct WizardNames {
    std::string sfrs, bits, vectors;
};
const std::map<std::string, WizardNames> kWizardNames = {
    {"80C32",
     {"TMOD TH1 TL1 TH0 TL0 SCON SBUF T2CON RCAP2L RCAP2H TL2 TH2 PCON SP PSW IE IP",
      "ES PS PX0 PT0 PX1 PT1 ET2 PT2 TR2 TF2 EXF2 TI RI TR0 TR1 EA",
      "EXTI0 TIMER0 EXTI1 TIMER1 SINT TIMER2"}},
    {"89S8253",
     {"IP IPH AUXR CLKREG SPCR SPSR SPDR WDTCON T2MOD T2CON RCAP2L RCAP2H PCON", "",
      "EXTI0 TIMER0 EXTI1 TIMER1 SINT TIMER2"}},
    {"89LP4052",
     {"RL0 RH0 RL1 RH1 WDTCON PCON SPCR SPSR SCON TMOD SP", "", "EXTI0 TIMER0 EXTI1 TIMER1 SINT"}},
    {"80C320",
     {"SCON0 SCON1 CKCON TA PCON TMOD TH1 T2CON RCAP2L RCAP2H", "EWT RWT",
      "INT0 TF0 INT1 TF1 S0INT TF2 PFI S1INT INT2 INT3 INT4 INT5 WDTI"}},
    {"C515",
     {"CRCL CRCH CCEN ADCON DAPR ADDAT IP0 IEN0 IEN1 WDTREL", "EXEN2 T2CM SWDT WDT EAL",
      "EXTI0 TIMER0 EXTI1 TIMER1 TIMER2 ADCI"}},
    {"C517",
     {"S0CON S0RELL S0RELH S1CON S1RELL S1RELH WDTREL IP0 IRCON1 ADDATH CMSEL CMEN CRCL "
      "CRCH CCEN",
      "TI0 RI0 SWDT WDT", "INT0 TIMER0 INT1 TIMER1 S0INT TIMER2 ADCI S1INT ICMP ICS ICR"}},
    {"80C552",
     {"S0BUF SCON TM2CON CTCON CMH1 CML1 STE RTE PWMP PWM0 PWM1 ADCON S1CON S1ADR T3 "
      "PCON",
      "ES0 ES1 EAD SI", "EXTI0 TIMER0 EXTI1 TIMER1 SINT"}},
};

std::vector<std::string> words(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> out;
    for (std::string w; in >> w;) out.push_back(w);
    return out;
}

class DriverFilesTest : public AssemblerFixture {
  protected:
    void SetUp() override {
        AssemblerFixture::SetUp();
        assembler_->settings().programFolder = std::string(KORVEX_DATA_DIR) + "/cpu/";
    }
};

TEST_F(DriverFilesTest, EveryShippedDriverIsSound) {
    std::set<std::string> shipped;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::string(KORVEX_DATA_DIR) + "/cpu")) {
        shipped.insert(entry.path().stem().string());
    }
    EXPECT_EQ(shipped, std::set<std::string>(kControllers.begin(), kControllers.end()));

    for (const std::string& chip : kControllers) {
        SCOPED_TRACE(chip);
        ASSERT_EQ(assemble("#cpu " + chip + "\r\n"), RunOutcome::Completed);
        EXPECT_EQ(host_.boxCount, 0);
        const RunState& state = assembler_->state();
        ASSERT_GT(assembler_->cpuDriver().vectorCount, 0);
        EXPECT_EQ(state.labelTable.at(0, 1), "0");
        EXPECT_EQ(state.labelTable.at(0, 0), "RESET");

        std::map<std::string, int> sfrs;
        for (int i = 0; i < state.sfrTable.size(); ++i) {
            const std::string& name = state.sfrTable.at(i, 0);
            EXPECT_TRUE(sfrs.emplace(name, parseHexPrefix(state.sfrTable.at(i, 1))).second)
                << "SFR twice: " << name;
            EXPECT_GE(sfrs[name], 0x80) << name;
        }
        std::set<int> bitAddressable;
        for (const auto& [name, address] : sfrs) {
            if (address % 8 == 0) bitAddressable.insert(address);
        }
        std::set<std::string> bits;
        for (int i = 0; i < state.bitTable.size(); ++i) {
            const std::string& name = state.bitTable.at(i, 0);
            EXPECT_TRUE(bits.insert(name).second) << "bit twice: " << name;
            const auto address = static_cast<int>(parseHexPrefix(state.bitTable.at(i, 1)));
            if (address >= 0x80) {
                EXPECT_TRUE(bitAddressable.count(address & 0xF8)) << "bit outside an SFR: " << name;
            }
        }
        std::set<std::string> vectors;
        for (int i = 0; i < assembler_->cpuDriver().vectorCount; ++i) {
            EXPECT_TRUE(vectors.insert(state.labelTable.at(i, 0)).second);
            EXPECT_LT(parseDecimal(state.labelTable.at(i, 1)), 0x8000);
        }
        const auto wanted = kWizardNames.find(chip);
        if (wanted == kWizardNames.end()) continue;
        for (const auto& name : words(wanted->second.sfrs)) EXPECT_TRUE(sfrs.count(name)) << name;
        for (const auto& name : words(wanted->second.bits)) EXPECT_TRUE(bits.count(name)) << name;
        for (const auto& name : words(wanted->second.vectors)) {
            EXPECT_TRUE(vectors.count(name)) << name;
        }
    }
}

TEST_F(DriverFilesTest, NamesOfADriverAssembleToItsAddresses) {
    ASSERT_EQ(assemble("#cpu 80c32\r\nMOV TMOD,#21h\r\nSETB TR1\r\nMOV RCAP2L,A\r\nJB P3.2,HIER\r\n"
                       "TIMER2:\r\nRETI\r\n"),
              RunOutcome::Completed);
    EXPECT_EQ(image().substr(0, 10), std::string("\x75\x89\x21\xD2\x8E\xF5\xCA\x20\xB2\xFD", 10));
    EXPECT_EQ(image().substr(0x2B), "\x32");
}

TEST_F(DriverFilesTest, VectorsOfTheChipsOwnInterruptsStandWhereTheDatasheetsPutThem) {
    // An interrupt enabled by IE.n jumps to 3 + 8n: the comparator of the
    // 89LP4052 (EC, IE.6) to 0033h.
    const struct {
        const char* chip;
        const char* vector;
        int address;
    } kVectors[] = {{"89LP4052", "COMPARATOR", 0x33},
                    {"80C32", "TIMER2", 0x2B},
                    {"80C552", "TIMER2", 0x73},
                    {"89LPC912", "COMPARATOR", 0x43}};
    for (const auto& wanted : kVectors) {
        SCOPED_TRACE(wanted.chip);
        ASSERT_EQ(assemble(std::string("#cpu ") + wanted.chip + "\r\n"), RunOutcome::Completed);
        const RunState& state = assembler_->state();
        const int row = state.labelTable.find(wanted.vector);
        ASSERT_GE(row, 0);
        EXPECT_EQ(parseDecimal(state.labelTable.at(row, 1)), wanted.address);
    }
}

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
    assembler_->settings().programFolder = folder_;
    ASSERT_EQ(assemble("#cpu kaputt\r\nljmp RESET\r\nljmp ZU_LANG\r\n"), RunOutcome::Completed);
    EXPECT_EQ(host_.boxCount, 1);
    EXPECT_EQ(image(), std::string("\x02\x00\x00\x02\x00\x00", 6));
}

}  // namespace
}  // namespace korvex::testing
