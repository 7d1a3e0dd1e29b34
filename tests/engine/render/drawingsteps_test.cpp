// The moments at which a drawing has its owner change the design, told among the surface's calls;
// and that nothing but these steps changes it.
#include "engine/render/drawingsteps.h"

#include <memory>
#include <string_view>

#include "support/rendertest.h"

namespace vernacle::test {
namespace {

// Takes each step and writes it among the calls.
class ToldSteps : public StepsOn {
public:
    explicit ToldSteps(Calls& calls) : StepsOn(Design), calls_(calls) {}

    void RaiseAspect() const override {
        calls_.push_back("RaiseAspect");
        StepsOn::RaiseAspect();
    }
    void ReachScale(int scale) const override {
        calls_.push_back(Call("ReachScale", scale));
        StepsOn::ReachScale(scale);
    }
    void RaiseRelativeSize(int scale) const override {
        calls_.push_back(Call("RaiseRelativeSize", scale));
        StepsOn::RaiseRelativeSize(scale);
    }
    void ClearColour(int scale) const override {
        calls_.push_back(Call("ClearColour", scale));
        StepsOn::ClearColour(scale);
    }
    void SetBackLabel(int scale, int tic) const override {
        calls_.push_back(Call("SetBackLabel", scale, tic));
        StepsOn::SetBackLabel(scale, tic);
    }

private:
    Calls& calls_;
};

class DrawingStepsTest : public RenderTest {
protected:
    // Two scales of two tics, nothing of which is as a drawing wants it.
    DrawingStepsTest() {
        Design.NumberOfScales = 2;
        Design.AspectRatio = -1;
        for (int scale = 1; scale <= 2; ++scale) {
            GiveTics(scale, 1);
            Design.RelativeFontSize[scale] = static_cast<float>(-scale);
            Design.StandardLabelYN[scale][1] = "N";
        }
        Design.PrintTicsAndArcs[2] = std::int16_t{1};
    }

    void DrawTold(std::initializer_list<DrawingStage> stages) {
        DrawingTraits traits = PreviewTraits();
        traits.stages = {stages.begin(), stages.size()};
        DrawDesign(Design, surface, traits, {Design.FontSize, Design.LabelSpacing}, Drawing,
                   ToldSteps(surface.calls));
    }

    // The calls in order, of those that draw the name alone.
    Calls Order() const {
        constexpr std::string_view kDrawing = "Line SetLineWidth BeginFont SetCurrentX SetCurrentY "
                                              "PrintText EndFont";
        Calls order;
        for (const std::string& call : surface.calls) {
            const std::string name = call.substr(0, call.find(' '));
            order.push_back(kDrawing.find(name) == kDrawing.npos ? call : name);
        }
        return order;
    }
};

TEST_F(DrawingStepsTest, AspectIsRaisedBeforeTheFirstCall) {
    DrawTold({ClearStage});
    EXPECT_EQ(At(surface.calls, 0), "RaiseAspect");
    EXPECT_EQ(At(surface.calls, 1), "Clear");
    EXPECT_EQ(Design.AspectRatio, 1);
    Design.AspectRatio = 0;
    Design.PlateHeight = 0; // no frame: not reached
    EXPECT_THROW(DrawTold({ClearStage}), RunTimeError);
    EXPECT_EQ(Design.AspectRatio, 0);
}

// A scale whose tics are not drawn is repaired before its labels only.
TEST_F(DrawingStepsTest, RelativeSizesAreRaisedBeforeTicsAndAgainBeforeLabels) {
    Design.PrintText = "N";
    DrawTold({TicsStage, LabelsStage});
    EXPECT_EQ(Order(), (Calls{"RaiseAspect", "ReachScale 2", "ReachScale 1", "RaiseRelativeSize 1",
                              "SetLineWidth", "Line", "SetLineWidth", "Line", "ReachScale 0"}));
    EXPECT_EQ(Design.RelativeFontSize[1], 1);
    EXPECT_EQ(Design.RelativeFontSize[2], -2);
}

// The ordinary font is asked for by the size as it stood; the flags go back one by one.
TEST_F(DrawingStepsTest, ColoursAndFlagsGoBackAtTheLabels) {
    DrawTold({LabelsStage});
    const auto labels = [](int scale, const char* points) {
        const std::string s = std::to_string(scale);
        const Calls label = {"BeginFont", "SetCurrentX", "SetCurrentY", "PrintText", "EndFont"};
        return Calls{"ReachScale " + s,        "SetFontSize " + std::string(points),
                     "RaiseRelativeSize " + s, "ClearColour " + s,
                     "SetForeColor 0",         "SetBackLabel " + s + " 0"} +
               label + Calls{"SetBackLabel " + s + " 1"} + label;
    };
    EXPECT_EQ(Order(), Calls{"RaiseAspect"} + labels(1, "-13.68") + labels(2, "-27.36") +
                           Calls{"ReachScale 3"});
    for (int scale = 1; scale <= 2; ++scale) {
        EXPECT_EQ(Design.RelativeFontSize[scale], 1);
        EXPECT_EQ(Design.ScaleColor[scale], 0);
        EXPECT_EQ(Design.StandardLabelYN[scale][1], "Y");
    }
}

TEST_F(DrawingStepsTest, FailureLeavesOutTheStepsThatWouldHaveCome) {
    surface.failCall = "EndFont"; // behind the first label
    DrawTold({LabelsStage});
    EXPECT_EQ(Last(surface.calls), "EndFont");
    EXPECT_EQ(Design.ScaleColor[1], 0);
    EXPECT_EQ(Design.StandardLabelYN[1][1], "N");
    EXPECT_EQ(Design.RelativeFontSize[2], -2);
    EXPECT_EQ(Design.ScaleColor[2], 0xFF);
    EXPECT_EQ(Design.CurrentScale, 1);
}

TEST_F(DrawingStepsTest, OnlyThePreviewClearsAndSetsBack) {
    for (const DrawingTraits& traits : {ScalesTraits(), TextTraits(), WizardTraits()}) {
        surface = RecordingSurface();
        DrawDesign(Design, surface, traits, {Design.FontSize, Design.LabelSpacing}, Drawing,
                   ToldSteps(surface.calls));
        EXPECT_EQ(surface.Count("ClearColour") + surface.Count("SetBackLabel"), 0U);
        EXPECT_GT(surface.Count("RaiseRelativeSize"), 0U);
    }
}

// The setup's drawing repairs what it draws and stays on its scale.
TEST_F(DrawingStepsTest, SetupStaysAtItsScale) {
    GiveSpecialTics(1, 1);
    Design.CurrentScale = 1;
    Design.DrawArcs = "Y";
    DrawSetup(Design, surface, {Design.FontSize, Design.LabelSpacing}, Drawing);
    EXPECT_EQ(Design.CurrentScale, 1);
    EXPECT_EQ(Design.RelativeFontSize[1], 1);
    EXPECT_EQ(Design.AspectRatio, -1) << "it knows no aspect";
}

// Steps that nobody takes.
class NoSteps : public DrawingSteps {
    void RaiseAspect() const override {}
    void ReachScale(int /*scale*/) const override {}
    void RaiseRelativeSize(int /*scale*/) const override {}
    void ClearColour(int /*scale*/) const override {}
    void SetBackLabel(int /*scale*/, int /*tic*/) const override {}
};

TEST_F(DrawingStepsTest, ADesignWhoseStepsNobodyTakesDrawsAllTheSame) {
    Design.PrintTicsAndArcs[2] = std::int16_t{0};
    const auto kept = std::make_unique<DesignRecord>(Design);
    for (const DrawingTraits& traits : {ScalesTraits(), TextTraits()}) {
        DrawingTraits asItStands = traits;
        asItStands.preparation = Preparation::None;
        Design = *kept;
        RecordingSurface taken;
        DrawPage(Design, taken, asItStands, {Design.FontSize, Design.LabelSpacing}, Drawing);
        DrawingState state;
        RecordingSurface untaken;
        DrawDesign(*kept, untaken, asItStands, {kept->FontSize, kept->LabelSpacing}, state,
                   NoSteps());
        // But for the size of the font that measures, which the tics' step has changed by then.
        const auto shown = [](const RecordingSurface& drawn) {
            return drawn.CallsOf("Line") + drawn.CallsOf("BeginFont") + drawn.texts;
        };
        EXPECT_EQ(shown(untaken), shown(taken));
    }
    EXPECT_EQ(kept->AspectRatio, -1);
}

} // namespace
} // namespace vernacle::test
