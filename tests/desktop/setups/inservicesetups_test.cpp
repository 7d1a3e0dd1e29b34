// The setups where special scales are in service: what they warn of, refuse, keep and give back.
#include <cmath>
#include <memory>

#include "desktop/setups/setuptest.h"

#include "engine/core/recordfields.h"
#include "engine/core/service.h"
#include "engine/scale/scale.h"

namespace vernacle::test {
namespace {

// The fields of a design in which two differ, but for what pages share while they work.
Strings Differences(const DesignRecord& a, const DesignRecord& b) {
    Strings names;
    for (const RecordField& field : RecordFields()) {
        const bool isDesign =
            field.role == FieldRole::Kept || field.name == std::string("DesignFileName");
        ForEachEntry(field, [&](int outer, int inner) {
            if (isDesign &&
                !SameValue(field.place.In(a, outer, inner), field.place.In(b, outer, inner))) {
                names.push_back(EntryName(field, outer, inner));
            }
        });
    }
    return names;
}

struct InServiceRow {
    const char* button;
    const char* page;
    const char* maker;
    const char* ignore = "cmdIgnore";
    const char* option = nullptr; // that makes its tics
};

constexpr InServiceRow kInService[] = {
    {"cmdOhms", "frmSetupOhmmeter", "ohmmeter", "cmdIgnoreAndReturn"},
    {"cmdSpecial", "frmSpecialScale", "arbitrary"},
    {"cmdSmeter", "frmSetupSmeter", "S-meter", "cmdIgnore", "Option2"},
    {"cmdVSWR", "frmSetupVSWR", "VSWR", "cmdIgnore", "Option1"},
    {"cmddB", "frmSetupdB", "dB"},
};

class InServiceTest : public SetupFormTest {
protected:
    InServiceTest() {
        StoreService(Program::Workshop);
        ResetDesign(Design);
        Design.NumberOfScales = 3;
        Design.ActiveScale = 2;
        Design.CurrentScale = 2;
        Design.DesignFileName = "/designs/mine.VRN";
    }

    static std::unique_ptr<DesignRecord> Copy() { return std::make_unique<DesignRecord>(Design); }

    // Makes tics on the page that is shown.
    void MakeTics(const InServiceRow& row) const {
        if (row.option) {
            Type("txtLinearityExponent", "0.7");
            Click(row.option);
        } else if (row.page == std::string("frmSpecialScale")) {
            Paste("txtNrOfTicmarks", "2");
            for (const auto& [tic, deflection] : {std::pair(0, "0"), {1, ".4321"}, {2, "1"}}) {
                Type(RowName("txtDeflection", tic), deflection);
                Type(RowName("txtLabel", tic), std::string("t") + std::to_string(tic));
            }
        } else if (row.page == std::string("frmSetupOhmmeter")) {
            Type("txtEnterMidscale", "7");
            Type("txtEnterResistance", "3");
            Return();
        }
    }

    void Return() const { QTest::keyClick(&Box("txtEnterResistance"), Qt::Key_Return); }

    // An accepted scale 2 of that kind.
    void Make(const InServiceRow& row) {
        OpenSetup(row.page, 2);
        MakeTics(row);
        ClickAndSettle("cmdAccept");
        ASSERT_EQ(PageName(), "frmScales");
    }

    // A button that says why nothing comes of it, and nothing does.
    void ExpectRefused(const char* button, const char* why) {
        const auto before = Copy();
        const std::string page = PageName();
        said.clear();
        ClickAndSettle(button);
        ASSERT_EQ(said.size(), 2U) << button;
        EXPECT_EQ(said[0], "beep");
        EXPECT_NE(said[1].find(why), std::string::npos) << said[1];
        EXPECT_EQ(PageName(), page);
        EXPECT_EQ(Differences(Design, *before), Strings());
    }
};

class EachInServiceTest : public InServiceTest, public ::testing::WithParamInterface<InServiceRow> {
protected:
    const InServiceRow& row = GetParam();
};

INSTANTIATE_TEST_SUITE_P(Setups, EachInServiceTest, ::testing::ValuesIn(kInService),
                         [](const auto& setup) { return std::string(setup.param.page); });

TEST_P(EachInServiceTest, AcceptKeepsMarkNameAndOtherScales) {
    Design.ScaleColor[2] = 0x804020;
    Design.LinearityExponent[2] = 0.5F;
    Design.ScaleColor[3] = -7;
    for (const int other : {1, 3}) {
        SpoilTables(other);
    }
    const auto before = Copy();
    Make(row);
    EXPECT_EQ(Design.ScaleColor[2], -0x804020);
    EXPECT_EQ(Design.ScaleSetup[2], row.maker);
    EXPECT_EQ(Design.LinearityExponent[2], 0.5F) << "the standard law's";
    EXPECT_EQ(Design.DesignFileName, "/designs/mine.VRN");
    EXPECT_FALSE(Exists("Backup.DAT"));
    for (const std::string& name : Differences(Design, *before)) {
        EXPECT_NE(name.find("[2"), std::string::npos) << name;
    }
    EXPECT_TRUE(IsSelected("Option2")) << "the scales page";
    EXPECT_TRUE(IsShown("lblSpecialScale"));
    const Strings texts = TextsOf("picPlate");
    for (int tic = 0; tic <= Design.SpecialNrOfTicmarks[2]; ++tic) {
        if (Design.TicPrintYN[2][tic] == "Y" && Design.TicLabelYN[2][tic] == "Y") {
            EXPECT_GT(std::ranges::count(texts, Design.TicLabelText[2][tic]), 0) << tic;
        }
    }
}

TEST_P(EachInServiceTest, IgnorePutsBackTheWholeDesign) {
    Make(row);
    Design.CorrectionPair[4] = 0.2F;
    Design.TicDeflection[2][1] = 0.123456789F;
    const auto before = Copy();
    OpenSetup(row.page, 2);
    MakeTics(row);
    Design.PlateWidth = 99;
    ClickAndSettle(row.ignore);
    EXPECT_EQ(PageName(), "frmScales");
    EXPECT_EQ(Differences(Design, *before), Strings());
    EXPECT_FALSE(Exists("Backup.DAT"));
    EXPECT_TRUE(said.empty());
}

// With deflections that no ten characters can say, and answers that no page gives.
TEST_P(EachInServiceTest, AScaleIsReadBackToTheLastBit) {
    Make(row);
    const int last = Design.SpecialNrOfTicmarks[2];
    for (int tic = 0; tic < last; ++tic) {
        Design.TicDeflection[2][tic] = 0.0333333351F + 0.001F * static_cast<float>(tic);
    }
    Design.TicPrintYN[2][1] = "y";
    Design.TicLabelText[2][0] = "/";
    Design.SpecialExponent[2] = 0.123456791F;
    for (const bool isMarked : {true, false}) {
        Design.ScaleColor[2] = isMarked ? -5 : 5;
        const auto before = Copy();
        OpenSetup(row.page, 2);
        EXPECT_EQ(Differences(Design, *before), Strings()) << "opening computes nothing";
        ClickAndSettle("cmdAccept");
        ASSERT_EQ(PageName(), "frmScales");
        EXPECT_EQ(Design.ScaleColor[2], -5);
        Design.ScaleColor[2] = before->ScaleColor[2];
        EXPECT_EQ(Differences(Design, *before), Strings());
    }
}

TEST_P(EachInServiceTest, AnotherKindsScaleIsAskedFor) {
    for (const InServiceRow& other : kInService) {
        Make(other);
        Click("cmdRevertToStandard"); // its tics are still there
        EXPECT_EQ(Design.ScaleSetup[2], other.maker);
        const auto before = Copy();
        ClickAndSettle("cmddBsetup");
        if (other.maker == std::string(row.maker)) {
            ClickAndSettle(row.button);
            EXPECT_EQ(PageName(), row.page) << "its own";
            continue;
        }
        const auto answer = [&](QMessageBox::StandardButton button) {
            return [&, button](QWidget& box) {
                EXPECT_EQ(box.objectName(), QLatin1String("boxContinue"));
                const QString text = dynamic_cast<QMessageBox&>(box).text();
                EXPECT_TRUE(text.contains(QString::fromUtf8(other.maker))) << text.toStdString();
                Press(button)(box);
            };
        };
        ClickAndAnswer(row.button, answer(QMessageBox::Cancel));
        EXPECT_EQ(PageName(), "frmSetupMenu");
        EXPECT_EQ(Differences(Design, *before), Strings());
        ClickAndAnswer(row.button, answer(QMessageBox::Ok));
        EXPECT_EQ(PageName(), row.page);
        ClickAndSettle(row.ignore);
        EXPECT_EQ(Differences(Design, *before), Strings());
    }
}

TEST_P(EachInServiceTest, TheCloseBoxKeepsTheSession) {
    OpenSetup(row.page, 2);
    MakeTics(row);
    Answer([](QWidget& form) { // no file holds them
        Click(*form.findChild<QWidget*>(QStringLiteral("cmdExit")));
    });
    CloseByUser(Page());
    EXPECT_TRUE(AllAnswered());
    EXPECT_TRUE(TakeProcessEnd());
    EXPECT_TRUE(Exists("LASTWORKSHOP.VRN"));
    EXPECT_FALSE(Exists("Backup.DAT"));
}

class OptionInServiceTest : public EachInServiceTest {};

INSTANTIATE_TEST_SUITE_P(Setups, OptionInServiceTest,
                         ::testing::Values(kInService[2], kInService[3]),
                         [](const auto& setup) { return std::string(setup.param.page); });

TEST_P(OptionInServiceTest, TicsFollowTheExponent) {
    OpenSetup(row.page, 2);
    ExpectRefused("cmdAccept", "choose");
    EXPECT_TRUE(IsEnabled("cmdIgnore"));
    Click(row.option);
    const float linear = Design.TicDeflection[2][1];
    Type("txtLinearityExponent", "2");
    EXPECT_TRUE(IsSelected(row.option));
    EXPECT_FLOAT_EQ(Design.TicDeflection[2][1], linear * linear);
    said.clear();
    Type("txtLinearityExponent", "-1");
    EXPECT_TRUE(said.empty()) << "what is being typed is let alone";
    ExpectRefused("cmdAccept", "exponent");
    Type("txtLinearityExponent", "0");
    ExpectRefused(row.option, "exponent");
    EXPECT_FLOAT_EQ(Design.TicDeflection[2][1], linear * linear);
    Type("txtLinearityExponent", "9");
    Box("txtLinearityExponent").FinishTyping();
    EXPECT_EQ(TextOf("txtLinearityExponent"), "4");
    EXPECT_EQ(Design.SpecialExponent[2], 4);
    const QPointer<QWidget> page = &Page();
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(PageName(), "frmScales");
    EXPECT_TRUE(page.isNull()) << "no page stays behind";
    OpenSetup(row.page, 2);
    EXPECT_TRUE(IsSelected(row.option));
    EXPECT_EQ(TextOf("txtLinearityExponent"), "4");
    EXPECT_FALSE(CallsOf("picPlate").empty());
}

class DecibelInServiceTest : public InServiceTest {};

TEST_F(DecibelInServiceTest, FineStepsHaveAsManyRows) {
    OpenSetup("frmSetupdB", 2);
    EXPECT_EQ(TextOf("txtStep"), "1");
    Type("txtFullScaledB", "3");
    Type("txtStep", "0,1");
    Type("txtNrOfTicmarks", "231");
    Click("cmdEnter");
    EXPECT_EQ(TextOf("txtStep"), ".1");
    ExpectShown({{"Value0", "+3"},
                 {"Value1", "+2.9"},
                 {"Value30", "0"},
                 {"Value230", "-20"},
                 {"Tic231", "(bottom)"}});
    EXPECT_TRUE(IsShown("Value230"));
    EXPECT_EQ(Design.TicPrintYN[2][230], "Y");
    Type("txtNrOfTicmarks", "5");
    Click("cmdEnter");
    EXPECT_FALSE(IsShown("Value6"));
    EXPECT_FALSE(IsShown("Value230"));
    Type("txtNrOfTicmarks", "999");
    Click("cmdEnter");
    EXPECT_EQ(TextOf("txtNrOfTicmarks"), "360");
}

TEST_F(DecibelInServiceTest, LabelsAndMajorTicsAreSpread) {
    OpenSetup("frmSetupdB", 2);
    Type("txtFullScaledB", "3");
    Type("txtNrOfTicmarks", "24");
    Type("txtEveryHowMany", "5");
    Click("cmdLabelEvery");
    Click("cmdMajorEvery");
    const auto labelled = [] {
        std::string labels;
        for (int tic = 0; tic < Design.SpecialNrOfTicmarks[2]; ++tic) {
            const bool isLabelled = Design.TicLabelYN[2][tic] == "Y";
            EXPECT_TRUE(Design.TicMajorYN[2][tic] == (isLabelled ? "Y" : "N") || tic % 5 != 3);
            labels += isLabelled ? Design.TicLabelText[2][tic] + " " : "";
        }
        return labels;
    };
    EXPECT_EQ(labelled(), "0 -5 -10 -15 -20 ") << "counted from 0 dB";
    Click("cmdLabelAll");
    EXPECT_TRUE(labelled().starts_with("+3 +2 +1 0 -1 "));
    Type("txtEveryHowMany", "0");
    Click("cmdLabelEvery");
    EXPECT_EQ(TextOf("txtEveryHowMany"), "1");
    Type("txtNrOfTicmarks", "0");
    ExpectRefused("cmdLabelAll", "ticmarks");
}

TEST_F(DecibelInServiceTest, AVuScaleIsReadBack) {
    OpenSetup("frmSetupdB", 2);
    Type("txtFullScaledB", "3");
    Type("txtStep", ".5");
    Type("txtNrOfTicmarks", "47");
    Type("txtFullscaleMultiplier", ".95");
    Click("optUnlabelledAtBottomNo");
    Click("optN");
    Click("cmdLabelAll");
    Option("PrintTicNo40").Select();
    Type("txtFullScaledB", "3.5"); // accepted without being entered before
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(Design.TicLabelText[2][0], "3.5");
    OpenSetup("frmSetupdB", 2);
    for (const auto& [box, text] : {std::pair("txtFullScaledB", "3.5"),
                                    {"txtStep", ".5"},
                                    {"txtNrOfTicmarks", "47"},
                                    {"txtFullscaleMultiplier", ".95"}}) {
        EXPECT_EQ(TextOf(box), text) << box;
    }
    ExpectSelected({"optUnlabelledAtBottomNo", "optN", "PrintTicNo40", "PrintLabelYes3"}, true);
    EXPECT_EQ(Shown("DeflectLabel46"), ".06725485"); // .95 x 10 ^ (-23 / 20)
    EXPECT_FALSE(IsShown("PrintTicYes47")) << "no bottom tic";
    Type("txtNrOfTicmarks", "49");
    Click("cmdEnter");
    EXPECT_EQ(Design.TicPrintYN[2][47], "Y") << "what a scale gains is printed";
    EXPECT_EQ(Design.TicPrintYN[2][48], "Y");
    EXPECT_EQ(Design.TicPrintYN[2][40], "N");
    Click("optUnlabelledAtBottomYes");
    Click("cmdEnter");
    EXPECT_TRUE(IsShown("PrintTicYes49"));
}

// As a file may bring them.
TEST_F(DecibelInServiceTest, CountsBeyondTheTablesAreHeld) {
    for (const InServiceRow& row : kInService) {
        for (const int count : {-1, 0, kLastTic}) {
            Design.ScaleColor[2] = -5;
            Design.ScaleSetup[2].clear();
            Design.SpecialNrOfTicmarks[2] = static_cast<std::int16_t>(count);
            OpenSetup(row.page, 2);
            EXPECT_EQ(PageName(), row.page);
            ClickAndSettle("cmdAccept");
            EXPECT_LE(Design.SpecialNrOfTicmarks[2], kLastTic);
        }
    }
    Design.ScaleSetup[2].clear();
    Design.SpecialNrOfTicmarks[2] = -1;
    Design.FullscaleMultiplier[2] = 7;
    const auto before = Copy();
    OpenSetup("frmSetupdB", 2);
    EXPECT_EQ(Differences(Design, *before), Strings()) << "until something is entered";
    Click("cmdEnter");
    EXPECT_EQ(TextOf("txtNrOfTicmarks"), "1");
}

TEST_F(DecibelInServiceTest, ALawThatIsNoneIsRefused) {
    OpenSetup("frmSetupdB", 2);
    for (const char* exponent : {"0", "-2"}) {
        Type("txtLinearityExponent", exponent);
        for (const char* button : {"cmdEnter", "cmdPreview", "cmdAccept", "cmdLabelAll"}) {
            ExpectRefused(button, "exponent");
        }
    }
    Type("txtLinearityExponent", "1");
    Click("cmdEnter");
    EXPECT_EQ(Design.SpecialExponent[2], 1);
}

class OhmInServiceTest : public InServiceTest {
protected:
    void Enter(const std::string& resistance) const {
        Type("txtEnterResistance", resistance);
        Return();
    }
};

TEST_F(OhmInServiceTest, ReturnComputesAndAdds) {
    OpenSetup("frmSetupOhmmeter", 2);
    EXPECT_EQ(TextOf("txtLabel1"), "\u221E");
    EXPECT_TRUE(IsEnabled("cmdAccept"));
    Type("txtEnterMidscale", "1k");
    QTest::keyClick(&Box("txtEnterMidscale"), Qt::Key_Return);
    EXPECT_TRUE(Box("txtEnterResistance").hasFocus());
    Enter("2k");
    ExpectShown({{"lblDeflection2", ".33333334"}, {"txtLabel2", "2k"}, {"txtEnterResistance", ""}});
    EXPECT_TRUE(IsSelected("Minor2"));
    Return(); // of nothing
    EXPECT_FALSE(IsShown("Tic3"));
    Enter("2.999M");
    ExpectShown({{"lblDeflection3", ".000333333"}});
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(Design.TicDeflection[2][2], 1.F / 3);
    EXPECT_EQ(Design.TicDeflection[2][3], 1.F / 3000) << "not as its text is rounded";
}

TEST_F(OhmInServiceTest, WhatHasNoDeflectionIsRefused) {
    OpenSetup("frmSetupOhmmeter", 2);
    Type("txtEnterMidscale", "0");
    Type("txtEnterResistance", "5");
    ExpectRefused("cmdComputeDeflection", "midscale");
    said.clear();
    Return();
    EXPECT_EQ(said.size(), 2U);
    EXPECT_FALSE(IsShown("Tic2"));
    EXPECT_EQ(TextOf("txtEnterResistance"), "5");
    Type("txtEnterMidscale", "10");
    Type("txtEnterResistance", "x");
    ExpectRefused("cmdComputeDeflection", "no resistance");
    Click("Tic1");
    Click("Tic0");
    ExpectRefused("cmdAccept", "empty");
    ExpectRefused("cmdPreview", "empty");
}

TEST_F(OhmInServiceTest, RowsKeepTheirTicsWhenOthersGo) {
    Make(kInService[0]);
    Design.TicDeflection[2][2] = 0.0333333351F;
    OpenSetup("frmSetupOhmmeter", 2);
    EXPECT_EQ(Shown("lblDeflection2"), ".033333335");
    Click("Tic0");
    Type("txtLabel1", "three");
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(Design.SpecialNrOfTicmarks[2], 1);
    EXPECT_EQ(Design.TicDeflection[2][1], 0.0333333351F);
    EXPECT_EQ(TicInWords(2, 1), "[three] print label");
}

class ArbitraryInServiceTest : public InServiceTest {};

TEST_F(ArbitraryInServiceTest, ARowWithoutADeflectionIsRefused) {
    OpenSetup("frmSpecialScale", 2);
    ExpectRefused("cmdAccept", "Tic 0 has no deflection");
    MakeTics(kInService[1]);
    Type("txtDeflection1", "half");
    ExpectRefused("cmdAccept", "Tic 1 has no deflection");
    ExpectRefused("cmdPreview", "Tic 1 has no deflection");
    Type("txtDeflection1", "0,123456789");
    EXPECT_EQ(TextOf("txtDeflection1"), "0,12345678") << "what would be passed over is not taken";
    ClickAndSettle("cmdAccept");
    EXPECT_FLOAT_EQ(Design.TicDeflection[2][1], 0.12345678F);
}

TEST_F(ArbitraryInServiceTest, ATouchedLabelLeavesItsDeflection) {
    Make(kInService[1]);
    Design.TicDeflection[2][1] = 0.0333333351F;
    OpenSetup("frmSpecialScale", 2);
    EXPECT_EQ(TextOf("txtDeflection1"), ".033333335");
    Type("txtLabel1", "new");
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(Design.TicDeflection[2][1], 0.0333333351F);
    OpenSetup("frmSpecialScale", 2);
    Type("txtDeflection1", ".03");
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(Design.TicDeflection[2][1], 0.03F);
}

// Beyond its own ends, as a decibel scale with a multiplier may reach.
TEST_F(ArbitraryInServiceTest, AnotherKindsTicsCanBeEdited) {
    OpenSetup("frmSetupdB", 2);
    Type("txtFullscaleMultiplier", "1.1");
    Click("cmdLabelAll");
    ClickAndSettle("cmdAccept");
    OpenSetup("frmSpecialScale", 2);
    ExpectShown({{"txtNrOfTicmarks", "11"}, {"txtDeflection0", "1.1"}, {"txtLabel3", "-3"}});
    Type("txtLabel3", "half power");
    ClickAndSettle("cmdAccept");
    EXPECT_TRUE(said.empty());
    EXPECT_EQ(Design.TicDeflection[2][0], 1.1F);
    EXPECT_EQ(Design.TicLabelText[2][3], "half power");
    EXPECT_EQ(Design.ScaleSetup[2], "arbitrary");
}

TEST_F(InServiceTest, ThePageSaysThatACommaBecomesAPoint) {
    OpenPage("frmSpecialScale");
    EXPECT_EQ(Shown("lblLabelRemark"), "");
    Type("txtLabel0", "2,5");
    EXPECT_EQ(Shown("lblLabelRemark"), "The comma of this label is drawn as a point: 2.5");
    Type("txtLabel0", "25");
    EXPECT_EQ(Shown("lblLabelRemark"), "");
}

TEST_F(InServiceTest, NoLabelTakesTheSeparatorOfAFile) {
    for (const char* page : {"frmSpecialScale", "frmSetupOhmmeter"}) {
        OpenSetup(page, 2);
        said.clear();
        Type("txtLabel1", "a\\b:c");
        EXPECT_EQ(TextOf("txtLabel1"), "ab:c");
        EXPECT_EQ(said, Strings{"beep"});
        Paste("txtLabel1", "d\\e");
        EXPECT_EQ(TextOf("txtLabel1"), "ab:c");
    }
}

} // namespace
} // namespace vernacle::test
