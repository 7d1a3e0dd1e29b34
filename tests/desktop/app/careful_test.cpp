// The design as a document: nothing of it is lost by a dialog, by leaving, or by a step too many.
#include "apptest.h"

#include <random>

#include <QListWidget>
#include <QToolButton>

#include "desktop/app/start.h"
#include "desktop/navigation/changewatch.h"
#include "desktop/navigation/opendocument.h"
#include "desktop/navigation/session.h"
#include "desktop/system/recentfiles.h"
#include "engine/base/runtimeerror.h"
#include "engine/core/service.h"
#include "support/environment.h"
#include "support/samerecord.h"

namespace vernacle::test {
namespace {

QPushButton& ButtonOn(const QWidget& form, const char* name) {
    return *form.findChild<QPushButton*>(QLatin1String(name));
}

void PressOn(const QWidget& form, const char* name) {
    ButtonOn(form, name).click();
}

class CarefulTest : public AppTest {
protected:
    CarefulTest() : home_("XDG_DATA_HOME", Path("home")) {
        StoreService(Program::Workshop);
        UnloadPage();
        Settle();
        WatchChanges();
        ShowFirstPage({});
    }

    // A file of an everyday design, as that program leaves it.
    std::string WriteEverydayFile(const std::string& name, float width) const {
        StoreService(Program::Everyday);
        const std::string path = WriteDesignFile(name, width);
        StoreService(Program::Workshop);
        return path;
    }

    void OpenFile(const std::string& path) const { ShowFirstPage(path); }

    void Walk(const std::string& key) const { ClickAndSettle(key); }
    void Undo() const { ClickAndSettle("Undo"); }
    void Redo() const { ClickAndSettle("Redo"); }
    bool IsMarked() const { return Page().isWindowModified(); }
    std::string Tip(const std::string& key) const { return Find(key).toolTip().toStdString(); }
    // A number typed into a box, and the box left.
    void Enter(const std::string& box, const std::string& text) const {
        Type(box, text);
        Find("Help").setFocus();
        Settle();
    }
    static void PressKey(QWidget& on, Qt::Key key, Qt::KeyboardModifiers with) {
        QTest::keyClick(&on, key, with);
        Settle();
    }

private:
    EnvironmentVariable home_;
};

TEST_F(CarefulTest, TheOpeningPageBeginsWithANewDesign) {
    EXPECT_EQ(PageName(), "frmOpening");
    EXPECT_EQ(TitleOf(Page()), "Vernacle Workshop - Welcome !");
    ExpectTabOrder("cmdNew cmdOld cmdLastSession cmdExit");
    EXPECT_EQ(Page().findChild<QWidget*>(QStringLiteral("lblBegin")), nullptr);
    Design.PlateWidth = 77;
    ClickAndAnswer("cmdNew", Press(QMessageBox::Discard));
    EXPECT_EQ(PageName(), "frmWizard");
    EXPECT_EQ(Design.PlateWidth, 75) << "the defaults";
    EXPECT_TRUE(Document().IsKept());
}

TEST_F(CarefulTest, ACancelledRetrieveStays) {
    Design.DesignFileName = "name.VRN";
    ClickAndAnswer("cmdOld", Cancel);
    EXPECT_EQ(PageName(), "frmOpening");
    EXPECT_EQ(Design.DesignFileName, "name.VRN");
}

TEST_F(CarefulTest, AFileThatCannotBeReadLeavesTheDesign) {
    OpenFile(WriteEverydayFile("good.VRN", 81));
    ClickAndAnswer("Open", TypeFile(Path("missing.VRN")));
    EXPECT_EQ(Design.PlateWidth, 81);
    EXPECT_EQ(Design.DesignFileName, Path("good.VRN"));
    EXPECT_EQ(said.size(), 2U) << "the beep and the box";
    EXPECT_NE(reasons.back().find("missing.VRN"), std::string::npos);
}

TEST_F(CarefulTest, NewStandsBeforeOpenAndStartsFromTheDefaults) {
    OpenFile(WriteEverydayFile("good.VRN", 81));
    EXPECT_EQ(PageName(), "frmPreview");
    const Strings keys{"New",     "Open",   "Save", "Undo",    "Redo",
                       "Plate",   "Scales", "Text", "Graphic", "Highlights",
                       "Preview", "Print",  "Help", "Exit",    "About"};
    Strings found;
    for (const QToolButton* key : Find("Toolbar1").findChildren<QToolButton*>()) {
        if (!key->objectName().startsWith(QLatin1String("qt_"))) {
            found.push_back(key->objectName().toStdString());
        }
    }
    EXPECT_EQ(found, keys);
    Walk("Plate");
    ClickAndSettle("New");
    EXPECT_EQ(PageName(), "frmPreview");
    EXPECT_EQ(Design.PlateWidth, 75);
    EXPECT_EQ(Design.DesignFileName, "");
    EXPECT_FALSE(IsMarked() || IsEnabled("Undo"));
}

TEST_F(CarefulTest, ChangesAreAskedAboutBeforeAnotherDesignComes) {
    OpenFile(WriteEverydayFile("good.VRN", 81));
    Walk("Plate");
    Enter("txtPlateWidth", "90");
    ClickAndAnswer("New", Press(QMessageBox::Cancel));
    EXPECT_EQ(Design.PlateWidth, 90);
    ClickAndAnswer("Open", Press(QMessageBox::Save), Cancel);
    EXPECT_EQ(Design.PlateWidth, 90) << "the saving was cancelled, and with it the opening";
    ClickAndAnswer("New", Press(QMessageBox::Save), TypeFile(Path("kept.VRN")));
    EXPECT_EQ(Design.PlateWidth, 75);
    EXPECT_EQ(WidthIn("kept.VRN"), 90);
}

TEST_F(CarefulTest, TheTitleMarksWhatNoFileHolds) {
    OpenFile(WriteEverydayFile("good.VRN", 81));
    EXPECT_EQ(TitleOf(Page()), "Vernacle Workshop - Preview - " + Path("good.VRN") + "[*]");
    EXPECT_FALSE(IsMarked());
    Walk("Plate");
    EXPECT_FALSE(IsMarked());
    Type("txtPlateWidth", "90");
    Settle();
    EXPECT_TRUE(IsMarked()) << "at the keys already";
    Type("txtPlateWidth", "81");
    Settle();
    EXPECT_FALSE(IsMarked());
    Enter("txtPlateWidth", "90");
    Walk("Scales");
    EXPECT_TRUE(IsMarked());
    ClickAndAnswer("Save", TypeFile(Path("other.VRN")));
    EXPECT_FALSE(IsMarked());
    EXPECT_EQ(TitleOf(Page()), "Vernacle Workshop - Scale design - " + Path("other.VRN") + "[*]");
}

TEST_F(CarefulTest, ACancelledSaveDoesNothing) {
    const std::string file = WriteEverydayFile("good.VRN", 81);
    OpenFile(file);
    const std::string before = ReadFile("good.VRN");
    Walk("Plate");
    Enter("txtPlateWidth", "90");
    ClickAndAnswer("Save", Cancel);
    EXPECT_EQ(ReadFile("good.VRN"), before);
    EXPECT_EQ(Design.DesignFileName, file);
    EXPECT_TRUE(IsMarked());
}

TEST_F(CarefulTest, AFailedSaveKeepsTheNameAndSaysWhy) {
    const std::string file = WriteEverydayFile("good.VRN", 81);
    OpenFile(file);
    Walk("Plate");
    Enter("txtPlateWidth", "90");
    Host.openForOutput = [](const std::string& name) -> std::unique_ptr<ByteSink> {
        throw FileFailure(name + ": no room");
    };
    ClickAndAnswer("Save", TypeFile(Path("full.VRN")));
    EXPECT_EQ(Design.DesignFileName, file);
    EXPECT_TRUE(IsMarked());
    ASSERT_FALSE(reasons.empty());
    EXPECT_NE(reasons.back().find("full.VRN: no room"), std::string::npos);
}

TEST_F(CarefulTest, TheFirstSaveKeepsTheEverydayFile) {
    const std::string file = WriteEverydayFile("good.VRN", 81);
    const std::string before = ReadFile("good.VRN");
    OpenFile(file);
    for (const int save : {1, 2}) {
        Design.PlateWidth = static_cast<float>(90 + save);
        EXPECT_TRUE(WriteDesign(Design));
        EXPECT_EQ(ReadFile("good.VRN~"), before) << save;
    }
    EXPECT_EQ(WidthIn("good.VRN"), 92);
    Host.openForOutput = [open = Host.openForOutput](const std::string& name) {
        return name.ends_with("~") ? throw FileFailure(name + ": no room") : open(name);
    };
    const std::string other = WriteEverydayFile("other.VRN", 60);
    Design.DesignFileName = other;
    EXPECT_FALSE(WriteDesign(Design)) << "nothing is lost without its copy";
    EXPECT_EQ(WidthIn("other.VRN"), 60);
}

TEST_F(CarefulTest, AVisitIsAStepThatBearsItsName) {
    OpenFile(WriteEverydayFile("good.VRN", 81));
    Walk("Plate");
    EXPECT_FALSE(IsEnabled("Undo") || IsEnabled("Redo"));
    Type("txtPlateWidth", "9");
    Settle();
    Type("txtPlateWidth", "90");
    StepUp("UpDownPlateWidth");
    StepUp("UpDownPlateWidth");
    Enter("txtPlateHeight", "60");
    Click("optArcsNo");
    Settle();
    EXPECT_EQ(Design.PlateWidth, 92);
    EXPECT_EQ(Tip("Undo"), "Undo: No");
    Undo();
    EXPECT_EQ(Design.DrawArcs, "Y");
    EXPECT_EQ(Tip("Undo"), "Undo: Plate height, mm");
    Undo();
    EXPECT_EQ(Tip("Undo"), "Undo: Plate width, mm");
    EXPECT_EQ(Tip("Redo"), "Redo: Plate height, mm");
    EXPECT_EQ(TextOf("txtPlateHeight"), " 50") << "the page shows it";
    Undo();
    EXPECT_EQ(Design.PlateWidth, 81);
    EXPECT_FALSE(IsEnabled("Undo") || IsMarked());
    Redo();
    EXPECT_EQ(Design.PlateWidth, 92);
    EXPECT_EQ(Design.PlateHeight, 50);
}

TEST_F(CarefulTest, TheKeysOfUndoAreTheDesignsInABoxToo) {
    OpenFile(WriteEverydayFile("good.VRN", 81));
    Walk("Plate");
    Enter("txtPlateWidth", "90");
    Type("txtPlateHeight", "61");
    PressKey(Find("txtPlateHeight"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Design.PlateHeight, 50);
    EXPECT_EQ(Design.PlateWidth, 90);
    PressKey(Find("txtPlateHeight"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Design.PlateWidth, 81);
    PressKey(Find("txtPlateHeight"), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Design.PlateWidth, 90);
}

TEST_F(CarefulTest, WhatAPageKeepsApartIsOfTheDesignAtOnce) {
    OpenFile(WriteEverydayFile("good.VRN", 81));
    Walk("Text");
    Enter("txtText", "Made here");
    EXPECT_EQ(Design.TextString[1], "Made here");
    EXPECT_TRUE(IsMarked());
    Undo();
    EXPECT_EQ(TextOf("txtText"), "");
    Redo();
    EXPECT_EQ(TextOf("txtText"), "Made here");
    EXPECT_TRUE(KeepSession());
    EXPECT_NE(ReadFile("LASTWORKSHOP.VRN").find("Made here"), std::string::npos);
}

TEST_F(CarefulTest, AFormAboveThePageIsOneStep) {
    OpenFile(WriteEverydayFile("good.VRN", 81));
    Walk("Plate");
    ClickAndAnswer("cmdLinearity", [](QWidget& form) {
        form.findChild<QLineEdit*>(QStringLiteral("Text7"))->setText(QStringLiteral("48"));
        PressOn(form, "cmdAcceptXY");
        Cancel(form);
    });
    QTest::qWait(100);
    EXPECT_EQ(Tip("Undo"), "Undo: Correction Entry");
    Undo();
    EXPECT_EQ(Design.CorrectionPair[7], 0.5F);
    EXPECT_FALSE(IsEnabled("Undo"));
}

TEST_F(CarefulTest, ASetupIsOneStep) {
    OpenFile(WriteEverydayFile("good.VRN", 81));
    Walk("Scales");
    ClickAndSettle("cmddBsetup");
    ClickAndSettle("cmddB");
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(PageName(), "frmScales");
    EXPECT_LT(Design.ScaleColor[1], 0);
    EXPECT_EQ(Tip("Undo"), "Undo: dB setup");
    Undo();
    EXPECT_EQ(PageName(), "frmScales");
    EXPECT_EQ(Design.ScaleColor[1], 0);
    EXPECT_FALSE(IsEnabled("Undo"));
    Redo();
    EXPECT_LT(Design.ScaleColor[1], 0);
}

TEST_F(CarefulTest, LeavingAsksAboutChangesAndKeepsTheSession) {
    OpenFile(WriteEverydayFile("good.VRN", 81));
    Walk("Plate");
    Enter("txtPlateWidth", "90");
    Answer([](QWidget& form) {
        EXPECT_EQ(form.objectName(), QStringLiteral("frmExit"));
        PressOn(form, "cmdCancel");
    });
    CloseByUser(Page());
    EXPECT_FALSE(TakeProcessEnd());
    EXPECT_EQ(PageName(), "frmPlate");
    ClickAndAnswer(
        "Exit", [](QWidget& form) { PressOn(form, "cmdSave"); }, TypeFile(Path("kept.VRN")));
    EXPECT_TRUE(TakeProcessEnd());
    EXPECT_EQ(WidthIn("kept.VRN"), 90);
    EXPECT_EQ(WidthIn("LASTWORKSHOP.VRN"), 90);
}

TEST_F(CarefulTest, LeavingWithoutSavingKeepsTheSessionAlone) {
    const std::string file = WriteEverydayFile("good.VRN", 81);
    OpenFile(file);
    Walk("Plate");
    Enter("txtPlateWidth", "90");
    ClickAndAnswer("Exit", [](QWidget& form) {
        EXPECT_EQ(ButtonOn(form, "cmdExit").text(), QStringLiteral("Exit without saving"));
        PressOn(form, "cmdExit");
    });
    EXPECT_TRUE(TakeProcessEnd());
    EXPECT_EQ(WidthIn("good.VRN"), 81);
    UnloadPage();
    Settle();
    ShowFirstPage({});
    ClickAndSettle("cmdLastSession");
    EXPECT_EQ(PageName(), "frmPreview");
    EXPECT_EQ(Design.PlateWidth, 90);
    EXPECT_EQ(Design.DesignFileName, file) << "the session tells what it is of";
    EXPECT_TRUE(IsMarked());
}

TEST_F(CarefulTest, LeavingWithoutChangesDoesNotAsk) {
    OpenFile(WriteEverydayFile("good.VRN", 81));
    Walk("Text");
    CloseByUser(Page());
    EXPECT_TRUE(TakeProcessEnd());
    EXPECT_EQ(WidthIn("LASTWORKSHOP.VRN"), 81);
    UnloadPage();
    Settle();
    ShowFirstPage({});
    ClickAndSettle("cmdLastSession");
    EXPECT_FALSE(IsMarked()) << "a file holds it";
}

TEST_F(CarefulTest, ADesignOfTheWizardIsAskedAboutToo) {
    ClickAndSettle("cmdNew");
    Design.PlateWidth = 91; // as its steps enter it
    ClickAndSettle("cmdExit");
    EXPECT_EQ(PageName(), "frmOpening");
    EXPECT_TRUE(KeepSession());
    EXPECT_EQ(WidthIn("LASTWORKSHOP.VRN"), 91);
    ClickAndAnswer("cmdExit", [](QWidget& form) { PressOn(form, "cmdCancel"); });
    EXPECT_FALSE(TakeProcessEnd());
}

TEST_F(CarefulTest, AtItsStartThereIsNoSessionToKeep) {
    EXPECT_TRUE(KeepSession());
    EXPECT_FALSE(Exists("LASTWORKSHOP.VRN"));
}

// Each page draws before it could hold such numbers itself.
TEST_F(CarefulTest, ADesignOfImpossibleNumbersIsHeldWhateverPageOpensIt) {
    const std::string file = WriteEverydayFile("odd.VRN", 81);
    std::string text = ReadFile("odd.VRN");
    for (const auto& [line, odd] :
         {std::pair("Linearity exponent: 1", "Linearity exponent: -2"),
          std::pair("Number of ticmarks: 50", "Number of ticmarks: 0"),
          std::pair("Labels every how many ticmarks: 10", "Labels every how many ticmarks: 0")}) {
        const std::size_t at = text.find(line);
        ASSERT_NE(at, text.npos) << line;
        text.replace(at, std::string_view(line).size(), odd);
    }
    WriteFile("odd.VRN", text);
    for (const char* page : {"frmScales", "frmText", "frmGraphic", "frmHighlights"}) {
        OpenPage(page);
        ClickAndAnswer("Open", TypeFile(file));
        EXPECT_EQ(PageName(), page);
        EXPECT_GT(Design.LinearityExponent[1], 0);
    }
}

TEST_F(CarefulTest, UndoPassesTheGraphicPagesLimits) {
    OpenFile(WriteEverydayFile("good.VRN", 81));
    Walk("Graphic");
    Enter("txtLeftToImage", "20");
    Enter("txtBottomToImage", "150"); // which the page holds to 120 later
    Undo();
    Undo();
    EXPECT_FALSE(IsEnabled("Undo"));
    EXPECT_EQ(Design.LeftToGraphic, 10);
    Redo();
    EXPECT_EQ(Design.LeftToGraphic, 20);
}

TEST_F(CarefulTest, CancelledColoursChangeNothing) {
    OpenFile(WriteEverydayFile("good.VRN", 81));
    Design.PlateBackground = 0x80C0FF;
    Document().Start(true);
    for (const auto& [page, button] :
         {std::pair("Plate", "cmdGetBackgroundColor"), std::pair("Scales", "cmdGetColor"),
          std::pair("Text", "cmdGetColor"), std::pair("Highlights", "cmdGetColor")}) {
        Walk(page);
        ClickAndAnswer(button, Cancel);
        EXPECT_FALSE(IsEnabled("Undo") || IsMarked()) << page;
    }
    EXPECT_EQ(Design.PlateBackground, 0x80C0FF);
}

TEST_F(CarefulTest, AGraphicIsFoundFromAnotherFolderToo) {
    const std::string file = WriteEverydayFile("good.VRN", 81);
    WriteFile("mark.bmp", "no picture");
    std::filesystem::create_directory(Path("other"));
    OpenFile(file);
    Walk("Graphic");
    ClickAndAnswer("cmdGetGraphic", TypeFile(Path("mark.bmp")));
    EXPECT_EQ(Design.GraphicFileName, "mark.bmp") << "beside its design";
    ClickAndAnswer("Save", TypeFile(Path("other/good.VRN")));
    EXPECT_EQ(Design.GraphicFileName, Path("mark.bmp"));
}

TEST_F(CarefulTest, RecentDesignsAreOffered) {
    const std::string one = WriteEverydayFile("one.VRN", 61);
    const std::string two = WriteEverydayFile("two.VRN", 62);
    OpenFile(one);
    OpenFile(two);
    GoToPage("frmOpening");
    Settle();
    auto& list = Find<QListWidget>("lstRecent");
    ASSERT_EQ(list.count(), 2);
    EXPECT_TRUE(list.item(0)->text().startsWith(QLatin1String("two.VRN")));
    list.setFocus();
    list.setCurrentRow(1);
    PressKey(list, Qt::Key_Return, {});
    EXPECT_EQ(PageName(), "frmPreview");
    EXPECT_EQ(Design.PlateWidth, 61);
    for (int file = 0; file < kRecentFiles + 2; ++file) {
        NoteRecentFile({"f" + std::to_string(file), false});
    }
    EXPECT_EQ(RecentFiles().size(), std::size_t{kRecentFiles});
    std::filesystem::remove(two);
    NoteRecentFile({two, false});
    OpenFile(two);
    EXPECT_NE(RecentFiles().front().name, two) << "one that is gone is not offered again";
}

TEST_F(CarefulTest, ARecentFileThatHasLostItsStarLinesIsTold) {
    const std::string file = WriteEverydayFile("good.VRN", 81);
    OpenFile(file);
    EXPECT_TRUE(said.empty());
    Walk("Plate");
    Enter("txtPlateWidth", "90");
    ClickAndAnswer("Save", TypeFile(file), Press(QMessageBox::Yes));
    OpenFile(file);
    EXPECT_TRUE(said.empty());
    WriteEverydayFile("good.VRN", 82);
    OpenFile(file);
    ASSERT_EQ(said.size(), 1U);
    EXPECT_EQ(said[0].find("information: The everyday program has saved this design since"), 0U);
    OpenFile(file);
    EXPECT_EQ(said.size(), 1U) << "once";
}

// Steps of all kinds on all pages, by chance but the same at each run; the whole record is held at
// each step back, and at each step forth again. VERNACLE_STEPS says how many.
TEST_F(CarefulTest, WalksOverAllPagesGoBackAndForth) {
    OpenFile(WriteEverydayFile("good.VRN", 81));
    std::mt19937 random(2026); // NOLINT(cert-msc51-cpp): the same walk each time
    const auto below = [&random](int count) { return static_cast<int>(random() % count); };
    struct Entry {
        const char* page;
        const char* box;
        int lowest;
        int highest;
    };
    constexpr Entry kEntries[] = {
        {"Plate", "txtPlateWidth", 40, 180},
        {"Plate", "txtPlateHeight", 30, 180},
        {"Plate", "txtFontSize", 5, 14},
        {"Plate", "txtPointerDeflection", 40, 270},
        {"Scales", "txtScaleLeftEnd", -20, 20},
        {"Scales", "txtScaleLength", 10, 90},
        {"Scales", "txtNumberOfTics", 5, 60},
        {"Scales", "txtBottomToTitle", 5, 30},
        {"Text", "txtText", 1, 999},
        {"Text", "txtLeftToText", 1, 60},
        {"Highlights", "txtStart1", 0, 40},
        {"Highlights", "txtStop1", 50, 90},
        {"Graphic", "txtLeftToImage", 1, 30},
    };
    constexpr std::pair<const char*, const char*> kButtons[] = {
        {"Plate", "optArcsNo"},   {"Plate", "optArcsYes"},   {"Plate", "Option1"},
        {"Plate", "Option3"},     {"Plate", "optDINquad"},   {"Plate", "optNormal"},
        {"Preview", "cmdCircle"}, {"Scales", "Option1"},     {"Scales", "cmdRevertToStandard"},
        {"Text", "Option4"},      {"Highlights", "Option2"},
    };
    std::vector<DesignRecord> records;
    const auto note = [&records] {
        while (records.size() > Document().Steps().Count()) {
            records.pop_back();
        }
        records.resize(Document().Steps().Count());
        records.push_back(Design);
    };
    note();
    const int wanted = qEnvironmentVariableIsSet("VERNACLE_STEPS")
                           ? qEnvironmentVariableIntValue("VERNACLE_STEPS")
                           : 30;
    for (int step = 0; step < wanted; ++step) {
        if (const int kind = below(10); kind < 6) {
            const Entry& entry = kEntries[below(std::size(kEntries))];
            Walk(entry.page);
            if (IsEnabled(entry.box)) {
                Enter(entry.box,
                      std::to_string(entry.lowest + below(entry.highest - entry.lowest)));
            }
        } else if (kind < 9) {
            const auto& [page, button] = kButtons[below(std::size(kButtons))];
            Walk(page);
            ClickAndSettle(button);
        } else {
            Walk("Scales");
            ClickAndSettle("cmddBsetup");
            ClickAndSettle("cmddB");
            ClickAndSettle(below(2) == 0 ? "cmdAccept" : "cmdIgnore");
        }
        note();
    }
    const std::size_t steps = Document().Steps().Count();
    EXPECT_GT(steps, static_cast<std::size_t>(wanted / 2));
    for (std::size_t step = steps; step-- > 0;) {
        SCOPED_TRACE("back to " + std::to_string(step));
        Undo();
        ExpectSame(Design, records[step], FieldRole::Kept);
    }
    EXPECT_FALSE(IsEnabled("Undo"));
    for (std::size_t step = 1; step <= steps; ++step) {
        SCOPED_TRACE("forth to " + std::to_string(step));
        Redo();
        ExpectSame(Design, records[step], FieldRole::Kept);
    }
}

} // namespace
} // namespace vernacle::test
