#include "engine/correction/curveplot.h"

#include "engine/base/runtimeerror.h"
#include "engine/correction/curve.h"
#include "support/rendertest.h"

namespace vernacle::test {
namespace {

class CurvePlotTest : public NewDesignTest {
protected:
    static void Put(int point, float current, float deflection) {
        Design.CorrectionPair[2 * point + 1] = current;
        Design.CorrectionPair[2 * point + 2] = deflection;
    }

    CurveVerdict Draw() {
        surface.Forget();
        ComputeCorrectionSlopes(Design);
        return DrawCurvePlot(Design, surface);
    }

    std::size_t LinesIn(const std::string& colour) const {
        std::size_t count = 0;
        for (const std::string& line : surface.CallsOf("Line")) {
            count += line.ends_with(" " + colour) ? 1U : 0U;
        }
        return count;
    }

    RecordingSurface surface;
};

TEST_F(CurvePlotTest, FractionsLieInThePlotsUnits) {
    EXPECT_TRUE(IsAt(CurvePlace(0, 0), 5000, 6000));
    EXPECT_TRUE(IsAt(CurvePlace(1, 1), 10000, 1000));
    EXPECT_EQ(CurrentAt(6250), 0.25F);
    EXPECT_EQ(DeflectionAt(1000), 1);
    EXPECT_EQ(DeflectionAt(4750), 0.25F);
    EXPECT_EQ(CurrentAt(4000), -0.2F);
}

TEST_F(CurvePlotTest, DropsPutAPointWhereverTheyAre) {
    PutCurvePoint(Design, 2, 7000, 2000);
    EXPECT_EQ(Design.CorrectionPair[5], 0.4F);
    EXPECT_EQ(Design.CorrectionPair[6], 0.8F);
    PutCurvePoint(Design, 6, 20000, -4000);
    EXPECT_EQ(Design.CorrectionPair[13], 3);
    EXPECT_EQ(Design.CorrectionPair[14], 2);
}

TEST_F(CurvePlotTest, HandlesStandOnTheirPoints) {
    Put(3, 0.5F, 0.25F);
    EXPECT_TRUE(IsAt(HandleMiddle(Design, 3), 7500, 4750));
    EXPECT_TRUE(IsAt(HandleMiddle(Design, 0), 4985, 6000)) << "15 further to the left";
    EXPECT_TRUE(IsAt(HandleMiddle(Design, 6), 10000, 985)) << "15 higher";
}

TEST_F(CurvePlotTest, PlotHasFrameGridIdealCurveAndStrip) {
    EXPECT_EQ(Draw(), CurveVerdict::Allowed);
    EXPECT_EQ(surface.calls.at(0), "Clear");
    EXPECT_EQ(surface.CallsOf("Box"),
              (Texts{"Box 5000 1000 10000 6000 ff0000", "Box 5000 6500 10000 6800 1"}));
    EXPECT_EQ(LinesIn("bbbbbb"), 20U) << "the added tenths pass 1 just before it";
    EXPECT_EQ(LinesIn("991111"), 1U);
    EXPECT_EQ(LinesIn("111199"), 6U);
    EXPECT_EQ(LinesIn("ff0000"), 51U);
    const Texts& calls = surface.calls;
    const auto indexOf = [&calls](const std::string& call) {
        return std::find(calls.begin(), calls.end(), call) - calls.begin();
    };
    EXPECT_LT(indexOf("SetLineWidth 2"), indexOf("Line 5000 6000 5750 5250 111199"));
    EXPECT_EQ(surface.CallsOf("SetLineWidth"),
              (Texts{"SetLineWidth 1", "SetLineWidth 2", "SetLineWidth 1"}));
    EXPECT_NE(indexOf("Line 5000 6000 10000 1000 991111"),
              static_cast<std::ptrdiff_t>(calls.size()));
}

TEST_F(CurvePlotTest, StripShowsTheCorrectedScale) {
    Put(3, 0.5F, 0.6F);
    EXPECT_EQ(Draw(), CurveVerdict::Allowed);
    const Texts lines = surface.CallsOf("Line");
    EXPECT_NE(std::find(lines.begin(), lines.end(), "Line 8000 6500 8000 6800 ff0000"), lines.end())
        << "the middle tic";
}

TEST_F(CurvePlotTest, StripIsDrawnByTheSlopesAsTheyAreStored) {
    Draw();
    const Texts before = surface.CallsOf("Line");
    Design.CorrectionSlope[1] = 2;
    surface = RecordingSurface();
    EXPECT_EQ(DrawCurvePlot(Design, surface), CurveVerdict::Allowed);
    EXPECT_NE(surface.CallsOf("Line"), before);
}

struct VerdictRow {
    int point;
    float current;
    float deflection;
    CurveVerdict verdict;
};

TEST_F(CurvePlotTest, ACurveMustNotFall) {
    const VerdictRow rows[] = {
        {1, -0.01F, 0.1F, CurveVerdict::Disallowed}, {1, 0.2F, -0.1F, CurveVerdict::Disallowed},
        {1, 0.31F, 0.1F, CurveVerdict::Disallowed},  {5, 1.1F, 0.9F, CurveVerdict::Disallowed},
        {5, 0.9F, 1.1F, CurveVerdict::Disallowed},   {3, 0.5F, 0.29F, CurveVerdict::Disallowed},
        {3, 0.5F, 0.3F, CurveVerdict::Allowed},      {3, 0.5F, 0.7F, CurveVerdict::Allowed},
        {2, 0.4F, 0.5F, CurveVerdict::Allowed},
    };
    for (const VerdictRow& row : rows) {
        SetLinearCurve(Design);
        Put(row.point, row.current, row.deflection);
        EXPECT_EQ(Draw(), row.verdict) << row.point << " " << row.current << " " << row.deflection;
        EXPECT_EQ(LinesIn("111199"), row.verdict == CurveVerdict::Allowed ? 6U : 0U);
        EXPECT_EQ(LinesIn("bbbbbb"), 20U);
    }
}

TEST_F(CurvePlotTest, EqualCurrentsFailBeforeAnythingIsDrawn) {
    Put(3, 0.3F, 0.5F);
    EXPECT_THROW(Draw(), RunTimeError);
    EXPECT_TRUE(surface.calls.empty());
}

} // namespace
} // namespace vernacle::test
