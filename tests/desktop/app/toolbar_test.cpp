#include "apptest.h"

#include <QTextBrowser>
#include <QToolButton>

#include "support/pdfreader.h"

namespace vernacle::test {
namespace {

struct KeyRow {
    const char* key;
    const char* caption;
    const char* tip;
    const char* page; // that it goes to
};

constexpr KeyRow kKeys[] = {
    {"Open", "Open", "Open a file", ""},
    {"Save", "Save", "Save a file", ""},
    {"Plate", "Plate", "Go to the Plate Design page", "frmPlate"},
    {"Scales", "Scales", "Go to the Scale Design page", "frmScales"},
    {"Text", "Text", "Go to the Text Entry page", "frmText"},
    {"Graphic", "Graphic", "Go to the Graphic Entry page", "frmGraphic"},
    {"Highlights", "Highlights", "Go to the Highlight Entry page", "frmHighlights"},
    {"Preview", "Preview", "Preview the design", "frmPreview"},
    {"Print", "Print", "Print the design", ""},
    {"Help", "Help", "Help", ""},
    {"Exit", "Exit", "Exit the program", ""},
    {"About", "About Vernacle", "", ""},
};

struct OwnTipRow {
    const char* page;
    const char* key;
    const char* tip;
};

constexpr OwnTipRow kOwnTips[] = {
    {"frmPreview", "Exit", "Exit"},
    {"frmGraphic", "Scales", "Go to the Scales Design page"},
    {"frmHighlights", "Highlights", "Go to the Highlight Entrypage"},
};

std::string TipOf(const std::string& page, const KeyRow& key) {
    for (const OwnTipRow& own : kOwnTips) {
        if (page == own.page && key.key == std::string(own.key)) {
            return own.tip;
        }
    }
    return key.tip;
}

class ToolbarTest : public AppTest {
protected:
    QToolButton& KeyOf(const std::string& key) const { return Find<QToolButton>(key); }

    void Shortcut(Qt::Key key) const {
        Page().activateWindow(); // as a window manager does when a dialog has gone
        Settle();
        QTest::keyClick(&Page(), key, Qt::ControlModifier);
        Settle();
    }

    // The help window that stands open, and its topic.
    static QTextBrowser* Book() {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String("HelpViewer") && window->isVisible()) {
                return window->findChild<QTextBrowser*>();
            }
        }
        return nullptr;
    }
    static std::string Topic() {
        return Book() ? Book()->source().fileName().toStdString() : "no help";
    }
    static void CloseBook() {
        if (QTextBrowser* book = Book()) {
            book->window()->close();
        }
        Settle();
    }
};

TEST_F(ToolbarTest, TwelveKeysInOrder) {
    for (const char* page : kDesignPages) {
        SCOPED_TRACE(page);
        OpenPage(page);
        auto& toolbar = Find("Toolbar1");
        EXPECT_EQ(toolbar.actions().size(), 12);
        int left = -1;
        for (const KeyRow& row : kKeys) {
            const auto& key = KeyOf(row.key);
            EXPECT_EQ(key.parentWidget(), &toolbar);
            EXPECT_EQ(key.text().toStdString(), row.caption);
            EXPECT_EQ(key.accessibleName().toStdString(), row.caption);
            EXPECT_FALSE(key.icon().isNull());
            EXPECT_GT(key.x(), left) << row.key;
            left = key.x();
        }
    }
}

TEST_F(ToolbarTest, TipsWithThePagesOwnWording) {
    for (const char* page : kDesignPages) {
        SCOPED_TRACE(page);
        OpenPage(page);
        for (const KeyRow& row : kKeys) {
            EXPECT_EQ(KeyOf(row.key).toolTip().toStdString(), TipOf(page, row)) << row.key;
        }
    }
}

TEST_F(ToolbarTest, PrintIsGreyedButOnThePreview) {
    for (const char* page : kDesignPages) {
        OpenPage(page);
        for (const KeyRow& row : kKeys) {
            const bool dead = row.key == std::string("Print") && page != std::string("frmPreview");
            EXPECT_EQ(KeyOf(row.key).isEnabled(), !dead) << page << " " << row.key;
        }
    }
}

TEST_F(ToolbarTest, TabFollowsTheRow) {
    OpenPage("frmPreview");
    ExpectTabOrder("Open Save Plate Scales Text Graphic Highlights Preview Print Help Exit About");
}

// A key goes to its page and unloads the present one; the page's own key does nothing.
TEST_F(ToolbarTest, KeysWalkBetweenThePages) {
    for (const char* from : kDesignPages) {
        for (const KeyRow& row : kKeys) {
            if (*row.page == '\0') {
                continue;
            }
            SCOPED_TRACE(std::string(from) + " to " + row.page);
            const QPointer<QWidget> left = &OpenPage(from);
            ClickAndSettle(row.key);
            EXPECT_EQ(PageName(), row.page);
            EXPECT_EQ(left.isNull(), row.page != std::string(from));
        }
    }
}

TEST_F(ToolbarTest, ShortcutsWalkToo) {
    OpenPage("frmPreview");
    int number = Qt::Key_1;
    for (const char* page : kDesignPages) {
        Shortcut(static_cast<Qt::Key>(number++));
        EXPECT_EQ(PageName(), page);
    }
}

struct DialogRow {
    const char* key;
    Qt::Key shortcut;
    const char* window; // name of the form or dialog
};

TEST_F(ToolbarTest, KeysAndShortcutsOpenTheirDialogs) {
    const DialogRow rows[] = {
        {"Open", Qt::Key_O, "dlgOpen"},
        {"Save", Qt::Key_S, "dlgSave"},
        {"Print", Qt::Key_P, "PrintDialog"},
        {"Exit", Qt::Key_Q, "frmExit"},
    };
    OpenPage("frmPreview");
    for (const DialogRow& row : rows) {
        for (const bool byKey : {true, false}) {
            std::string came;
            Answer([&](QWidget& dialog) {
                came = NameOf(dialog);
                Cancel(dialog);
            });
            if (byKey) {
                Click(row.key);
            } else {
                Shortcut(row.shortcut);
            }
            EXPECT_EQ(came, row.window) << row.key;
        }
    }
    EXPECT_EQ(PageName(), "frmPreview");
}

TEST_F(ToolbarTest, GreyedPrintHasNoShortcut) {
    for (const char* page : {"frmPlate", "frmScales", "frmText", "frmGraphic", "frmHighlights"}) {
        OpenPage(page);
        Shortcut(Qt::Key_P);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }
}

// On the greyed pages too, once their key is enabled.
TEST_F(ToolbarTest, PrintPrintsTheDesign) {
    for (const char* page : {"frmPlate", "frmScales", "frmPreview"}) {
        SCOPED_TRACE(page);
        OpenPage(page);
        KeyOf("Print").defaultAction()->setEnabled(true);
        const std::string file = std::string(page) + ".pdf";
        ClickAndAnswer("Print", Cancel);
        EXPECT_FALSE(Exists(file));
        ClickAndAnswer("Print", PrintTo(Path(file)));
        ASSERT_TRUE(Exists(file));
        const std::vector<Word> words = ReadPdfWords(Path(file));
        const bool titled = std::any_of(words.begin(), words.end(),
                                        [](const Word& word) { return word.text == "Default"; });
        EXPECT_TRUE(titled) << "the scale's title";
        EXPECT_EQ(PageName(), page);
    }
    EXPECT_TRUE(said.empty());
}

TEST_F(ToolbarTest, FailingPrinterIsReported) {
    OpenPage("frmPreview");
    Answer(PrintTo("/dev/full"));
    Answer(Press(QMessageBox::Yes)); // the file exists
    Click("Print");
    ASSERT_FALSE(said.empty());
    EXPECT_TRUE(said.back().starts_with("failure: We had a problem driving the printer."))
        << said.back();
    EXPECT_EQ(PageName(), "frmPreview");
}

struct TopicRow {
    const char* page;
    const char* topic;
};

constexpr TopicRow kTopics[] = {
    {"frmPlate", "vplate.htm"},     {"frmScales", "vscales.htm"},
    {"frmPreview", "vpreview.htm"}, {"frmText", "vsignature.htm"},
    {"frmGraphic", "vgraphic.htm"}, {"frmHighlights", "vhighlights.htm"},
};

TEST_F(ToolbarTest, HelpOpensThePagesTopic) {
    for (const TopicRow& row : kTopics) {
        OpenPage(row.page);
        EXPECT_EQ(Topic(), "no help");
        Click("Help");
        EXPECT_EQ(Topic(), row.topic);
        CloseBook();
        Page().activateWindow();
        Settle();
        QTest::keyClick(&Page(), Qt::Key_F1);
        EXPECT_EQ(Topic(), row.topic);
        CloseBook();
    }
}

TEST_F(ToolbarTest, HelpStaysWhileThePageIsUsedAndFollowsItsChange) {
    OpenPage("frmPlate");
    Click("Help");
    ASSERT_TRUE(Book());
    EXPECT_EQ(Book()->window()->windowModality(), Qt::NonModal);
    Type("txtPlateWidth", "66");
    EXPECT_EQ(Design.PlateWidth, 66);
    ClickAndSettle("Preview");
    EXPECT_EQ(PageName(), "frmPreview");
    EXPECT_EQ(Topic(), "vpreview.htm") << "in the same window";
    Click("Help");
    EXPECT_EQ(Topic(), "vpreview.htm");
    CloseBook();
    EXPECT_EQ(Topic(), "no help");
}

TEST_F(ToolbarTest, AboutShowsTitleVersionAndDescription) {
    const QWidget* page = &OpenPage("frmPlate");
    ClickAndAnswer("About", [this](QWidget& form) {
        EXPECT_EQ(NameOf(form), "frmAbout");
        EXPECT_TRUE(form.isModal());
        ExpectShown(form,
                    {{"lblVersion", "Version 3.04"}, {"lblTitle", Design.ProgramName.c_str()}});
        EXPECT_GT(On<QLabel>(form, "lblDescription").text().size(), 40);
        Click(On<QPushButton>(form, "cmdOK"));
    });
    ClickAndAnswer("About", [](QWidget& form) { CloseByUser(form); });
    EXPECT_EQ(&Page(), page);
    EXPECT_FALSE(TakeProcessEnd());
}

} // namespace
} // namespace vernacle::test
