// The close boxes of the pages, and of a page whose close box just ends.
#include "apptest.h"

#include <QToolButton>

#include "desktop/pages/designpage.h"

namespace vernacle::test {
namespace {

constexpr PageTraits kPlainTraits = {.form = "frmPlain",
                                     .title = "Plain entry",
                                     .helpTopic = "vnone.htm",
                                     .printing = Printing::GreyedAndDead,
                                     .closeBox = CloseBox::JustEnds};

class frmPlain : public DesignPage {
public:
    frmPlain() : DesignPage(kPlainTraits) {}
};

std::unique_ptr<QWidget> MakePlain() {
    return std::make_unique<frmPlain>();
}

constexpr FormRow kPlainForm[] = {{"frmPlain", MakePlain}};

class CloseBoxTest : public AppTest {};

TEST_F(CloseBoxTest, SavesTheSessionAndEnds) {
    for (const char* page : {"frmPlate", "frmScales", "frmPreview", "frmGraphic", "frmHighlights",
                             "frmWizard", "frmWizardPart2", "frmSetupMenu", "frmSetupOhmmeter",
                             "frmSpecialScale", "frmSetupSmeter", "frmSetupVSWR", "frmSetupdB"}) {
        SCOPED_TRACE(page);
        std::filesystem::remove(Path("LASTSESSION.VRN"));
        Design.DesignFileName = "/designs/mine.VRN";
        const QPointer<QWidget> closed = &OpenPage(page);
        Design.PlateWidth = 63;
        CloseByUser(*closed);
        EXPECT_TRUE(TakeProcessEnd());
        EXPECT_EQ(CurrentPage(), nullptr);
        Settle();
        EXPECT_TRUE(closed.isNull()) << "unloaded";
        EXPECT_EQ(WidthIn("LASTSESSION.VRN"), 63);
        EXPECT_EQ(Design.DesignFileName, Path("LASTSESSION.VRN"));
    }
    EXPECT_TRUE(said.empty());
}

TEST_F(CloseBoxTest, CloseRequestsOfTheDesktopCountToo) {
    OpenPage("frmPlate");
    Page().close(); // as the window menu does
    EXPECT_TRUE(TakeProcessEnd());
    EXPECT_TRUE(Exists("LASTSESSION.VRN"));
}

TEST_F(CloseBoxTest, UnloadingByCodeDoesNot) {
    OpenPage("frmPlate");
    OpenPage("frmScales");
    ReloadPage();
    Settle();
    UnloadPage();
    Settle();
    EXPECT_FALSE(TakeProcessEnd());
    EXPECT_FALSE(Exists("LASTSESSION.VRN"));
}

TEST_F(CloseBoxTest, EndsEvenWhereTheSessionCannotBeKept) {
    OpenPage("frmPreview");
    Host.besideProgram = [this](const std::string& name) { return Path("none/" + name); };
    CloseByUser(Page());
    EXPECT_EQ(said.size(), 2U);
    EXPECT_TRUE(TakeProcessEnd());
}

TEST_F(CloseBoxTest, PageThatJustEndsLosesTheSession) {
    WriteDesignFile("LASTSESSION.VRN", 61);
    SetForms(kPlainForm);
    OpenPage("frmPlain");
    Design.PlateWidth = 64;
    CloseByUser(Page());
    EXPECT_TRUE(TakeProcessEnd());
    EXPECT_EQ(WidthIn("LASTSESSION.VRN"), 61) << "the older one stays";
    EXPECT_EQ(CurrentPage(), nullptr);
}

TEST_F(CloseBoxTest, TextPageJustEnds) {
    WriteDesignFile("LASTSESSION.VRN", 61);
    const QPointer<QWidget> closed = &OpenPage("frmText");
    Design.PlateWidth = 64;
    CloseByUser(*closed);
    EXPECT_TRUE(TakeProcessEnd());
    EXPECT_EQ(WidthIn("LASTSESSION.VRN"), 61) << "the older one stays";
    Settle();
    EXPECT_TRUE(closed.isNull());
}

TEST_F(CloseBoxTest, DeadPrintKeyDoesNothing) {
    for (const char* page : {"frmText", "frmGraphic", "frmHighlights"}) {
        OpenPage(page);
        auto& print = Find<QToolButton>("Print");
        EXPECT_FALSE(print.isEnabled());
        print.defaultAction()->setEnabled(true);
        Click("Print"); // a dialog would wait for ever
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }
}

TEST_F(CloseBoxTest, KeysOfPagesThatAreNotThereLeadNowhere) {
    SetForms(kPlainForm);
    const QWidget* page = &OpenPage("frmPlain");
    for (const char* key : {"Plate", "Scales", "Text", "Graphic", "Highlights", "Preview"}) {
        Click(key);
        EXPECT_EQ(CurrentPage(), page) << key;
    }
    EXPECT_EQ(TitleOf(Page()), "Vernacle - Plain entry");
}

TEST_F(CloseBoxTest, MissingHelpTopicIsSilent) {
    SetForms(kPlainForm);
    OpenPage("frmPlain");
    Click("Help");
    EXPECT_TRUE(said.empty());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

} // namespace
} // namespace vernacle::test
