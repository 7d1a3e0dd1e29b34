// Open and Save of the toolbar, with their cancelled dialogs.
#include "apptest.h"

#include <algorithm>

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QListView>

namespace vernacle::test {
namespace {

class FilesTest : public AppTest {
protected:
    // Names in the list of a file dialog.
    static Strings ShownIn(QWidget& dialog) {
        const auto* list = dialog.findChild<QListView*>(QStringLiteral("listView"));
        Strings names;
        for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row) {
            names.push_back(
                list->model()->index(row, 0, list->rootIndex()).data().toString().toStdString());
        }
        std::sort(names.begin(), names.end());
        return names;
    }
};

TEST_F(FilesTest, OpenReadsAndReloadsThePage) {
    for (const char* page : kDesignPages) {
        SCOPED_TRACE(page);
        Design.DesignFileName.clear();
        const std::string file = WriteDesignFile("other.VRN", 62);
        const QPointer<QWidget> before = &OpenPage(page);
        const std::string title = TitleOf(*before);
        Design.ActiveScale = 3;
        ClickAndAnswer("Open", [&](QWidget& dialog) {
            EXPECT_EQ(TitleOf(dialog), "Read Vernacle file");
            TypeFile(file)(dialog);
        });
        EXPECT_TRUE(before.isNull()) << "built anew";
        EXPECT_EQ(PageName(), page);
        EXPECT_EQ(TitleOf(Page()), title + " - " + file);
        EXPECT_EQ(Design.DesignFileName, file);
        EXPECT_EQ(Design.PlateWidth, 62);
        EXPECT_EQ(Design.ActiveScale, 1);
    }
    EXPECT_TRUE(said.empty());
}

TEST_F(FilesTest, CancelledOpenEmptiesTheNameAlone) {
    for (const char* page : kDesignPages) {
        SCOPED_TRACE(page);
        Design.DesignFileName = "/designs/mine.VRN";
        const QWidget* before = &OpenPage(page);
        const std::string title = TitleOf(*before);
        Design.PlateWidth = 61;
        Design.ActiveScale = 3;
        ClickAndAnswer("Open", Cancel);
        EXPECT_EQ(&Page(), before) << "not reloaded";
        EXPECT_EQ(TitleOf(Page()), title) << "until the next load";
        EXPECT_EQ(Design.DesignFileName, "");
        EXPECT_EQ(Design.PlateWidth, 61);
        EXPECT_EQ(Design.ActiveScale, 3);
    }
}

TEST_F(FilesTest, DamagedFileIsReportedAndThePageReloaded) {
    std::string text = ReadFile(std::filesystem::path(WriteDesignFile("bad.VRN", 62)).filename());
    const std::string line = "Scale 1 - deleted tics: 0";
    ASSERT_NE(text.find(line), text.npos);
    text.replace(text.find(line), line.size(), "Scale 1 - deleted tics: 1\r\nTic deleted: 361");
    const std::string file = WriteFile("bad.VRN", text);
    Design.PlateWidth = 61;
    const QPointer<QWidget> before = &OpenPage("frmPlate");
    ClickAndAnswer("Open", TypeFile(file));
    ASSERT_EQ(said.size(), 2U);
    EXPECT_TRUE(said[1].starts_with("failure: We were not successful")) << said[1];
    EXPECT_EQ(Design.PlateWidth, 75);
    EXPECT_TRUE(before.isNull());
    EXPECT_EQ(TitleOf(Page()), "Vernacle - Plate design - " + file);
}

TEST_F(FilesTest, MissingFileIsReportedByTheReader) {
    OpenPage("frmPlate");
    Design.PlateWidth = 61;
    ClickAndAnswer("Open", TypeFile(Path("none-such.VRN")));
    ASSERT_EQ(said.size(), 2U);
    EXPECT_TRUE(said[1].ends_with("ReadWrite 407")) << said[1];
    EXPECT_EQ(Design.PlateWidth, 75);
    EXPECT_EQ(Design.DesignFileName, Path("none-such.VRN"));
}

TEST_F(FilesTest, EndingsOfAnyCaseShow) {
    for (const char* name : {"a.vrn", "b.VRN", "c.Vrn", "d.txt", "e.VRN.bak"}) {
        WriteFile(name, "x");
    }
    Design.DesignFileName = Path("b.VRN");
    OpenPage("frmPlate");
    ClickAndAnswer("Save", [](QWidget& dialog) {
        const auto shown = [&] { return ShownIn(dialog); };
        EXPECT_TRUE(QTest::qWaitFor([&] { return shown().size() >= 3; }));
        EXPECT_EQ(shown(), (Strings{"a.vrn", "b.VRN", "c.Vrn"}));
        Cancel(dialog);
    });
}

TEST_F(FilesTest, FilterIsNamed) {
    OpenPage("frmPlate");
    for (const char* key : {"Open", "Save"}) {
        ClickAndAnswer(key, [](QWidget& dialog) {
            const auto* kinds = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
            EXPECT_EQ(kinds->count(), 1);
            EXPECT_EQ(kinds->currentText().trimmed(), QLatin1String("Vernacle files (*.VRN)"));
            Cancel(dialog);
        });
    }
}

TEST_F(FilesTest, SaveWritesUnderTheTypedName) {
    for (const char* page : kDesignPages) {
        SCOPED_TRACE(page);
        Design.DesignFileName.clear();
        const QWidget* before = &OpenPage(page);
        const std::string title = TitleOf(*before);
        Design.PlateWidth = 62;
        const std::string name = std::string(page) + ".VRN";
        ClickAndAnswer("Save", [&](QWidget& dialog) {
            EXPECT_EQ(TitleOf(dialog), "Save Vernacle file");
            TypeFile(Path(name))(dialog);
        });
        EXPECT_EQ(Design.DesignFileName, Path(name));
        EXPECT_EQ(WidthIn(name), 62);
        EXPECT_EQ(&Page(), before);
        EXPECT_EQ(TitleOf(Page()), title) << "until the next load";
        EXPECT_EQ(TitleOf(OpenPage(page)), title + " - " + Path(name));
    }
}

struct NameRow {
    const char* typed;
    const char* written;
};

constexpr NameRow kNames[] = {
    {"plain", "plain.VRN"}, {"two words", "two words.VRN"}, {"small.vrn", "small.vrn"},
    {"own.txt", "own.txt"}, {"Prüf", "Prüf.VRN"},           {"CAPS.VRN", "CAPS.VRN"},
};

TEST_F(FilesTest, NameWithoutEndingGetsOne) {
    OpenPage("frmPlate");
    for (const NameRow& row : kNames) {
        ClickAndAnswer("Save", TypeFile(Path(row.typed)));
        EXPECT_EQ(Design.DesignFileName, Path(row.written));
        EXPECT_TRUE(Exists(row.written)) << row.written;
    }
}

TEST_F(FilesTest, SaveIsPrimedWithTheName) {
    Design.DesignFileName = WriteDesignFile("mine.VRN", 61);
    OpenPage("frmPlate");
    ClickAndAnswer("Save", [this](QWidget& dialog) {
        EXPECT_EQ(On<QLineEdit>(dialog, "fileNameEdit").text().toStdString(), "mine.VRN");
        EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).directory().absolutePath().toStdString(),
                  std::filesystem::path(Path("mine.VRN")).parent_path().string());
        Cancel(dialog);
    });
    ClickAndAnswer("Open", [this](QWidget& dialog) {
        EXPECT_EQ(On<QLineEdit>(dialog, "fileNameEdit").text().toStdString(), "") << "to open";
        Cancel(dialog);
    });
}

TEST_F(FilesTest, CancelledSaveWritesUnderThePresentName) {
    for (const char* page : kDesignPages) {
        SCOPED_TRACE(page);
        Design.DesignFileName = WriteDesignFile("mine.VRN", 61);
        OpenPage(page);
        Design.PlateWidth = 64;
        ClickAndAnswer("Save", Cancel);
        EXPECT_EQ(Design.DesignFileName, Path("mine.VRN"));
        EXPECT_EQ(WidthIn("mine.VRN"), 64);
    }
    EXPECT_TRUE(said.empty());
}

TEST_F(FilesTest, CancelledSaveWithoutANameWritesNothing) {
    OpenPage("frmPlate");
    bool opened = false;
    Host.openForOutput = [&](const std::string& name) {
        opened = true;
        return OpenFileSink(name);
    };
    ClickAndAnswer("Save", Cancel);
    EXPECT_FALSE(opened);
    EXPECT_EQ(Design.DesignFileName, "");
    EXPECT_TRUE(said.empty());
}

TEST_F(FilesTest, OverwritingAsks) {
    WriteDesignFile("there.VRN", 61);
    OpenPage("frmPlate");
    Design.PlateWidth = 64;
    Answer(TypeFile(Path("there"))); // the ending is added first
    Answer(Press(QMessageBox::No));
    Answer(Cancel); // of the dialog, which is still there
    Click("Save");
    EXPECT_TRUE(AllAnswered());
    EXPECT_EQ(WidthIn("there.VRN"), 61);
    EXPECT_EQ(Design.DesignFileName, "");
    ClickAndAnswer("Save", TypeFile(Path("there.VRN")), Press(QMessageBox::Yes));
    EXPECT_EQ(WidthIn("there.VRN"), 64);
    EXPECT_EQ(Design.DesignFileName, Path("there.VRN"));
}

TEST_F(FilesTest, FailedSaveIsReported) {
    OpenPage("frmPlate");
    Host.openForOutput = [](const std::string&) { return OpenFileSink("/dev/full"); };
    ClickAndAnswer("Save", TypeFile(Path("mine.VRN")));
    EXPECT_EQ(said, (Strings{"beep", "failure: The Vernacle file was not written correctly.\n"
                                     "ReadWrite 364"}));
    EXPECT_EQ(Design.DesignFileName, Path("mine.VRN"));
}

} // namespace
} // namespace vernacle::test
