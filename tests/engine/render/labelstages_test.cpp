#include <cmath>
#include <numbers>

#include "support/rendertest.h"

namespace vernacle::test {
namespace {

constexpr double kRightAngle = std::numbers::pi / 2;

enum class Fit { Measured, Sampled };

struct LabelRow {
    const char* name;
    const char* rotation;
    int scale;
    bool special;
    bool quadrant;
    Fit fit;
};

constexpr LabelRow kLabels[] = {
    {"H", "H", 1, false, false, Fit::Measured},
    {"H inward", "H", 2, false, false, Fit::Measured},
    {"H special", "H", 1, true, false, Fit::Measured},
    {"H quadrant", "H", 1, false, true, Fit::Measured},
    {"B", "B", 1, false, false, Fit::Measured},
    {"B inward", "B", 2, false, false, Fit::Measured},
    {"B special", "B", 1, true, false, Fit::Measured},
    {"B special inward", "B", 2, true, false, Fit::Measured},
    {"B quadrant", "B", 3, false, true, Fit::Measured},
    {"V", "V", 1, false, false, Fit::Measured},
    {"V inward special", "V", 2, true, false, Fit::Measured},
    {"V quadrant", "V", 2, false, true, Fit::Measured},
    {"wizard H", "H", 1, false, false, Fit::Sampled},
    {"wizard B", "B", 1, false, false, Fit::Sampled},
    {"wizard V", "V", 1, false, false, Fit::Sampled},
    {"wizard B quadrant", "B", 1, false, true, Fit::Sampled},
};

class LabelStagesTest : public RenderTest {
protected:
    LabelStagesTest() { Design.ScreenScaleX = 2.25F; }

    // The label "12" at a quarter of its scale, drawn in the frame of a page beside the entries.
    void DrawOneLabel(const LabelRow& row) {
        Design.NumberOfScales = static_cast<std::int16_t>(row.scale);
        for (int scale = 1; scale <= row.scale; ++scale) {
            Design.StandardLabelYN[scale][0] = "N"; // but the one
            Design.RelativeFontSize[scale] = 1.5F;
            Design.ScaleColor[scale] = 0x40;
        }
        Design.LabelRotation = row.rotation;
        Design.PlateStyle = row.quadrant ? 1 : 0;
        Design.StandardLabelYN[row.scale][0] = "Y";
        Design.StandardLabel[row.scale][0] = " 12 ";
        Design.StandardDeflection[row.scale][0] = 0.25F;
        if (row.special) {
            GiveSpecialTics(row.scale, 0);
            Design.TicLabelText[row.scale][0] = "12";
            Design.TicDeflection[row.scale][0] = 0.25F;
        }
        DrawingTraits traits = TextTraits();
        if (row.fit == Fit::Sampled) {
            traits.labelFitting = LabelFitting::Sampled;
        }
        DrawStages({FontStage, LabelsStage}, traits);
    }

    // What that label's calls must be: k = 300, A = 0.5, screen factors 2.25 and 0.5.
    static Calls LabelCalls(const LabelRow& row) {
        const double k = 300;
        const double e = 3 * 1.5;
        const Reference at = PageReference();
        const double t = at.T(0.25);
        const double p = at.P(t, 4);
        const double gap = (row.scale % 2 == 0 ? -0.5 : 0.5) * 1.5;
        double ax = at.AlongX(t, 4, gap);
        double ay = at.AlongY(t, 4, gap);
        const bool sampled = row.fit == Fit::Sampled; // by "jjj"
        const double tw = (sampled ? 3 : 2) * 6 * (k * 0.0285 * e * 0.5);
        const double th = 11 * (k * 0.0285 * e * 0.5);
        int escapement = 0;
        if (*row.rotation == 'H') {
            ax -= sampled ? k * 0.014 * 0.5 * 0.5 * 303 * e / 16 : k * 0.0011 * 0.5 * 2.25 * tw * e;
            ay -= sampled ? k * 0.011 * 0.5 * 149 * e / 16 : k * 0.001 * 0.5 * th * e;
        } else if (*row.rotation == 'B') {
            const double size = row.special ? 3 : e;
            const double factor = k * 0.0285 * 0.5 * 0.5 * e / 16;
            const double x = sampled ? factor : k * 0.0011 * 0.5 * 2.25 * size;
            const double y = sampled ? factor : k * 0.001 * 0.5 * size;
            ax -= x * (tw * std::sin(t) + th * std::cos(t));
            ay += y * (tw * std::cos(t) - th * std::sin(t));
            escapement = static_cast<int>(std::lround((kRightAngle - t) * 10 * DegreesInRadian()));
        } else {
            escapement = static_cast<int>(std::lround((kRightAngle - p) * 10 * DegreesInRadian()));
        }
        // 300 x 0.0513 x 4.5 x 0.5 = 34.6; 300 x 0.05 x 0.5 x 4.5 x 0.5 = 16.9;
        // 300 x 0.0198 x 0.5 x 4.5 x 2.25 = 30.1
        return {Call("BeginFont", sampled ? -17 : 35, 30, escapement, "[Arial]"),
                Call("SetCurrentX", ax), Call("SetCurrentY", ay), "PrintText [12]", "EndFont"};
    }
};

TEST_F(LabelStagesTest, LabelsStandByRotationKindAndPage) {
    for (const LabelRow& row : kLabels) {
        SCOPED_TRACE(row.name);
        DrawOneLabel(row);
        EXPECT_TRUE(SameCalls(Tail(surface.calls, 5), LabelCalls(row)));
        EXPECT_EQ(surface.texts.size(), 1U);
        EXPECT_EQ(Drawing.WhereMarker, row.special ? 590 : 549);
    }
}

// As on a screen of 1920 pixels in the real one's shape: what centres a label grows with the square
// of the screen, and the label itself does not.
TEST_F(LabelStagesTest, LargeScreensMoveNoLabelOffItsTic) {
    struct Screens {
        double real[2]; // ScreenScaleX and ScreenScaleY
        double drawn[2];
    };
    const Screens screens[] = {
        {{2.4, 1.8}, {2.4, 1.8}},     // 1920 x 1080
        {{2.4, 2}, {2.4, 2}},         // 1920 x 1200
        {{1.28, 1.28}, {1.28, 1.28}}, // 1024 x 768
        {{3.2, 2.4}, {2.4, 1.8}},     // 2560 x 1440
        {{3.2, 1.8}, {2.4, 1.35}},    // 2560 x 1080
        {{4.8, 3.6}, {2.4, 1.8}},     // 3840 x 2160
    };
    for (const Screens& screen : screens) {
        for (const LabelRow& row : kLabels) {
            SCOPED_TRACE(std::string(row.name) + " at " + std::to_string(screen.real[0]));
            const auto draw = [&](const double* factors) {
                Design.ScreenScaleX = static_cast<float>(factors[0]);
                Design.ScreenScaleY = static_cast<float>(factors[1]);
                DrawOneLabel(row);
                EXPECT_EQ(Design.ScreenScaleX, static_cast<float>(factors[0])) << "kept";
                EXPECT_EQ(Design.ScreenScaleY, static_cast<float>(factors[1])) << "kept";
                return surface.calls;
            };
            EXPECT_TRUE(SameCalls(draw(screen.real), draw(screen.drawn)));
        }
    }
}

struct TurnRow {
    const char* rotation;
    float deflection;
    int escapement;
};

TEST_F(LabelStagesTest, EscapementFollowsThePointerOrTheRadius) {
    // With an offset of 2 mm and a radius of 5, the radius at 45 degrees is turned by
    // asin(0.4 cos 45) = 16.43 degrees.
    const TurnRow rows[] = {
        {"H", 0, 0},   {"B", 0, 450},  {"B", 0.25F, 225}, {"B", 0.5F, 0},    {"B", 1, -450},
        {"V", 0, 286}, {"V", 0.5F, 0}, {"V", 1, -286},    {"V", 0.25F, 137}, {"x", 0, 0},
    };
    for (const TurnRow& row : rows) {
        Design.LabelRotation = row.rotation;
        Design.StandardDeflection[1][0] = row.deflection;
        DrawStages({FontStage, LabelsStage});
        EXPECT_EQ(surface.CallsOf("BeginFont"),
                  (Calls{Call("BeginFont", 25, 21, row.escapement, "[Arial]")}))
            << row.rotation << row.deflection;
    }
}

TEST_F(LabelStagesTest, LabelsAreCorrected) {
    Design.CorrectionSlope.fill(0.5F);
    Design.LabelRotation = "V";
    Design.StandardDeflection[1][0] = 0.1F;
    DrawStages({FontStage, LabelsStage}, TextTraits());
    const Reference at = PageReference();
    EXPECT_TRUE(SameCalls(surface.CallsOf("SetCurrentX"),
                          Calls{Call("SetCurrentX", at.AlongX(at.T(0.05), 4, 0.5))}));
}

TEST_F(LabelStagesTest, OrdinaryFontIsSetBeforeTheRelativeSizeIsRaised) {
    Design.NumberOfScales = 3;
    Design.RelativeFontSize[1] = 0;
    Design.RelativeFontSize[2] = -1;
    Design.RelativeFontSize[3] = 2;
    DrawStages({FontStage, LabelsStage}, TextTraits());
    // 300 x 0.0285 x 3 x 0.5 = 12.825 at size 1
    EXPECT_TRUE(SameCalls(surface.CallsOf("SetFontSize"),
                          "SetFontSize 0\nSetFontSize -12.825\nSetFontSize 25.65\n"));
    EXPECT_EQ(Design.RelativeFontSize[1], 1);
    EXPECT_EQ(Design.RelativeFontSize[2], 1);
    // 300 x 0.0513 x 3 x 0.5 = 23.1, 300 x 0.0198 x 0.5 x 3 x 2.25 = 20.05
    EXPECT_EQ(surface.CallsOf("BeginFont"),
              (Calls{"BeginFont 23 20 0 [Arial]", "BeginFont 23 20 0 [Arial]",
                     "BeginFont 46 40 0 [Arial]"}));
}

TEST_F(LabelStagesTest, ScalesAreWrittenUpwardInTheMagnitudeOfTheirColour) {
    Design.NumberOfScales = 3;
    Design.ScaleColor[1] = 0x111111;
    Design.ScaleColor[2] = 0x222222;
    Design.ScaleColor[3] = 0x333333;
    GiveSpecialTics(2, 0);
    Design.ScaleTitle[2] = "V";
    Design.ScaleTitle[3] = "";
    DrawStages({FontStage, LabelsStage}, TextTraits());
    EXPECT_EQ(surface.texts, (Texts{"7", "s0", "7"}));
    EXPECT_EQ(Design.CurrentScale, 4);
    const Calls colours = {"SetForeColor 111111", "SetForeColor 222222", "SetForeColor 333333"};
    EXPECT_EQ(surface.CallsOf("SetForeColor"), colours);
    DrawStages({TitlesStage}, TextTraits());
    EXPECT_EQ(surface.texts, (Texts{"mA", "V", ""}));
    EXPECT_EQ(surface.CallsOf("SetForeColor"), colours);
    EXPECT_EQ(Design.CurrentScale, 4);
    EXPECT_EQ(Drawing.WhereMarker, 602);
}

TEST_F(LabelStagesTest, NothingIsWrittenWithoutPrintText) {
    for (const char* answer : {"N", "", "y"}) {
        Design.PrintText = answer;
        DrawStages({LabelsStage, TitlesStage});
        EXPECT_TRUE(surface.calls.empty()) << answer;
        EXPECT_EQ(Drawing.WhereMarker, 265);
    }
}

TEST_F(LabelStagesTest, TitlesAreCentredByTheFontThatTheLabelsLeft) {
    Design.NumberOfScales = 2;
    Design.RelativeFontSize[1] = 3;
    Design.RelativeFontSize[2] = 2;
    Design.BottomToTitle[2] = -1;
    Design.ScaleTitle[2] = "Volt";
    DrawStages({FontStage, LabelsStage, TitlesStage}, TextTraits());
    const double size = 300 * 0.0285 * 2 * 3 * 0.5; // of scale 2, for both titles
    const Calls titles = Tail(surface.calls, 12);
    // 300 x 0.05 x 9 x 0.5 = 67.5 and 45; 300 x 0.0198 x 0.5 x 9 x 2.25 = 60.1 and 40.1
    EXPECT_TRUE(SameCalls(titles, Calls{"SetForeColor ff", "BeginFont 68 60 0 [Arial]",
                                        Call("SetCurrentX", 3400 - 0.5 * 0.59 * 2 * 6 * size),
                                        Call("SetCurrentY", 4400 + 300 * (5 - 4)), "PrintText [mA]",
                                        "EndFont", "SetForeColor ff", "BeginFont 45 40 0 [Arial]",
                                        Call("SetCurrentX", 3400 - 0.5 * 0.59 * 4 * 6 * size),
                                        Call("SetCurrentY", 4400 + 300 * (5 + 2)),
                                        "PrintText [Volt]", "EndFont"}));
}

TEST_F(LabelStagesTest, WizardsTitlesHaveTheHeightOfTheirCharacters) {
    DrawingTraits traits = WizardTraits();
    DrawStages({FontStage, LabelsStage, TitlesStage}, traits);
    // 320 x 0.05 x 0.5 x 3 x 0.5 = 12
    EXPECT_EQ(Last(surface.CallsOf("BeginFont")), "BeginFont -12 21 0 [Arial]");
}

TEST_F(LabelStagesTest, QuadrantPlatesPutTitlesByTheScalesNumber) {
    Design.PlateStyle = 1;
    Design.NumberOfScales = 6;
    DrawStages({FontStage, LabelsStage, TitlesStage}, TextTraits());
    const Calls all = surface.CallsOf("SetCurrentX");
    const Calls titles = Tail(all, 6);
    const double centred = 3400 - 0.5 * 0.59 * 2 * 6 * (300 * 0.0285 * 3 * 0.5);
    EXPECT_TRUE(SameCalls(titles, Calls{"SetCurrentX 2200", "SetCurrentX 2800", "SetCurrentX 2800",
                                        "SetCurrentX 3100", Call("SetCurrentX", centred),
                                        Call("SetCurrentX", centred)}));
}

// Keeps the face as BeginFont got it, NUL and all.
class FaceSurface : public RecordingSurface {
public:
    void BeginFont(int height, int width, int escapement, const std::string& face) override {
        faces.push_back(face);
        RecordingSurface::BeginFont(height, width, escapement, face);
    }

    Texts faces;
};

TEST_F(LabelStagesTest, FacesAreTrimmedAndEndWithOneNul) {
    Design.FontName = "  Courier New ";
    FaceSurface faceSurface;
    DrawPage(Design, faceSurface, PreviewTraits(), {3, 1}, Drawing);
    const std::string face("Courier New\0", 12);
    EXPECT_EQ(faceSurface.faces, (Texts{face, face}));
    EXPECT_EQ(Drawing.LabelFontFace, face);
    EXPECT_EQ(FontFace(" Courier New  "), face);
}

TEST_F(LabelStagesTest, FontStageNamesTheOrdinaryFont) {
    Design.FontName = "Courier New";
    DrawStages({FontStage}, WizardTraits());
    EXPECT_EQ(surface.calls, (Calls{"SetFontName [Arial]"})) << "the wizard's own";
    DrawStages({FontStage});
    EXPECT_EQ(surface.calls, (Calls{"SetFontName [Courier New]"}));
    EXPECT_EQ(Drawing.WhereMarker, 541);
}

} // namespace
} // namespace vernacle::test
