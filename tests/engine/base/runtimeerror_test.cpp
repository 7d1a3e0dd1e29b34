#include "engine/base/runtimeerror.h"

#include <limits>

#include <gtest/gtest.h>

#include "engine/base/table.h"

namespace vernacle::test {
namespace {

template <typename Action>
std::string MessageOf(Action action) {
    try {
        action();
    } catch (const RunTimeError& error) {
        return error.what();
    }
    return "";
}

TEST(RunTimeErrorTest, DivisionByZeroIsOneWhateverTheDividend) {
    EXPECT_EQ(CheckedDivide(1, 4), 0.25);
    EXPECT_EQ(CheckedDivide(0, 4), 0);
    EXPECT_EQ(MessageOf([] { CheckedDivide(1, 0); }), "Division by zero");
    EXPECT_EQ(MessageOf([] { CheckedDivide(0, 0); }), "Division by zero");
    EXPECT_EQ(MessageOf([] { CheckedDivide(1, -0.0); }), "Division by zero");
}

TEST(RunTimeErrorTest, PowersWithoutAValueAreOne) {
    EXPECT_EQ(CheckedPower(0.5, 2), 0.25);
    EXPECT_EQ(CheckedPower(0, 0), 1);
    EXPECT_EQ(CheckedPower(0, 2), 0);
    EXPECT_EQ(CheckedPower(2, -1), 0.5);
    EXPECT_EQ(MessageOf([] { CheckedPower(0, -1); }), "Invalid procedure call or argument");
    EXPECT_THROW(CheckedPower(-1, 0.5), RunTimeError);
    EXPECT_THROW(CheckedPower(10, 400), RunTimeError);
}

TEST(RunTimeErrorTest, RoundsTiesToEven) {
    EXPECT_EQ(RoundToInt(0.5), 0);
    EXPECT_EQ(RoundToInt(1.5), 2);
    EXPECT_EQ(RoundToInt(2.5), 2);
    EXPECT_EQ(RoundToInt(-1.5), -2);
    EXPECT_EQ(RoundToInt(2.4999), 2);
    EXPECT_EQ(RoundToInt(2147483647.0), 2147483647);
    EXPECT_EQ(RoundToInt(-2147483648.0), std::numeric_limits<int>::min());
    EXPECT_THROW(RoundToInt(2147483648.0), RunTimeError);
    EXPECT_THROW(RoundToInt(-2147483649.0), RunTimeError);
    EXPECT_THROW(RoundToInt(std::numeric_limits<double>::quiet_NaN()), RunTimeError);
}

TEST(TableTest, HoldsTheIndicesFromZeroToItsLast) {
    Table<int, 3> table;
    table[0] = 10;
    table[3] = 13;
    const auto& constant = table;
    EXPECT_EQ(constant[0], 10);
    EXPECT_EQ(constant[3], 13);
    EXPECT_EQ(MessageOf([&] { table[-1] = 0; }), "Subscript out of range");
    EXPECT_EQ(MessageOf([&] { table[4] = 0; }), "Subscript out of range");
    EXPECT_THROW(constant[4], RunTimeError);
    table.fill(7);
    EXPECT_EQ(table[0], 7);
    EXPECT_EQ(table[3], 7);
}

TEST(TableTest, ChecksScaleAndTic) {
    TicTable<int, 8, 360> table;
    table[8][360] = 5;
    table[0][0] = 6;
    EXPECT_EQ(table[8][360], 5);
    EXPECT_EQ(table[0][0], 6);
    EXPECT_EQ(table[8][0], 0);
    EXPECT_THROW(table[9][0], RunTimeError);
    EXPECT_THROW(table[-1][0], RunTimeError);
    EXPECT_THROW(table[1][361], RunTimeError);
    EXPECT_THROW(table[1][-1], RunTimeError);
}

TEST(TableTest, KeepsTheScalesOfATicSideBySide) {
    TicTable<int, 8, 360> table;
    EXPECT_EQ(&table[2][7] - &table[1][7], 1);
    EXPECT_EQ(&table[1][8] - &table[1][7], 9);
}

} // namespace
} // namespace vernacle::test
