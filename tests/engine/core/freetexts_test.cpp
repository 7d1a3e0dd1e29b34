#include "engine/core/freetexts.h"

#include "support/enginetest.h"

namespace vernacle::test {
namespace {

class FreeTextsTest : public EngineTest {
protected:
    static void GiveText(int text, const std::string& words) {
        const auto number = static_cast<float>(text);
        Design.TextString[text] = words;
        Design.LeftToText[text] = 10 + number;
        Design.BottomToText[text] = 20 + number;
        Design.TextRelativeSize[text] = number / 8;
        Design.TextColor[text] = 100 + text;
    }
};

TEST_F(FreeTextsTest, CopyAndStoreCarryEveryEntryThere) {
    for (int text = 1; text <= kTexts; ++text) {
        GiveText(text, "text " + std::to_string(text));
    }
    const FreeTexts copy = CopyOfTexts(Design);
    Design = DesignRecord{};
    StoreTexts(Design, copy);
    for (int text = 1; text <= kTexts; ++text) {
        const auto number = static_cast<float>(text);
        EXPECT_EQ(Design.TextString[text], "text " + std::to_string(text));
        EXPECT_EQ(Design.LeftToText[text], 10 + number);
        EXPECT_EQ(Design.BottomToText[text], 20 + number);
        EXPECT_EQ(Design.TextRelativeSize[text], number / 8);
        EXPECT_EQ(Design.TextColor[text], 100 + text);
    }
    EXPECT_EQ(Design.NumberOfTexts, 10);
}

TEST_F(FreeTextsTest, EntryZeroStaysTheDesigns) {
    FreeTexts copy = CopyOfTexts(Design);
    copy.TextString[0] = "copy";
    Design.TextString[0] = "design";
    EXPECT_EQ(CopyOfTexts(Design).TextString[0], "");
    StoreTexts(Design, copy);
    EXPECT_EQ(Design.TextString[0], "design");
}

// An entry with a place and no string is none.
TEST_F(FreeTextsTest, OnlyStringsCount) {
    Design.NumberOfTexts = 7;
    for (int text = 1; text <= kTexts; ++text) {
        GiveText(text, "");
    }
    EXPECT_EQ(CountTexts(CopyOfTexts(Design)), 0);
    StoreTexts(Design, CopyOfTexts(Design));
    EXPECT_EQ(Design.NumberOfTexts, 0);
    GiveText(10, "last");
    GiveText(3, " ");
    EXPECT_EQ(CountTexts(CopyOfTexts(Design)), 2) << "a blank is a string";
}

} // namespace
} // namespace vernacle::test
