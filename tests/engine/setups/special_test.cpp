#include "engine/setups/special.h"

#include "engine/setups/setuptables.h"

namespace vernacle::test {
namespace {

class SpecialTableTest : public NewDesignTest {
protected:
    float Apply(float ticmarks) {
        ApplySpecialTable(Design, 1, ticmarks, rows);
        return ticmarks;
    }

    std::array<SpecialRow, kSpecialRows> rows;
};

TEST_F(SpecialTableTest, CountIsHeldAndWhole) {
    constexpr std::pair<float, float> kCounts[] = {{0, 1},    {0.4F, 1},  {1, 1},   {-5, 5},
                                                   {2.7F, 2}, {-2.7F, 2}, {30, 30}, {30.9F, 30},
                                                   {31, 30},  {1e10F, 30}};
    for (const auto& [entered, held] : kCounts) {
        EXPECT_EQ(Apply(entered), held) << entered;
        EXPECT_EQ(Design.SpecialNrOfTicmarks[1], static_cast<std::int16_t>(held));
    }
}

TEST_F(SpecialTableTest, RowsAreStoredPrintedAndLabelled) {
    SpoilTables(1);
    rows[0] = {.deflection = "0", .label = "E", .major = Answer::Yes};
    rows[1] = {.deflection = " .125 ", .label = " "};
    rows[2] = {.deflection = "1,5", .label = ""};
    rows[3] = {.deflection = "9", .label = "behind"};
    Apply(2);
    EXPECT_EQ(DeflectionsOf(1, 4), (std::vector<float>{0, 0.125F, 1.5F, 0, 0}))
        << "this routine knows no limit";
    EXPECT_EQ(TicsInWords(1, 3),
              (Texts{"[E] print label major", "[ ] print label", "[] print label", "[old] major"}));
}

TEST_F(SpecialTableTest, TheOtherOfItsRowsAreEmptied) {
    SpoilTables(1);
    Apply(1);
    for (const int tic : {2, 30}) {
        EXPECT_EQ(Design.TicDeflection[1][tic], 0);
        EXPECT_EQ(TicInWords(1, tic), "[old] major");
        EXPECT_EQ(Design.StandardLabel[1][tic], "");
    }
    EXPECT_EQ(Design.StandardLabel[1][0], "");
    EXPECT_EQ(Design.TicDeflection[1][31], 7);
    EXPECT_EQ(Design.StandardLabel[1][31], "standard");
}

TEST_F(SpecialTableTest, TextsThatAreNoEntriesReadAsZero) {
    for (const char* text : {"", "abc", "9.090909E-02"}) { // the last is too long for an entry
        Design.TicDeflection[1][0] = 0.5F;
        rows[0].deflection = text;
        Apply(1);
        EXPECT_EQ(Design.TicDeflection[1][0], 0) << text;
    }
}

struct CheckRow {
    const char* text;
    const char* shown;
    float stored;
    DeflectionFault fault;
};

TEST_F(SpecialTableTest, DeflectionsAreCheckedIntoTheirTic) {
    const CheckRow checks[] = {
        {"1.5", "1", 1, DeflectionFault::Above},       {"-0.1", "0", 0, DeflectionFault::Below},
        {"0", "0", 0, DeflectionFault::None},          {"1", "1", 1, DeflectionFault::None},
        {"0,25", ".25", 0.25F, DeflectionFault::None}, {"", "0", 0, DeflectionFault::None},
        {"1.0001", "1", 1, DeflectionFault::Above},    {"x", "0", 0, DeflectionFault::None},
    };
    for (const CheckRow& row : checks) {
        std::string text = row.text;
        EXPECT_EQ(CheckDeflection(Design, 1, 3, text), row.fault) << row.text;
        EXPECT_EQ(text, row.shown);
        EXPECT_EQ(Design.TicDeflection[1][3], row.stored);
    }
}

TEST_F(SpecialTableTest, LongTextsAreIgnoredByTheCheck) {
    Design.TicDeflection[1][3] = 9.090909E-02F;
    std::string text = "0.12345678901";
    EXPECT_EQ(CheckDeflection(Design, 1, 3, text), DeflectionFault::None);
    EXPECT_EQ(text, "9.090909E-02") << "what the tic holds";
}

} // namespace
} // namespace vernacle::test
