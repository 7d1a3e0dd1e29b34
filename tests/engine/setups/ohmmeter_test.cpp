#include "engine/setups/ohmmeter.h"

#include "engine/setups/setup.h"
#include "engine/setups/setuptables.h"

namespace vernacle::test {
namespace {

class OhmmeterTest : public NewDesignTest {};

struct OhmsRow {
    float midscale;
    float resistance;
    float deflection;
};

TEST_F(OhmmeterTest, DeflectionIsThatOfASeriesOhmmeter) {
    const OhmsRow rows[] = {
        {100, 100, 0.5F}, {100, 0, 1},          {100, 300, 0.25F}, {20, 7, 0.740740716F},
        {3, 1, 0.75F},    {1, 1e10F, 1.0e-10F}, {100, -50, 2},     {100, -300, -0.5F},
    };
    for (const OhmsRow& row : rows) {
        EXPECT_FLOAT_EQ(ComputeResistanceDeflection(row.midscale, row.resistance), row.deflection)
            << row.resistance;
    }
}

// In single precision the quotient would be rounded first, and the result be another.
TEST_F(OhmmeterTest, OnlyTheResultIsRounded) {
    const float midscale = 3.7F;
    int different = 0;
    for (int ohms = 1; ohms < 200; ++ohms) {
        const auto resistance = static_cast<float>(ohms);
        const auto expected = static_cast<float>(1 / (double{resistance} / double{midscale} + 1));
        EXPECT_EQ(ComputeResistanceDeflection(midscale, resistance), expected);
        const float stepwise = 1 / (resistance / midscale + 1);
        different += stepwise == expected ? 0 : 1;
    }
    EXPECT_GT(different, 5);
}

TEST_F(OhmmeterTest, ImpossibleResistancesSayWhatIsWrong) {
    const auto messageOf = [](float midscale, float resistance) {
        try {
            ComputeResistanceDeflection(midscale, resistance);
        } catch (const ImpossibleEntry& entry) {
            return std::string(entry.what());
        }
        return std::string("nothing");
    };
    EXPECT_NE(messageOf(0, 100).find("midscale resistance is 0"), std::string::npos);
    EXPECT_NE(messageOf(0, 0).find("midscale resistance is 0"), std::string::npos);
    EXPECT_NE(messageOf(100, -100).find("minus the midscale"), std::string::npos);
    EXPECT_NE(messageOf(-7, 7).find("minus the midscale"), std::string::npos);
}

TEST_F(OhmmeterTest, ListIsStoredByWhatItsTextsSay) {
    SpoilTables(2);
    StoreResistanceList(Design, 2,
                        {{"1", "0", TicClass::Major},
                         {".25", "300 k", TicClass::Minor},
                         {" .5 ", "", TicClass::Undecided},
                         {"0", "\u221E", TicClass::Minor}});
    EXPECT_EQ(Design.ScaleColor[2], -1) << "marked with it";
    EXPECT_EQ(Design.SpecialNrOfTicmarks[2], 3) << "the last tic's number";
    EXPECT_EQ(DeflectionsOf(2, 4), (std::vector<float>{1, 0.25F, 0.5F, 0, 7}));
    EXPECT_EQ(TicsInWords(2, 4),
              (Texts{"[0] print label major", "[300 k] print label", "[] print label major",
                     "[\u221E] print label", "[old] print label major"}))
        << "what is undecided, and what is behind, stays";
}

TEST_F(OhmmeterTest, TextsThatAreNoEntriesKeepTheDeflection) {
    Design.TicDeflection[1][0] = 9.090909E-02F;
    Design.TicDeflection[1][1] = 0.3F;
    StoreResistanceList(Design, 1,
                        {{"9.090909E-02", "x", TicClass::Minor}, {"", "y", TicClass::Minor}});
    EXPECT_EQ(DeflectionsOf(1, 1), (std::vector<float>{9.090909E-02F, 0}));
}

TEST_F(OhmmeterTest, AnEmptyListStoresMinusOne) {
    StoreResistanceList(Design, 1, {});
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], -1);
    EXPECT_EQ(Design.ScaleColor[1], -1);
}

} // namespace
} // namespace vernacle::test
