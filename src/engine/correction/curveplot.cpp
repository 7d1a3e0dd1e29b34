#include "engine/correction/curveplot.h"

#include <vector>

#include "engine/core/design.h"
#include "engine/correction/curve.h"
#include "engine/geometry/primitives.h"

namespace vernacle {

namespace {

constexpr double kLeft = 5000;
constexpr double kRight = 10000;
constexpr double kTop = 1000;
constexpr double kBottom = 6000;
constexpr double kSpan = 5000;
constexpr double kStripTop = 6500;
constexpr double kStripBottom = 6800;
constexpr int kStripTics = 50;
constexpr float kGridStep = 0.1F;

constexpr Colour kGridInk = 0xBBBBBB;
constexpr Colour kIdealInk = 0x991111;
constexpr Colour kCurveInk = 0x111199;
constexpr Colour kStripInk = 0x000001;

// How far a handle's left and upper edges stand from its point, of a handle of 60 x 30 units.
constexpr double kHandleLeft = 30;
constexpr double kFirstHandleLeft = 45;
constexpr double kHandleAbove = 15;
constexpr double kLastHandleAbove = 30;
constexpr double kHandleWidth = 60;
constexpr double kHandleHeight = 30;
constexpr int kLastPoint = kCurvePoints - 1;

float& CurrentOf(int point) {
    return Design.CorrectionPair[2 * point + 1];
}

float& DeflectionOf(int point) {
    return Design.CorrectionPair[2 * point + 2];
}

void DrawUpright(DrawingSurface& surface, double x, double top, double bottom, Colour colour) {
    DrawLine(surface, {x, top}, {x, bottom}, colour);
}

// The step is added up in floats, and so does not reach the last line.
void DrawGrid(DrawingSurface& surface) {
    std::vector<double> shares;
    float share = 0;
    while (share <= 1) {
        shares.push_back(double{share});
        share += kGridStep;
    }
    for (const double across : shares) {
        DrawUpright(surface, kLeft + kSpan * across, kTop, kBottom, kGridInk);
    }
    for (const double up : shares) {
        const double y = kBottom - kSpan * up;
        DrawLine(surface, {kLeft, y}, {kRight, y}, kGridInk);
    }
}

bool NeverFalls() {
    if (CurrentOf(1) < 0) {
        return false;
    }
    for (int point = 1; point <= kLastPoint; ++point) {
        if (CurrentOf(point) < CurrentOf(point - 1) ||
            DeflectionOf(point) < DeflectionOf(point - 1)) {
            return false;
        }
    }
    return true;
}

void DrawCurve(DrawingSurface& surface) {
    surface.SetLineWidth(2);
    for (int point = 1; point <= kLastPoint; ++point) {
        DrawLine(surface, CurvePointPlace(point - 1), CurvePointPlace(point), kCurveInk);
    }
    surface.SetLineWidth(1);
}

// An evenly divided scale as the curve moves it.
void DrawStrip(DrawingSurface& surface) {
    surface.Box(F(kLeft), F(kStripTop), F(kRight), F(kStripBottom), kStripInk);
    for (int tic = 0; tic <= kStripTics; ++tic) {
        auto share = static_cast<float>(tic / double{kStripTics});
        const double corrected = double{CorrectDeflection(share)};
        DrawUpright(surface, kLeft + kSpan * corrected, kStripTop, kStripBottom, kBlueInk);
    }
}

} // namespace

LogicalArea CurvePlotArea() {
    return {.left = 4250, .top = 300, .width = 6150, .height = 7100};
}

SurfacePoint CurvePlace(double current, double deflection) {
    return {kLeft + kSpan * current, kBottom - kSpan * deflection};
}

SurfacePoint CurveStripMiddle() {
    return {(kLeft + kRight) / 2, kStripBottom};
}

float CurrentAt(double x) {
    return static_cast<float>((x - kLeft) / kSpan);
}

float DeflectionAt(double y) {
    return static_cast<float>(1 - (y - kTop) / kSpan);
}

SurfacePoint CurvePointPlace(int point) {
    return CurvePlace(double{CurrentOf(point)}, double{DeflectionOf(point)});
}

void PutCurvePoint(int point, double x, double y) {
    CurrentOf(point) = CurrentAt(x);
    DeflectionOf(point) = DeflectionAt(y);
}

SurfacePoint HandleMiddle(int point) {
    const SurfacePoint place = CurvePointPlace(point);
    const double left = place.x - (point == 0 ? kFirstHandleLeft : kHandleLeft);
    const double top = place.y - (point == kLastPoint ? kLastHandleAbove : kHandleAbove);
    return {left + kHandleWidth / 2, top + kHandleHeight / 2};
}

CurveVerdict DrawCurvePlot(DrawingSurface& surface) {
    ComputeCorrectionSlopes();
    surface.Clear();
    surface.SetLineWidth(1);
    surface.Box(F(kLeft), F(kTop), F(kRight), F(kBottom), kBlueInk);
    DrawGrid(surface);
    DrawLine(surface, CurvePlace(0, 0), CurvePlace(1, 1), kIdealInk);
    if (!NeverFalls()) {
        return CurveVerdict::Disallowed;
    }
    DrawCurve(surface);
    DrawStrip(surface);
    return CurveVerdict::Allowed;
}

} // namespace vernacle
