// evaluateExpression: operators, notations, contexts and the quirks that
// sources rely on.

#include <gtest/gtest.h>

#include "assembler_fixture.h"

namespace korvex::testing {
namespace {

class ExpressionTest : public AssemblerFixture {
  protected:
    struct Result {
        std::int32_t value;
        bool found;
        int error;
    };
    Result evaluate(std::string text, std::int32_t context = kValueContext) {
        auto& state = probe().state();
        state.errorNumber = Finding::None;
        std::int32_t value = context;
        bool found = false;
        probe().evaluateExpression(text, value, found);
        return {value, found, findingNumber(state.errorNumber)};
    }
    std::int32_t valueOf(const std::string& text, std::int32_t context = kValueContext) {
        const Result r = evaluate(text, context);
        EXPECT_TRUE(r.found) << text;
        return r.value;
    }
    void addRow(TextTable<4>& table, const std::string& key, const std::string& value) {
        const int row = table.appendRow();
        table.set(row, 0, key);
        table.set(row, 1, value);
    }
};

TEST_F(ExpressionTest, OperatorsBindAndAssociateAsTheLanguageSays) {
    EXPECT_EQ(valueOf("1+2*3"), 7);
    EXPECT_EQ(valueOf("2*3+1"), 7);
    EXPECT_EQ(valueOf("10-4-3"), 3);
    EXPECT_EQ(valueOf("8/2/2"), 2);
    EXPECT_EQ(valueOf("7/2"), 3);
}

TEST_F(ExpressionTest, SubtractionIsByteOrientedOnce) {
    EXPECT_EQ(valueOf("-1"), 255);
    EXPECT_EQ(valueOf("0-1"), 255);
    EXPECT_EQ(valueOf("+5"), 5);
    EXPECT_EQ(valueOf("0-300"), -44);
}

TEST_F(ExpressionTest, MalformedArithmeticReportsItsNumbers) {
    Result r = evaluate("*5");
    EXPECT_FALSE(r.found);
    EXPECT_EQ(r.error, 39);
    r = evaluate("5+");
    EXPECT_EQ(r.error, 39);
    r = evaluate("5/0");
    EXPECT_TRUE(r.found);
    EXPECT_EQ(r.error, 40);
    r = evaluate("UNKNOWN+1");
    EXPECT_FALSE(r.found);
    EXPECT_EQ(r.error, 7);
    r = evaluate("");
    EXPECT_FALSE(r.found);
}

TEST_F(ExpressionTest, NumberNotations) {
    EXPECT_EQ(valueOf("12D"), 12);
    EXPECT_EQ(valueOf("12"), 12);
    EXPECT_FALSE(evaluate("1D2").found);
    EXPECT_EQ(valueOf("0AH"), 10);
    EXPECT_EQ(valueOf("AH"), 10);
    EXPECT_EQ(valueOf("FFFFH"), 65535);
    EXPECT_EQ(valueOf("1010B"), 10);
    EXPECT_EQ(valueOf("11111111B"), 255);
    EXPECT_FALSE(evaluate("111111111B").found);
}

TEST_F(ExpressionTest, BinaryLiteralAddsToTheContextValue) {
    EXPECT_EQ(valueOf("101B", kLabelContext), 12);
    EXPECT_EQ(valueOf("101B", kBitContext), 13);
}

TEST_F(ExpressionTest, LowHighAndRegisterNames) {
    auto& sfr = probe().state().sfrTable;
    sfr.set(0, 0, "ACC");
    sfr.set(0, 1, "E0");
    const int p1 = sfr.appendRow();
    sfr.set(p1, 0, "P1");
    sfr.set(p1, 1, "90");
    EXPECT_EQ(valueOf("LOW(1234H)"), 0x34);
    EXPECT_EQ(valueOf("HIGH(1234H)"), 0x12);
    // A register name is its address whole, wrapper or not.
    EXPECT_EQ(valueOf("HIGH(ACC)"), 0xE0);
    EXPECT_EQ(valueOf("HIGH(P1)"), 0x90);
    // The operator split comes first, so a wrapper cannot hold an operator.
    EXPECT_FALSE(evaluate("LOW(1234H+1)").found);
    EXPECT_EQ(valueOf("LOW(1234H)+1"), 0x35);
}

TEST_F(ExpressionTest, HierIsTheStatementAddress) {
    probe().state().codeAddress = 0;
    EXPECT_EQ(valueOf("HIER"), 0);
    probe().state().codeAddress = 0x120;
    EXPECT_EQ(valueOf("HIER+5"), 0x125);
}

TEST_F(ExpressionTest, ContextsChooseTheTables) {
    auto& state = probe().state();
    addRow(state.byteTable, "COUNT", "48");
    addRow(state.wordTable, "PTR", "4660");
    addRow(state.labelTable, "COUNT", "256");
    state.constantTable.set(0, 0, "LIMIT");
    state.constantTable.set(0, 1, "300");

    EXPECT_EQ(valueOf("COUNT"), 48);                  // bytes before labels
    EXPECT_EQ(valueOf("COUNT", kLabelContext), 256);  // labels first
    EXPECT_FALSE(evaluate("COUNT", kBitContext).found);
    EXPECT_EQ(valueOf("LOW(PTR)"), 0x34);  // words take the wrapper
    EXPECT_EQ(valueOf("LIMIT"), 300);
    EXPECT_EQ(state.byteTable.at(1, 2), "1");
    EXPECT_EQ(state.labelTable.at(1, 2), "1");
}

TEST_F(ExpressionTest, NumbersShadowNames) {
    auto& state = probe().state();
    addRow(state.labelTable, "BEEFH", "1");
    EXPECT_EQ(valueOf("BEEFH"), 0xBEEF);
}

TEST_F(ExpressionTest, HostOverflowEndsTheRun) {
    std::int32_t value = 0;
    bool found = false;
    std::string huge = "99999999999";
    EXPECT_THROW(probe().evaluateExpression(huge, value, found), RuntimeFailure);
    std::string product = "65536*65536";
    EXPECT_THROW(probe().evaluateExpression(product, value, found), RuntimeFailure);
    std::string endless = "1";
    for (int i = 0; i < 100000; ++i) endless += "+1";
    try {
        probe().evaluateExpression(endless, value, found);
        ADD_FAILURE() << "no failure";
    } catch (const RuntimeFailure& failure) {
        EXPECT_EQ(failure.number(), 28);
    }
    // The guard unwinds with the failure: a later expression evaluates again.
    std::string plain = "2+3";
    value = 0;
    probe().evaluateExpression(plain, value, found);
    EXPECT_EQ(value, 5);
}

}  // namespace
}  // namespace korvex::testing
