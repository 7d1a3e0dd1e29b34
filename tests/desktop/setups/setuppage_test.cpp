// The way into every setup and back: from the scales page over the menu, by Accept and by Ignore.
#include <sstream>

#include "desktop/setups/setuptest.h"

#include "engine/base/hostservices.h"
#include "engine/base/runtimeerror.h"
#include "engine/correction/curve.h"
#include "engine/scale/scale.h"

namespace vernacle::test {
namespace {

// A setup: the menu's button, its page, and the button that ignores.
struct SetupRow {
    const char* button;
    const char* page;
    const char* ignore;
    const char* option; // that makes it compute; none if it computes anyhow
};

constexpr SetupRow kSetups[] = {
    {"cmdOhms", "frmSetupOhmmeter", "cmdIgnoreAndReturn", nullptr},
    {"cmdSpecial", "frmSpecialScale", "cmdIgnore", nullptr},
    {"cmdSmeter", "frmSetupSmeter", "cmdIgnore", "Option1"},
    {"cmdVSWR", "frmSetupVSWR", "cmdIgnore", "Option3"},
    {"cmddB", "frmSetupdB", "cmdIgnore", nullptr},
};

class SetupPageTest : public SetupFormTest {};

class EachSetupTest : public SetupPageTest, public ::testing::WithParamInterface<SetupRow> {
protected:
    const SetupRow& row = GetParam();

    // Walks from the scales page to the setup, for that scale.
    void WalkToSetup(std::int16_t active = 1) {
        OpenPage("frmScales");
        Design.ActiveScale = active;
        Find("cmddBsetup").setEnabled(true);
        ClickAndSettle("cmddBsetup");
        ASSERT_EQ(PageName(), "frmSetupMenu");
        ClickAndSettle(row.button);
        ASSERT_EQ(PageName(), row.page);
    }

    // So that it can be accepted, whatever its page asks for first.
    void MakeTics() {
        if (row.option) {
            Click(row.option);
        }
        if (row.page == std::string("frmSetupOhmmeter")) {
            PressPreview();
        }
    }

    // The lines of a file, but for its own name and the correction curve, which the reader forces.
    Strings ScaleLinesIn(const std::string& file) const {
        Strings lines;
        std::istringstream text(ReadFile(file));
        for (std::string line; std::getline(text, line);) {
            if (!line.starts_with("Filename: ") && !line.starts_with("Pair #")) {
                lines.push_back(line);
            }
        }
        return lines;
    }
};

INSTANTIATE_TEST_SUITE_P(Setups, EachSetupTest, ::testing::ValuesIn(kSetups),
                         [](const auto& row) { return std::string(row.param.page); });

TEST_P(EachSetupTest, EnteringBacksTheDesignUpAndNamesTheScale) {
    Design.DesignFileName = "/designs/mine.VRN";
    Design.PlateWidth = 63;
    WalkToSetup();
    EXPECT_TRUE(Exists("Backup.DAT"));
    EXPECT_EQ(Design.DesignFileName, "");
    EXPECT_EQ(Shown("lblWorking"), "Working with scale # 1");
    EXPECT_EQ(Design.CurrentScale, 1);
    const DesignRecord now = Design;
    ReadDesign(Design, "Backup.DAT");
    EXPECT_EQ(Design.PlateWidth, 63);
    EXPECT_EQ(Design.DesignFileName, "");
    Design = now;
}

TEST_P(EachSetupTest, BackupIsTakenBeforeTheFirstWrite) {
    Design.NumberOfScales = 2;
    Design.ScaleColor[2] = -5;
    Design.SpecialNrOfTicmarks[2] = 3;
    for (int tic = 0; tic <= 3; ++tic) {
        Design.TicDeflection[2][tic] = static_cast<float>(tic) / 4;
        Design.TicLabelText[2][tic] = "tic " + std::to_string(tic);
    }
    OpenSetup(row.page, 2);
    EXPECT_EQ(Shown("lblWorking"), "Working with scale # 2");
    MakeTics();
    ReadDesign(Design, "Backup.DAT");
    EXPECT_EQ(Design.SpecialNrOfTicmarks[2], 3);
    EXPECT_EQ(Design.TicDeflection[2][1], 0.25F);
    EXPECT_EQ(Design.TicLabelText[2][3], "tic 3");
}

// What the accepting marks the load of the scales page takes back, as it does for a scale that is
// selected there; the tables stay.
TEST_P(EachSetupTest, AcceptMarksBeforeTheScalesPageLoads) {
    WalkToSetup();
    MakeTics();
    Design.ActiveScale = 2; // another: the load clears that one's mark
    Design.ScaleColor[1] = 0;
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(PageName(), "frmScales");
    EXPECT_EQ(Design.ScaleColor[1], -1) << "black has no sign before";
    EXPECT_EQ(Design.ActiveScale, 2);
    EXPECT_EQ(Design.DesignFileName, "");
}

TEST_P(EachSetupTest, ScalesPageClearsTheMarkOfTheActiveScale) {
    WalkToSetup();
    MakeTics();
    const Strings tics = TicsInWords(1, 30);
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(PageName(), "frmScales");
    EXPECT_EQ(Design.ScaleColor[1], 0);
    EXPECT_EQ(TicsInWords(1, 30), tics) << "the tables stay";
    EXPECT_FALSE(IsSpecial(Design, 1));
}

TEST_P(EachSetupTest, SpecialScalesKeepTheirColour) {
    OpenSetup(row.page);
    MakeTics();
    Design.ScaleColor[1] = -0x804020;
    Design.ActiveScale = 2;
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(Design.ScaleColor[1], -0x804020);
}

TEST_P(EachSetupTest, IgnoreBringsTheDesignBack) {
    Design.DesignFileName = "/designs/mine.VRN";
    Design.PlateWidth = 63;
    Design.ScaleColor[1] = 0;
    WalkToSetup();
    MakeTics();
    Design.PlateWidth = 99;
    ClickAndSettle(row.ignore);
    EXPECT_EQ(PageName(), "frmScales");
    EXPECT_EQ(Design.PlateWidth, 63);
    EXPECT_EQ(Design.ScaleColor[1], 0);
    EXPECT_EQ(Design.DesignFileName, "") << "the name is gone all the same";
    EXPECT_TRUE(said.empty());
}

// The reader forces a curve of its own on every design.
TEST_F(SetupPageTest, IgnoreLosesTheCorrectionCurve) {
    Design.CorrectionPair[3] = 0.1F;
    Design.CorrectionPair[4] = 0.2F;
    OpenSetup("frmSetupdB");
    ClickAndSettle("cmdIgnore");
    EXPECT_NE(Design.CorrectionPair[3], 0.1F);
    float share = 0.1F;
    EXPECT_FLOAT_EQ(CorrectDeflection(Design, share), 0.1F);
}

TEST_F(SetupPageTest, IgnoreTakesBackAMarkOfThePreview) {
    OpenSetup("frmSetupOhmmeter");
    PressPreview();
    EXPECT_EQ(Design.ScaleColor[1], -1);
    Design.ActiveScale = 2;
    ClickAndSettle("cmdIgnoreAndReturn");
    EXPECT_GE(Design.ScaleColor[1], 0);
}

TEST_P(EachSetupTest, WorksOnTheActiveScale) {
    for (const auto& [active, working] : {std::pair(0, 1), {3, 3}}) {
        WalkToSetup(static_cast<std::int16_t>(active));
        EXPECT_EQ(Shown("lblWorking"), "Working with scale # " + std::to_string(working));
    }
}

// One page stays loaded behind the scales page, and comes back as it was left.
TEST_F(SetupPageTest, AcceptedSmeterPageComesBackAsItWasLeft) {
    const QPointer<QWidget> page = &OpenSetup("frmSetupSmeter", 2);
    Click("Option3");
    std::filesystem::remove(Path("Backup.DAT"));
    ClickAndSettle("cmdAccept");
    ASSERT_FALSE(page.isNull());
    EXPECT_FALSE(page->isVisible());
    Design.PlateWidth = 71;
    EXPECT_EQ(&OpenSetup("frmSetupSmeter", 1), page);
    EXPECT_TRUE(page->isVisible());
    EXPECT_FALSE(Exists("Backup.DAT")) << "no new backup";
    EXPECT_EQ(Shown("lblWorking"), "Working with scale # 2") << "the old number";
    EXPECT_TRUE(IsSelected("Option3"));
    EXPECT_EQ(page->focusWidget()->objectName(), QLatin1String("cmdAccept"));
}

// The process ends with the page behind, by whatever way.
TEST_F(SetupPageTest, EndingUnloadsThePageBehind) {
    const QPointer<QWidget> page = &OpenSetup("frmSetupSmeter");
    ClickAndSettle("cmdAccept");
    ASSERT_FALSE(page.isNull());
    CloseByUser(Page());
    EXPECT_TRUE(page.isNull());
    EXPECT_TRUE(TakeProcessEnd());
}

TEST_F(SetupPageTest, IgnoreOnItsSecondVisitReturnsToTheBackupOfTheFirst) {
    Design.PlateWidth = 63;
    const QPointer<QWidget> page = &OpenSetup("frmSetupSmeter");
    Click("Option3");
    ClickAndSettle("cmdAccept");
    Design.PlateWidth = 71;
    OpenSetup("frmSetupSmeter");
    ClickAndSettle("cmdIgnore");
    EXPECT_EQ(PageName(), "frmScales");
    EXPECT_EQ(Design.PlateWidth, 63);
    EXPECT_TRUE(page.isNull()) << "ignoring unloads it";
    OpenSetup("frmSetupSmeter");
    EXPECT_FALSE(IsSelected("Option3"));
}

TEST_P(EachSetupTest, OtherPagesAreUnloadedWhenLeft) {
    const QPointer<QWidget> page = &OpenSetup(row.page);
    MakeTics();
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(page.isNull(), row.page != std::string("frmSetupSmeter"));
}

TEST_F(SetupPageTest, FailingBackupIsReportedAndThePageOpens) {
    Host.openForOutput = [](const std::string&) -> std::unique_ptr<ByteSink> {
        throw FileFailure("no disk");
    };
    OpenSetup("frmSetupdB");
    EXPECT_EQ(said.size(), 2U) << "beep and box";
    EXPECT_EQ(PageName(), "frmSetupdB");
    EXPECT_EQ(Design.DesignFileName, "");
}

TEST_F(SetupPageTest, MissingBackupIsReportedAndTheScalesPageOpens) {
    OpenSetup("frmSetupVSWR");
    std::filesystem::remove(Path("Backup.DAT"));
    ClickAndSettle("cmdIgnore");
    EXPECT_EQ(said.size(), 2U);
    EXPECT_EQ(PageName(), "frmScales");
}

// A special scale of each kind goes through a design file without loss.
TEST_P(EachSetupTest, AcceptedScalesGoThroughAFile) {
    OpenSetup(row.page);
    MakeTics();
    Design.ActiveScale = 2;
    ClickAndSettle("cmdAccept");
    const int last = Design.SpecialNrOfTicmarks[1];
    ASSERT_GT(last, 0);
    Strings tics = TicsInWords(1, last);
    for (std::string& tic : tics) {
        if (tic.starts_with("[]")) {
            tic.insert(1, " "); // an empty label comes back as a blank
        }
    }
    const std::vector<float> deflections = DeflectionsOf(1, last);
    Design.DesignFileName = Path("first.VRN");
    WriteDesign(Design);
    ResetDesign(Design);
    ReadDesign(Design, Path("first.VRN"));
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], last);
    EXPECT_EQ(Design.ScaleColor[1], -1);
    EXPECT_EQ(TicsInWords(1, last), tics);
    for (int tic = 0; tic <= last; ++tic) { // a file has seven digits
        EXPECT_FLOAT_EQ(Design.TicDeflection[1][tic], deflections[static_cast<std::size_t>(tic)]);
    }
    Design.DesignFileName = Path("again.VRN");
    WriteDesign(Design);
    EXPECT_EQ(ScaleLinesIn("again.VRN"), ScaleLinesIn("first.VRN"));
    EXPECT_TRUE(said.empty());
}

} // namespace
} // namespace vernacle::test
