// The design pages' own entries with everything in service.
#include <cmath>
#include <tuple>
#include <utility>

#include <QComboBox>
#include <QFileDialog>
#include <QListWidget>

#include "engine/core/recordfields.h"
#include "engine/core/service.h"
#include "support/formtest.h"

namespace vernacle::test {
namespace {

class WorkshopPagesTest : public FormTest {
protected:
    WorkshopPagesTest() {
        StoreService(Program::Workshop);
        ResetDesign(Design);
    }
};

TEST_F(WorkshopPagesTest, WidthsAreHeldToATwentiethOfAMillimetreAndMore) {
    const std::pair<const char*, float DesignRecord::*> rows[] = {
        {"MinorTicWidth", &DesignRecord::MinorTicWidth},
        {"MajorTicWidth", &DesignRecord::MajorTicWidth},
        {"ArcWidth", &DesignRecord::ArcWidth}};
    OpenPage("frmPlate");
    for (const auto& [stem, field] : rows) {
        SCOPED_TRACE(stem);
        const std::string box = std::string("txt") + stem;
        const std::string arrows = std::string("UpDown") + stem;
        EXPECT_EQ(Box(box).toolTip().toStdString(), "0.5 to 20 tenths of mm");
        Type(box, "0.7");
        EXPECT_EQ(Design.*field, 0.7F);
        Type(box, "0.2");
        EXPECT_EQ(Design.*field, 0.5F);
        StepUp(arrows);
        EXPECT_EQ(Design.*field, 1) << "from what is kept";
        Type(box, "30");
        EXPECT_EQ(Design.*field, 20);
        StepDown(arrows);
        EXPECT_EQ(Design.*field, 19.5F);
        Type(box, "12");
        StepUp(arrows);
        EXPECT_EQ(Design.*field, 12.5F);
    }
}

TEST_F(WorkshopPagesTest, AQuadrantPlatesBearingCanLeaveTheMiddle) {
    OpenPage("frmPlate");
    ExpectEnabled({"txtLeftToBearing", "UpDownLeftToBearing", "lblLeftToBearing"}, false);
    EXPECT_EQ(Box("txtLeftToBearing").placeholderText(), QLatin1String("middle"));
    Click("optDINquad");
    ExpectEnabled({"txtLeftToBearing", "UpDownLeftToBearing", "lblLeftToBearing"}, true);
    EXPECT_EQ(TextOf("txtLeftToBearing"), "");
    EXPECT_EQ(Design.LeftToBearing, -1);
    for (const auto& [typed, kept] : {std::pair("6.5", 6.5F), {"-4", 0.F}, {"200", 180.F}}) {
        Type("txtLeftToBearing", typed);
        EXPECT_EQ(Design.LeftToBearing, kept) << typed;
    }
    Type("txtLeftToBearing", "7");
    StepUp("UpDownLeftToBearing");
    OpenPage("frmPreview");
    OpenPage("frmPlate");
    EXPECT_EQ(TextOf("txtLeftToBearing"), " 8");
    Type("txtLeftToBearing", "");
    EXPECT_EQ(Design.LeftToBearing, -1);
    Type("txtLeftToBearing", "9");
    Click("optNormal");
    ExpectEnabled({"txtLeftToBearing"}, false);
    EXPECT_EQ(Design.LeftToBearing, 9) << "for when it is one again";
}

TEST_F(WorkshopPagesTest, LabelsTurnWithTheRadiusToo) {
    OpenPage("frmPlate");
    Click("optLabelRotationRadius");
    EXPECT_EQ(Design.LabelRotation, "V");
    OpenPage("frmPreview");
    OpenPage("frmPlate");
    EXPECT_EQ(Design.LabelRotation, "V");
    ExpectSelected({"optLabelRotationRadius"}, true);
    ExpectEnabled({"optLabelRotationRadius"}, true);
    Click("optLabelRotationBearing");
    ExpectSelected({"optLabelRotationRadius"}, false);
    StoreService(Program::Everyday);
    OpenPage("frmPreview");
    OpenPage("frmPlate");
    EXPECT_FALSE(Page().findChild<QWidget*>(QStringLiteral("optLabelRotationRadius")));
    EXPECT_FALSE(Page().findChild<QWidget*>(QStringLiteral("txtLeftToBearing")));
}

TEST_F(WorkshopPagesTest, WhatIsKeptStandsBesideWhatIsTyped) {
    struct Row {
        const char* page;
        const char* box;
        const char* typed;
        const char* kept;
    };
    const Row rows[] = {
        {"frmPlate", "txtPlateWidth", "200", "180"},
        {"frmPlate", "txtPlateWidth", "1,5", "20"},
        {"frmPlate", "txtPlateHeight", "62,5", ""},
        {"frmPlate", "txtFontSize", "eight", "2"},
        {"frmScales", "txtNumberOfTics", "7.4", "7"},
        {"frmScales", "txtLinearityExponent", "0", "1"},
        {"frmScales", "txtLinearityExponent", "5", "4"},
        {"frmScales", "txtScaleLeftEnd", "123456789012", "1.234568E+09"}, // ten are read
        {"frmScales", "txtOffset", "", "0"},
        {"frmScales", "txtOffset", "12", ""},
        {"frmText", "txtLeftToText", "-200", "-100"},
        {"frmText", "txtRelSize", "3", "2"},
        {"frmGraphic", "txtGraphicWidth", "500", "180"},
        {"frmGraphic", "txtGraphicHeight", "10,5", ""},
        {"frmHighlights", "txtStart1", "half", "0"},
        {"frmHighlights", "txtStop1", "12,5", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.box) + " " + row.typed);
        OpenPage(row.page);
        const EntryBox& box = Box(row.box);
        EXPECT_EQ(box.Kept(), "");
        Type(row.box, row.typed);
        EXPECT_EQ(box.Text(), row.typed) << "nothing is rewritten while it is typed";
        EXPECT_EQ(box.Kept(), row.kept);
        const std::string told = box.accessibleDescription().toStdString();
        EXPECT_EQ(told.ends_with(std::string("kept as ") + row.kept), *row.kept != '\0') << told;
    }
}

TEST_F(WorkshopPagesTest, AHighlightGoesFromTicToTic) {
    Design.NumberOfScales = 2;
    Design.ScaleColor[2] = -1;
    Design.SpecialNrOfTicmarks[2] = 3;
    const std::pair<float, const char*> tics[] = {
        {0, "-20"}, {0.3333333F, ""}, {0.7071068F, "0"}, {1, "3"}};
    for (int tic = 0; tic <= 3; ++tic) {
        std::tie(Design.TicDeflection[2][tic], Design.TicLabelText[2][tic]) = tics[tic];
    }
    const auto choose = [this](const char* choice, int index) {
        auto& box = Find<QComboBox>(choice);
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_Home);
        for (int step = 0; step < index; ++step) {
            QTest::keyClick(&box, Qt::Key_Down);
        }
        return box.currentText().toStdString();
    };
    Design.ActiveScale = 1;
    OpenPage("frmHighlights");
    EXPECT_EQ(Shown("lblTics"), "By the tics of scale 1:");
    EXPECT_EQ(Find<QComboBox>("cboFromTic").count(), 51);
    EXPECT_EQ(choose("cboFromTic", 10), "Tic 10 (10): 20 %");
    EXPECT_EQ(choose("cboToTic", 31), "Tic 31: 62 %");
    EXPECT_EQ(TextOf("txtStart1") + " " + TextOf("txtStop1"), "20 62");
    EXPECT_EQ(Design.HighlightStart[1], 20);
    EXPECT_EQ(Design.HighlightStop[1], 62);
    Type("txtStop1", "61");
    EXPECT_EQ(Find<QComboBox>("cboToTic").currentIndex(), -1) << "there is no such tic";
    Type("txtStop1", "64");
    EXPECT_EQ(Find<QComboBox>("cboToTic").currentIndex(), 32);
    Click("Option2");
    EXPECT_EQ(Find<QComboBox>("cboToTic").currentIndex(), 0) << "another highlight";

    Design.ActiveScale = 2;
    OpenPage("frmPreview");
    OpenPage("frmHighlights");
    EXPECT_EQ(Find<QComboBox>("cboFromTic").currentIndex(), -1) << "20 % is no tic of this scale";
    EXPECT_EQ(choose("cboFromTic", 2), "Tic 2 (0): 70.711 %");
    EXPECT_EQ(choose("cboToTic", 3), "Tic 3 (3): 100 %");
    EXPECT_EQ(Design.HighlightStart[1], static_cast<float>(double{0.7071068F} * 100))
        << "to the last bit";
    EXPECT_EQ(Design.HighlightStop[1], 100);
    Type("txtCeiling1", "30");
    Type("txtLength1", "2");
    EXPECT_EQ(Recorded(Picture("picPlate")).Count("FillArea"), 1U);
}

TEST_F(WorkshopPagesTest, ScalesHaveTheirPlaceIllustrated) {
    const std::pair<const char*, int> rows[] = {{"cmdBottomToScaleCeiling", 24},
                                                {"cmdBottomToTitle", 23},
                                                {"cmdRelFontsize", 15},
                                                {"cmdOffset", 7}};
    OpenPage("frmScales");
    for (const auto& [button, topic] : rows) {
        ClickAndAnswer(button, [](QWidget& form) {
            EXPECT_EQ(form.objectName(), QLatin1String("frmHelp"));
            form.close();
        });
        EXPECT_EQ(Design.HelpTopic, topic) << button;
    }
    StoreService(Program::Everyday);
    OpenPage("frmPreview");
    OpenPage("frmScales");
    for (const auto& [button, topic] : rows) {
        EXPECT_FALSE(Page().findChild<QWidget*>(QLatin1String(button))) << topic;
    }
}

TEST_F(WorkshopPagesTest, ANewScaleIsSeen) {
    OpenPage("frmPlate");
    Click("Option2");
    EXPECT_LT(Design.BottomToScaleCeiling[2], Design.BottomToScaleCeiling[1]);
    EXPECT_LT(Design.BottomToTitle[2], Design.BottomToTitle[1]);
    OpenPage("frmScales");
    Click("Option2");
    Type("txtBottomToScaleCeiling", "20");
    OpenPage("frmPlate");
    Click("Option1");
    Click("Option3");
    EXPECT_EQ(Design.BottomToScaleCeiling[2], 20) << "what was entered stays";
}

TEST_F(WorkshopPagesTest, SingleTicsOfSixFullScalesAreTakenOut) {
    Design.NumberOfScales = 6;
    for (int scale = 1; scale <= 6; ++scale) {
        Design.NrOfTicmarks[scale] = 360;
    }
    OpenPage("frmScales");
    ClickAndAnswer("cmdSelectTics", [this](QWidget& form) {
        auto& list = On<QListWidget>(form, "lstTicsData");
        EXPECT_EQ(list.count(), 6 * 361);
        for (const int row : {0, 5 * 361 - 1, 6 * 361 - 1}) {
            list.scrollToItem(list.item(row));
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                              list.visualItemRect(list.item(row)).center());
            Click(On<QWidget>(form, "optTicNo"));
            Click(On<QWidget>(form, "cmdAccept"));
        }
        Click(On<QWidget>(form, "cmdExit"));
    });
    EXPECT_EQ(Design.StandardTicYN[1][0] + Design.StandardTicYN[5][360] +
                  Design.StandardTicYN[6][360] + Design.StandardTicYN[6][359],
              "NNNY");
    EXPECT_EQ(Design.DeletedTicCount[6], 1);
    EXPECT_EQ(Design.DeletedTics[6][1], 360);
}

TEST_F(WorkshopPagesTest, TheGraphicsDialogShowsPngs) {
    OpenPage("frmGraphic");
    QImage(4, 4, QImage::Format_RGB32).save(QString::fromStdString(Path("mark.png")));
    ClickAndAnswer("cmdGetGraphic", [](QWidget& dialog) {
        EXPECT_TRUE(dynamic_cast<QFileDialog&>(dialog).nameFilters().join(QString()).contains(
            QLatin1String("*.PNG")));
        Cancel(dialog);
    });
}

// A visit of every page changes nothing: its boxes show fewer digits than a number has.
TEST_F(WorkshopPagesTest, PagesKeepNumbersToTheLastBit) {
    Design.NumberOfScales = 3;
    Design.LeftToBearing = 7;
    Design.GraphicWidth = Design.GraphicHeight = Design.BottomToGraphic = 11;
    for (const RecordField& field : RecordFields()) {
        if (field.role == FieldRole::Kept && field.name != std::string_view("CorrectionSlope")) {
            ForEachEntry(field, [&](int outer, int inner) {
                const FieldPointer place = field.place.In(Design, outer, inner);
                if (auto* const* number = std::get_if<float*>(&place)) {
                    **number = std::nextafter(**number, 1000.F);
                }
            });
        }
    }
    const DesignRecord before = Design;
    for (const char* page : {"frmPlate", "frmScales", "frmText", "frmGraphic", "frmHighlights"}) {
        OpenPage(page);
        for (const char* option : {"Option2", "Option3", "Option1"}) {
            if (page == std::string_view("frmPlate")) {
                continue; // there they are counts
            }
            if (auto* button = Page().findChild<OptionButton*>(QLatin1String(option))) {
                button->Select();
            }
        }
        ClickAndSettle("Preview");
    }
    for (const RecordField& field : RecordFields()) {
        if (field.role != FieldRole::Kept) {
            continue;
        }
        ForEachEntry(field, [&](int outer, int inner) {
            EXPECT_TRUE(SameValue(field.place.In(std::as_const(Design), outer, inner),
                                  field.place.In(before, outer, inner)))
                << EntryName(field, outer, inner);
        });
    }
}

} // namespace
} // namespace vernacle::test
