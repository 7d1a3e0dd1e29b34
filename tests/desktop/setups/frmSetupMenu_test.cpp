#include "desktop/setups/frmSetupMenu.h"

#include "desktop/setups/setuptest.h"

namespace vernacle::test {
namespace {

struct MenuRow {
    const char* button;
    const char* text;
    const char* tip;
    const char* page;
    const char* picture; // none if null
};

constexpr MenuRow kRows[] = {
    {"cmdOhms", "Ohmmeter", "", "frmSetupOhmmeter", "Image1"},
    {"cmdSpecial", "Arbitrary", "Design a scale with arbitrary ticmark locations and labels",
     "frmSpecialScale", "Image2"},
    {"cmdSmeter", "S-meter", "Design an S-meter scale", "frmSetupSmeter", "Image3"},
    {"cmdVSWR", "VSWR", "Design a VSWR scale", "frmSetupVSWR", "Image4"},
    {"cmddB", "dB", "Design a dB or vu meter scale", "frmSetupdB", "Image5"},
    {"cmdExit", "Return to Scales page", "", "frmScales", nullptr},
};

class SetupMenuTest : public SetupFormTest {};

TEST_F(SetupMenuTest, TitleAndButtons) {
    OpenPage("frmSetupMenu");
    EXPECT_EQ(Page().windowTitle(), QLatin1String("Vernacle - Special scale menu"));
    EXPECT_EQ(Shown("lblHeading"), "Special scale menu");
    for (const MenuRow& row : kRows) {
        EXPECT_EQ(Find<QPushButton>(row.button).text(), QLatin1String(row.text));
        EXPECT_EQ(Find(row.button).toolTip(), QLatin1String(row.tip));
        EXPECT_TRUE(IsEnabled(row.button));
    }
}

TEST_F(SetupMenuTest, ButtonsLeadToTheirPages) {
    for (const MenuRow& row : kRows) {
        const QPointer<QWidget> menu = &OpenPage("frmSetupMenu");
        Design.CurrentScale = 1;
        ClickAndSettle(row.button);
        EXPECT_EQ(PageName(), row.page);
        EXPECT_TRUE(menu.isNull());
    }
}

TEST_F(SetupMenuTest, MenuChangesNothing) {
    Design.CurrentScale = 4;
    Design.DesignFileName = "/designs/mine.VRN";
    Design.ScaleColor[4] = -9;
    OpenPage("frmSetupMenu");
    EXPECT_EQ(Design.CurrentScale, 4);
    EXPECT_EQ(Design.DesignFileName, "/designs/mine.VRN");
    EXPECT_EQ(Design.ScaleColor[4], -9);
    EXPECT_FALSE(Exists("Backup.DAT"));
}

// Each picture is the drawing of a real setup of its kind.
TEST_F(SetupMenuTest, PicturesShowTheirKinds) {
    const std::pair<const char*, Strings> rows[] = {
        {"Image1", {"0", "20", "\u221E", "OHMS"}},
        {"Image2", {"E", "1/2", "F"}},
        {"Image3", {"9", "+60"}},
        {"Image4", {"1", "2", "10", "VSWR"}},
        {"Image5", {"+3", "0", "-20"}},
    };
    OpenPage("frmSetupMenu");
    for (const auto& [picture, texts] : rows) {
        const Strings shown = TextsOf(picture);
        for (const std::string& text : texts) {
            EXPECT_NE(std::find(shown.begin(), shown.end(), text), shown.end())
                << picture << " " << text;
        }
        EXPECT_FALSE(Picture(picture).accessibleName().isEmpty());
    }
}

TEST_F(SetupMenuTest, TabFollowsReadingOrder) {
    OpenPage("frmSetupMenu");
    ExpectTabOrder("cmdOhms cmdSpecial cmdSmeter cmdVSWR cmddB cmdExit");
}

} // namespace
} // namespace vernacle::test
