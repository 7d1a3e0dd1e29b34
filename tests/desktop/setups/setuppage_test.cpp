// The way into every setup and back: from the scales page over the menu, by Accept and by Ignore.
#include <sstream>

#include "desktop/setups/setuptest.h"

#include "desktop/navigation/navigator.h"
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

class SetupPageTest : public SetupFormTest {
protected:
    // Walks from the scales page to the setup.
    void WalkTo(const SetupRow& row) {
        OpenPage("frmScales");
        Find("cmddBsetup").setEnabled(true);
        Press("cmddBsetup");
        ASSERT_EQ(PageName(), "frmSetupMenu");
        Press(row.button);
        ASSERT_EQ(PageName(), row.page);
    }

    // So that it can be accepted, whatever its page asks for first.
    void MakeTics(const SetupRow& row) {
        if (row.option) {
            Click(row.option);
        }
        if (row.page == std::string("frmSetupOhmmeter")) {
            PressPreview();
        }
    }

    // The lines of a file, but for its own name and the correction curve, which the reader forces.
    std::vector<std::string> ScaleLinesIn(const std::string& file) const {
        std::vector<std::string> lines;
        std::istringstream text(ReadFile(file));
        for (std::string line; std::getline(text, line);) {
            if (!line.starts_with("Filename: ") && !line.starts_with("Pair #")) {
                lines.push_back(line);
            }
        }
        return lines;
    }
};

TEST_F(SetupPageTest, EnteringBacksTheDesignUpAndNamesTheScale) {
    for (const SetupRow& row : kSetups) {
        SCOPED_TRACE(row.page);
        std::filesystem::remove(Path("Backup.DAT"));
        ResetDesign(Design);
        Design.DesignFileName = "/designs/mine.VRN";
        Design.PlateWidth = 63;
        WalkTo(row);
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
}

TEST_F(SetupPageTest, BackupIsTakenBeforeTheFirstWrite) {
    for (const SetupRow& row : kSetups) {
        SCOPED_TRACE(row.page);
        ResetDesign(Design);
        Design.NumberOfScales = 2;
        Design.ScaleColor[2] = -5;
        Design.SpecialNrOfTicmarks[2] = 3;
        for (int tic = 0; tic <= 3; ++tic) {
            Design.TicDeflection[2][tic] = static_cast<float>(tic) / 4;
            Design.TicLabelText[2][tic] = "tic " + std::to_string(tic);
        }
        OpenSetup(row.page, 2);
        EXPECT_EQ(Shown("lblWorking"), "Working with scale # 2");
        MakeTics(row);
        ReadDesign(Design, "Backup.DAT");
        EXPECT_EQ(Design.SpecialNrOfTicmarks[2], 3);
        EXPECT_EQ(Design.TicDeflection[2][1], 0.25F);
        EXPECT_EQ(Design.TicLabelText[2][3], "tic 3");
    }
}

// What the accepting marks the load of the scales page takes back, as it does for a scale that is
// selected there; the tables stay.
TEST_F(SetupPageTest, AcceptMarksBeforeTheScalesPageLoads) {
    for (const SetupRow& row : kSetups) {
        SCOPED_TRACE(row.page);
        ResetDesign(Design);
        Design.ActiveScale = 1;
        WalkTo(row);
        MakeTics(row);
        Design.ActiveScale = 2; // another: the load clears that one's mark
        Design.ScaleColor[1] = 0;
        Press("cmdAccept");
        EXPECT_EQ(PageName(), "frmScales");
        EXPECT_EQ(Design.ScaleColor[1], -1) << "black has no sign before";
        EXPECT_EQ(Design.ActiveScale, 2);
        EXPECT_EQ(Design.DesignFileName, "");
    }
}

TEST_F(SetupPageTest, ScalesPageClearsTheMarkOfTheActiveScale) {
    for (const SetupRow& row : kSetups) {
        SCOPED_TRACE(row.page);
        ResetDesign(Design);
        Design.ActiveScale = 1;
        WalkTo(row);
        MakeTics(row);
        const std::vector<std::string> tics = TicsInWords(1, 30);
        Press("cmdAccept");
        EXPECT_EQ(PageName(), "frmScales");
        EXPECT_EQ(Design.ScaleColor[1], 0);
        EXPECT_EQ(TicsInWords(1, 30), tics) << "the tables stay";
        EXPECT_FALSE(IsSpecial(Design, 1));
    }
}

TEST_F(SetupPageTest, SpecialScalesKeepTheirColour) {
    for (const SetupRow& row : kSetups) {
        SCOPED_TRACE(row.page);
        ResetDesign(Design);
        OpenSetup(row.page);
        MakeTics(row);
        Design.ScaleColor[1] = -0x804020;
        Design.ActiveScale = 2;
        Press("cmdAccept");
        EXPECT_EQ(Design.ScaleColor[1], -0x804020);
    }
}

TEST_F(SetupPageTest, IgnoreBringsTheDesignBack) {
    for (const SetupRow& row : kSetups) {
        SCOPED_TRACE(row.page);
        ResetDesign(Design);
        Design.DesignFileName = "/designs/mine.VRN";
        Design.PlateWidth = 63;
        Design.ScaleColor[1] = 0;
        WalkTo(row);
        MakeTics(row);
        Design.PlateWidth = 99;
        Press(row.ignore);
        EXPECT_EQ(PageName(), "frmScales");
        EXPECT_EQ(Design.PlateWidth, 63);
        EXPECT_EQ(Design.ScaleColor[1], 0);
        EXPECT_EQ(Design.DesignFileName, "") << "the name is gone all the same";
    }
    EXPECT_TRUE(said.empty());
}

// The reader forces a curve of its own on every design.
TEST_F(SetupPageTest, IgnoreLosesTheCorrectionCurve) {
    Design.CorrectionPair[3] = 0.1F;
    Design.CorrectionPair[4] = 0.2F;
    OpenSetup("frmSetupdB");
    Press("cmdIgnore");
    EXPECT_NE(Design.CorrectionPair[3], 0.1F);
    float share = 0.1F;
    EXPECT_FLOAT_EQ(CorrectDeflection(Design, share), 0.1F);
}

TEST_F(SetupPageTest, IgnoreTakesBackAMarkOfThePreview) {
    OpenSetup("frmSetupOhmmeter");
    PressPreview();
    EXPECT_EQ(Design.ScaleColor[1], -1);
    Design.ActiveScale = 2;
    Press("cmdIgnoreAndReturn");
    EXPECT_GE(Design.ScaleColor[1], 0);
}

TEST_F(SetupPageTest, SetupsWorkOnTheActiveScale) {
    OpenPage("frmScales");
    for (const SetupRow& row : kSetups) {
        for (const std::int16_t active : {std::int16_t{0}, std::int16_t{3}}) {
            OpenPage("frmScales");
            Design.ActiveScale = active;
            Find("cmddBsetup").setEnabled(true);
            Press("cmddBsetup");
            Press(row.button);
            EXPECT_EQ(Shown("lblWorking"),
                      "Working with scale # " + std::to_string(active == 0 ? 1 : active));
        }
    }
}

// One page stays loaded behind the scales page, and comes back as it was left.
TEST_F(SetupPageTest, AcceptedSmeterPageComesBackAsItWasLeft) {
    const QPointer<QWidget> page = &OpenSetup("frmSetupSmeter", 2);
    Click("Option3");
    std::filesystem::remove(Path("Backup.DAT"));
    Press("cmdAccept");
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
    Press("cmdAccept");
    ASSERT_FALSE(page.isNull());
    CloseByUser(Page());
    EXPECT_TRUE(page.isNull());
    EXPECT_TRUE(TakeProcessEnd());
}

TEST_F(SetupPageTest, IgnoreOnItsSecondVisitReturnsToTheBackupOfTheFirst) {
    Design.PlateWidth = 63;
    const QPointer<QWidget> page = &OpenSetup("frmSetupSmeter");
    Click("Option3");
    Press("cmdAccept");
    Design.PlateWidth = 71;
    OpenSetup("frmSetupSmeter");
    Press("cmdIgnore");
    EXPECT_EQ(PageName(), "frmScales");
    EXPECT_EQ(Design.PlateWidth, 63);
    EXPECT_TRUE(page.isNull()) << "ignoring unloads it";
    OpenSetup("frmSetupSmeter");
    EXPECT_FALSE(IsSelected("Option3"));
}

TEST_F(SetupPageTest, OtherPagesAreUnloadedWhenLeft) {
    for (const SetupRow& row : kSetups) {
        SCOPED_TRACE(row.page);
        const QPointer<QWidget> page = &OpenSetup(row.page);
        MakeTics(row);
        Press("cmdAccept");
        EXPECT_EQ(page.isNull(), row.page != std::string("frmSetupSmeter"));
    }
}

TEST_F(SetupPageTest, CloseBoxKeepsTheSession) {
    for (const SetupRow& row : kSetups) {
        SCOPED_TRACE(row.page);
        std::filesystem::remove(Path("LASTSESSION.VRN"));
        OpenSetup(row.page);
        CloseByUser(Page());
        EXPECT_TRUE(TakeProcessEnd());
        EXPECT_TRUE(Exists("LASTSESSION.VRN"));
        EXPECT_EQ(CurrentPage(), nullptr);
    }
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
    Press("cmdIgnore");
    EXPECT_EQ(said.size(), 2U);
    EXPECT_EQ(PageName(), "frmScales");
}

// A special scale of each kind goes through a design file without loss.
TEST_F(SetupPageTest, AcceptedScalesGoThroughAFile) {
    for (const SetupRow& row : kSetups) {
        SCOPED_TRACE(row.page);
        ResetDesign(Design);
        OpenSetup(row.page);
        MakeTics(row);
        Design.ActiveScale = 2;
        Press("cmdAccept");
        const int last = Design.SpecialNrOfTicmarks[1];
        ASSERT_GT(last, 0);
        std::vector<std::string> tics = TicsInWords(1, last);
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
            EXPECT_FLOAT_EQ(Design.TicDeflection[1][tic],
                            deflections[static_cast<std::size_t>(tic)]);
        }
        Design.DesignFileName = Path("again.VRN");
        WriteDesign(Design);
        EXPECT_EQ(ScaleLinesIn("again.VRN"), ScaleLinesIn("first.VRN"));
    }
    EXPECT_TRUE(said.empty());
}

} // namespace
} // namespace vernacle::test
