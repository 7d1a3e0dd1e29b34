// The list in which single tics are deleted, opened from the scales page.
#include "desktop/kit/rowlist.h"
#include "desktop/pages/scalestest.h"
#include "engine/base/hostservices.h"
#include "engine/base/runtimeerror.h"
#include "engine/scale/ticrows.h"

namespace vernacle::test {
namespace {

class SelectTicsTest : public ScalesTest {
protected:
    using Use = std::function<void(QWidget& form)>;

    // With the form open above the scales page; it is left by its button unless use closes it.
    void OnForm(const Use& use) {
        OpenPage("frmScales");
        OnFormAbove(use);
    }

    void OnFormAbove(const Use& use) {
        Enable("cmdSelectTics");
        ClickAndAnswer("cmdSelectTics", [&](QWidget& form) {
            EXPECT_EQ(form.objectName(), QLatin1String("frmSelectTics"));
            form_ = &form;
            use(form);
            if (form.isVisible()) {
                Press("cmdExit");
            }
            EXPECT_FALSE(form.isVisible());
        });
    }

    template <typename Control = QWidget>
    Control& The(const std::string& name) const {
        return On<Control>(*form_, name);
    }
    RowList& List() const { return The<RowList>("lstTicsData"); }
    void Press(const std::string& control) const { Click(The(control)); }

    void ChooseRow(int row) const {
        List().scrollToItem(List().item(row));
        ClickListAt(List().visualItemRect(List().item(row)).center());
    }
    void ClickBesideRows() const {
        ClickListAt({List().viewport()->width() / 2, List().viewport()->height() - 2});
    }
    void ClickListAt(QPoint place) const {
        QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, place);
    }

    std::string RowText(int row) const { return List().item(row)->text().toStdString(); }
    std::string TextOf(const std::string& label) const {
        return The<QLabel>(label).text().toStdString();
    }
    bool IsChecked(const std::string& option) const {
        return The<OptionButton>(option).isChecked();
    }
    void ExpectVisible(std::initializer_list<const char*> controls, bool visible) const {
        for (const char* control : controls) {
            EXPECT_EQ(The(control).isVisible(), visible) << control;
        }
    }

    // "nothing chosen", "row chosen" or "flag changed", by what shows and is enabled.
    std::string State() const {
        const bool details = The("lblData1").isVisible();
        const bool chosen = The("Label3").isEnabled();
        const bool changed = The("Label4").isEnabled();
        EXPECT_EQ(details, chosen);
        ExpectVisible({"lblData2", "lblData3", "fraTics", "fraLabels"}, details);
        if (changed) {
            EXPECT_TRUE(The("cmdAccept").isVisible());
            return "flag changed";
        }
        return chosen ? "row chosen" : "nothing chosen";
    }

private:
    QWidget* form_ = nullptr;
};

TEST_F(SelectTicsTest, CaptionsAndStart) {
    OnForm([this](QWidget& form) {
        EXPECT_EQ(form.windowTitle(), QLatin1String("Vernacle - select tics"));
        EXPECT_TRUE(form.isModal());
        ExpectShown(
            form,
            {{"Label1", "  Scale:      Tic #:        Print tic:       Label:      Print label:"},
             {"Label2", "Click on a line of data at the left to edit it. "},
             {"Label3", "You may now select or de-select the tic and the label for that tic. "},
             {"Label4", "To enter these choices into the system click on 'Accept'"},
             {"lblData1", "Scale number:"},
             {"lblData2", "Ticmark #:"},
             {"lblData3", "Print:"},
             {"lblData4", "Label:"},
             {"lblData5", "Print:"},
             {"cmdAccept", "Accept"},
             {"cmdExit", "Return to scale design page"},
             {"optTicYes", "Yes"},
             {"optTicNo", "No"},
             {"optLabelYes", "Yes"},
             {"optLabelNo", "No"}});
        EXPECT_TRUE(The("fraTics").isAncestorOf(&The("optTicNo")));
        EXPECT_TRUE(The("fraLabels").isAncestorOf(&The("optLabelYes")));
        EXPECT_EQ(State(), "nothing chosen");
        ExpectVisible({"lblData4", "lblData5"}, false);
        ExpectVisible({"cmdAccept", "Label2", "Label3", "Label4", "cmdExit"}, true);
        EXPECT_TRUE(The("Label2").isEnabled());
    });
}

TEST_F(SelectTicsTest, FiftyTicsGiveFiftyOneRows) {
    OnForm([this](QWidget&) {
        ASSERT_EQ(List().count(), 51);
        EXPECT_EQ(RowText(0), SelectionRow(Design, 1, 0));
        EXPECT_EQ(RowText(7), "Scale 1   7         Y                   Y         ");
        EXPECT_EQ(RowText(50), "Scale 1   50        Y         50        Y         ");
        EXPECT_EQ(Design.CurrentScale, 2) << "behind the rows";
        EXPECT_EQ(Design.TicLoop, 51);
    });
}

TEST_F(SelectTicsTest, ListGrowsWithTheScreen) {
    Design.NrOfTicmarks[1] = 360;
    int before = 0;
    for (const int height : {768, 1080, 1440, 2160}) {
        Host.screenSize = [=] { return ScreenSize{28800, static_cast<float>(height * 15)}; };
        OnForm([&](QWidget& form) {
            Settle();
            EXPECT_EQ(form.height(), height * 4 / 5);
            const int rows = List().viewport()->height() / List().sizeHintForRow(0);
            EXPECT_GE(rows, height / 25);
            EXPECT_GT(rows, before);
            before = rows;
        });
    }
}

TEST_F(SelectTicsTest, ChoosingARowShowsItsTic) {
    Design.StandardTicYN[1][20] = "N";
    OpenPage("frmScales");
    OnFormAbove([this](QWidget&) {
        ChooseRow(20);
        EXPECT_EQ(TextOf("lblData1"), "Scale number: 1");
        EXPECT_EQ(TextOf("lblData2"), "Ticmark #: 20");
        EXPECT_EQ(TextOf("lblData3"), "Print: ");
        EXPECT_EQ(TextOf("lblData4"), "Label: 20");
        EXPECT_EQ(TextOf("lblData5"), "Print: ");
        EXPECT_TRUE(IsChecked("optTicNo"));
        EXPECT_TRUE(IsChecked("optLabelYes"));
        ExpectVisible({"lblData4", "lblData5", "optLabelYes", "optLabelNo", "optTicYes"}, true);
        EXPECT_EQ(Design.CurrentScale, 1);
        EXPECT_EQ(Design.TicLoop, 20);
        EXPECT_EQ(Design.StandardTicYN[1][20], "N") << "as it was";
        ChooseRow(30);
        EXPECT_TRUE(IsChecked("optTicYes"));
        EXPECT_EQ(TextOf("lblData4"), "Label: 30");
    });
}

TEST_F(SelectTicsTest, TicWithoutALabelHidesTheLabelOptions) {
    OnForm([this](QWidget&) {
        ChooseRow(7);
        ExpectVisible({"lblData4", "lblData5", "optLabelYes", "optLabelNo"}, false);
        ExpectVisible({"fraLabels", "fraTics", "optTicYes", "optTicNo", "lblData3"}, true);
        ChooseRow(10);
        ExpectVisible({"lblData4", "lblData5", "optLabelYes", "optLabelNo"}, true);
    });
}

struct FlagRow {
    const char* option;
    std::string& (*flag)(DesignRecord& design, int scale, int tic);
    const char* value;
};

constexpr FlagRow kFlagRows[] = {{"optTicNo", TicFlagOf, "N"},
                                 {"optLabelNo", LabelFlagOf, "N"},
                                 {"optTicYes", TicFlagOf, "Y"},
                                 {"optLabelYes", LabelFlagOf, "Y"}};

TEST_F(SelectTicsTest, OptionsWriteTheirFlagAtOnce) {
    OnForm([this](QWidget&) {
        ChooseRow(10);
        for (const FlagRow& row : kFlagRows) {
            const std::string shown = RowText(10);
            Press(row.option);
            EXPECT_EQ(row.flag(Design, 1, 10), row.value) << row.option;
            EXPECT_EQ(State(), "flag changed");
            EXPECT_EQ(RowText(10), shown) << "the rows only look old";
        }
        EXPECT_EQ(Design.StandardTicYN[1][9], "Y");
        EXPECT_EQ(Design.StandardLabelYN[1][20], "Y");
    });
}

TEST_F(SelectTicsTest, AcceptRefreshesTheRows) {
    OnForm([this](QWidget&) {
        ChooseRow(10);
        Press("optTicNo");
        Press("optLabelNo");
        EXPECT_EQ(State(), "flag changed");
        Press("cmdAccept");
        EXPECT_EQ(RowText(10), "Scale 1   10        N         10        N         ");
        EXPECT_EQ(List().count(), 51);
        EXPECT_EQ(State(), "nothing chosen");
        ExpectVisible({"cmdAccept", "lblData4", "lblData5"}, false);
        EXPECT_TRUE(The("Label2").isEnabled());
    });
}

// The first choice selects options that had none; later ones need not change any.
TEST_F(SelectTicsTest, ChoosingARowCanBringAcceptBack) {
    OnForm([this](QWidget&) {
        ChooseRow(10);
        EXPECT_EQ(State(), "flag changed");
        Press("cmdAccept");
        ChooseRow(20);
        EXPECT_EQ(State(), "row chosen") << "the same flags: no option changed";
        EXPECT_FALSE(The("cmdAccept").isVisible());
        Press("optTicNo");
        Press("cmdAccept");
        ChooseRow(30);
        EXPECT_EQ(State(), "flag changed") << "another flag: its option's handler ran";
        EXPECT_TRUE(The("cmdAccept").isVisible());
        EXPECT_EQ(Design.StandardTicYN[1][30], "Y");
        ChooseRow(40);
        EXPECT_EQ(State(), "flag changed") << "stays";
    });
}

TEST_F(SelectTicsTest, LongLabelsAreCutInTheDetailsAndHideTheFlag) {
    struct Row {
        const char* label;
        const char* detail;
        bool flagRead;
    };
    const Row rows[] = {
        {"123456", "Label: 123456", true},
        {"1234567", "Label: 123456", true},
        {"12345678901", "Label: 123456", false},
        {"1234567890123456", "Label: 123456", false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.label);
        ResetDesign(Design);
        OpenPage("frmScales");
        Design.StandardLabel[1][10] = row.label;
        OnFormAbove([&](QWidget&) {
            ChooseRow(10);
            EXPECT_NE(RowText(10).find(row.label), std::string::npos) << "the row keeps it whole";
            EXPECT_EQ(TextOf("lblData4"), row.detail);
            EXPECT_EQ(IsChecked("optLabelYes"), row.flagRead);
            EXPECT_EQ(IsChecked("optLabelNo"), !row.flagRead);
        });
        EXPECT_EQ(Design.StandardLabelYN[1][10], row.flagRead ? "Y" : "N")
            << "the option that code selects writes its flag";
    }
}

TEST_F(SelectTicsTest, AClickBesideTheRowsShowsZero) {
    OpenPage("frmScales");
    Design.NrOfTicmarks[1] = 3;
    OnFormAbove([this](QWidget&) {
        ClickBesideRows();
        EXPECT_EQ(TextOf("lblData1"), "Scale number: 0");
        EXPECT_EQ(TextOf("lblData2"), "Ticmark #: 0");
        EXPECT_TRUE(IsChecked("optTicNo"));
        EXPECT_EQ(Design.CurrentScale, 0);
        EXPECT_EQ(Design.TicLoop, 0);
        ExpectVisible({"fraTics", "fraLabels"}, true);
        ExpectVisible({"lblData4", "lblData5", "optLabelNo"}, false);
        Press("optTicYes");
    });
    for (int tic = 0; tic <= 3; ++tic) {
        EXPECT_EQ(Design.StandardTicYN[1][tic], "Y");
    }
}

TEST_F(SelectTicsTest, RowsAreChosenByKeysToo) {
    OnForm([this](QWidget&) {
        List().setFocus();
        QTest::keyClick(&List(), Qt::Key_End);
        EXPECT_EQ(TextOf("lblData2"), "Ticmark #: 50");
        QTest::keyClick(&List(), Qt::Key_Up);
        EXPECT_EQ(TextOf("lblData2"), "Ticmark #: 49");
        EXPECT_EQ(Design.TicLoop, 49);
    });
}

TEST_F(SelectTicsTest, LeavingWithoutAcceptKeepsTheDeletion) {
    OpenPage("frmScales");
    const Strings before = ShownPlate();
    OnFormAbove([this](QWidget&) {
        ChooseRow(5);
        Press("optTicNo");
        ChooseRow(10);
        Press("optLabelNo");
    });
    EXPECT_EQ(Design.StandardTicYN[1][5], "N");
    EXPECT_EQ(Design.DeletedTicCount[1], 1);
    EXPECT_EQ(Design.DeletedTics[1][1], 5);
    EXPECT_EQ(Design.DeletedLabelCount[1], 1);
    EXPECT_EQ(Design.DeletedLabels[1][1], 10);
    EXPECT_EQ(ShownPlate(), before) << "the page below does not redraw on return";
    Type("txtScaleTitle", "next");
    const Strings after = ShownPlate();
    const auto lines = [](const Strings& calls) {
        return std::count_if(calls.begin(), calls.end(),
                             [](const std::string& call) { return call.starts_with("Line "); });
    };
    EXPECT_EQ(lines(after), lines(before) - 1) << "a tic less";
    OnFormAbove([this](QWidget&) {
        EXPECT_EQ(RowText(5), "Scale 1   5         N                   Y         ");
        EXPECT_EQ(RowText(10), "Scale 1   10        Y         10        N         ");
    });
}

TEST_F(SelectTicsTest, NegativeColourEditsTheSpecialTables) {
    Design.SpecialNrOfTicmarks[1] = 8;
    Design.TicLabelText[1][3] = "dB";
    OpenPage("frmScales");
    Design.ScaleColor[1] = -1;
    OnFormAbove([this](QWidget&) {
        EXPECT_EQ(List().count(), 9);
        EXPECT_EQ(RowText(3), "Scale 1   3         Y         dB        Y         ");
        ChooseRow(3);
        Press("optTicNo");
        Press("optLabelNo");
        EXPECT_EQ(Design.TicPrintYN[1][3], "N");
        EXPECT_EQ(Design.TicLabelYN[1][3], "N");
        Design.StandardTicYN[1][3] = Design.StandardLabelYN[1][3] = "standard";
        Press("optTicYes");
        Press("optLabelYes");
        EXPECT_EQ(Design.TicPrintYN[1][3], "Y");
        EXPECT_EQ(Design.TicLabelYN[1][3], "Y");
        EXPECT_EQ(Design.StandardTicYN[1][3], "standard");
        EXPECT_EQ(Design.StandardLabelYN[1][3], "standard");
        Design.StandardTicYN[1][3] = Design.StandardLabelYN[1][3] = "Y";
        EXPECT_EQ(Design.StandardTicYN[1][3], "Y");
        EXPECT_EQ(Design.StandardLabelYN[1][3], "Y");
    });
}

TEST_F(SelectTicsTest, EveryScaleIsListed) {
    OpenPage("frmScales");
    Design.NumberOfScales = 2;
    Design.NrOfTicmarks[1] = Design.NrOfTicmarks[2] = 360;
    OnFormAbove([this](QWidget&) {
        EXPECT_EQ(List().count(), 722);
        ChooseRow(361 + 42);
        EXPECT_EQ(TextOf("lblData1"), "Scale number: 2");
        EXPECT_EQ(TextOf("lblData2"), "Ticmark #: 42");
        Press("optTicNo");
        EXPECT_EQ(Design.StandardTicYN[2][42], "N");
    });
}

TEST_F(SelectTicsTest, FourFullScalesFitAndFiveAreARunTimeError) {
    OpenPage("frmScales");
    Design.NumberOfScales = 4;
    for (int scale = 1; scale <= 5; ++scale) {
        Design.NrOfTicmarks[scale] = 360;
    }
    OnFormAbove([this](QWidget&) { EXPECT_EQ(List().count(), 1444); });
    Design.NumberOfScales = 5;
    EXPECT_THROW(Click("cmdSelectTics"), RunTimeError);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

// The list of deletions has 360 places.
TEST_F(SelectTicsTest, OneDeletionTooManyIsARunTimeError) {
    OpenPage("frmScales");
    Design.NrOfTicmarks[1] = 360;
    for (int tic = 0; tic <= 359; ++tic) {
        Design.StandardTicYN[1][tic] = "N";
    }
    OnFormAbove([](QWidget&) {});
    EXPECT_EQ(Design.DeletedTicCount[1], 360);
    Design.StandardTicYN[1][360] = "N";
    const std::unique_ptr<QWidget> form = MakeForm("frmSelectTics");
    form->show();
    EXPECT_THROW(Click(On<QPushButton>(*form, "cmdExit")), RunTimeError);
}

TEST_F(SelectTicsTest, AUsersClickCountsAlsoOnWhatIsSelected) {
    OnForm([this](QWidget&) {
        ChooseRow(10);
        Press("cmdAccept");
        ChooseRow(20);
        EXPECT_EQ(State(), "row chosen");
        Press("optTicYes");
        EXPECT_EQ(State(), "flag changed");
        EXPECT_EQ(Design.StandardTicYN[1][20], "Y");
    });
}

// The rows only look old until they are accepted: an old one that is chosen anew selects what it
// says, and so can take a deletion back.
TEST_F(SelectTicsTest, OldRowsSelectWhatTheySay) {
    OnForm([this](QWidget&) {
        ChooseRow(20);
        Press("optTicNo");
        EXPECT_EQ(Design.StandardTicYN[1][20], "N");
        ChooseRow(20);
        EXPECT_TRUE(IsChecked("optTicYes"));
        EXPECT_EQ(Design.StandardTicYN[1][20], "Y");
    });
}

TEST_F(SelectTicsTest, LongLabelsHideEitherFlag) {
    OpenPage("frmScales");
    Design.StandardLabel[1][10] = "12345678901";
    Design.StandardLabelYN[1][10] = "N";
    OnFormAbove([this](QWidget&) {
        ChooseRow(10);
        EXPECT_TRUE(IsChecked("optLabelNo"));
        EXPECT_EQ(Design.StandardLabelYN[1][10], "N");
    });
}

// The lists of deletions are the button's work; the flags stand all the same.
TEST_F(SelectTicsTest, CloseBoxAndEscapeCollectNothing) {
    for (const bool escape : {true, false}) {
        OpenPage("frmScales");
        OnFormAbove([&](QWidget& form) {
            ChooseRow(5);
            Press("optTicNo");
            if (escape) {
                QTest::keyClick(&form, Qt::Key_Escape);
            } else {
                CloseByUser(form);
            }
        });
        EXPECT_EQ(Design.StandardTicYN[1][5], "N");
        EXPECT_EQ(Design.DeletedTicCount[1], 0);
        EXPECT_FALSE(TakeProcessEnd());
    }
}

TEST_F(SelectTicsTest, TabFollowsReadingOrder) {
    OnForm([this](QWidget& form) {
        ChooseRow(10);
        ExpectTabOrder(form, "lstTicsData optTicYes optLabelYes cmdAccept cmdExit");
    });
}

} // namespace
} // namespace vernacle::test
