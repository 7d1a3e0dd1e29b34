#include "engine/correction/curveplot.h"

#include <vector>

#include "engine/core/service.h"
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

// Where a point stands in CorrectionPair.
int CurrentIndex(int point) {
    return 2 * point + 1;
}

int DeflectionIndex(int point) {
    return 2 * point + 2;
}

float CurrentOf(const DesignRecord& design, int point) {
    return design.CorrectionPair[CurrentIndex(point)];
}

float DeflectionOf(const DesignRecord& design, int point) {
    return design.CorrectionPair[DeflectionIndex(point)];
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

bool NeverFalls(const DesignRecord& design) {
    if (CurrentOf(design, 1) < 0) {
        return false;
    }
    for (int point = 1; point <= kLastPoint; ++point) {
        if (CurrentOf(design, point) < CurrentOf(design, point - 1) ||
            DeflectionOf(design, point) < DeflectionOf(design, point - 1)) {
            return false;
        }
    }
    return true;
}

bool IsAllowed(const DesignRecord& design) {
    return Service.curveInFile ? CurveRises(design) : NeverFalls(design);
}

void DrawCurve(const DesignRecord& design, DrawingSurface& surface) {
    surface.SetLineWidth(2);
    for (int point = 1; point <= kLastPoint; ++point) {
        DrawLine(surface, CurvePointPlace(design, point - 1), CurvePointPlace(design, point),
                 kCurveInk);
    }
    surface.SetLineWidth(1);
}

// An evenly divided scale as the curve moves it.
void DrawStrip(const DesignRecord& design, DrawingSurface& surface) {
    surface.Box(F(kLeft), F(kStripTop), F(kRight), F(kStripBottom), kStripInk);
    for (int tic = 0; tic <= kStripTics; ++tic) {
        const auto share = static_cast<float>(tic / double{kStripTics});
        const double corrected = DrawnDeflection(design, double{share});
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

SurfacePoint CurvePointPlace(const DesignRecord& design, int point) {
    return CurvePlace(double{CurrentOf(design, point)}, double{DeflectionOf(design, point)});
}

void PutCurvePoint(DesignRecord& design, int point, double x, double y) {
    design.CorrectionPair[CurrentIndex(point)] = CurrentAt(x);
    design.CorrectionPair[DeflectionIndex(point)] = DeflectionAt(y);
}

SurfacePoint HandleMiddle(const DesignRecord& design, int point) {
    const SurfacePoint place = CurvePointPlace(design, point);
    const double left = place.x - (point == 0 ? kFirstHandleLeft : kHandleLeft);
    const double top = place.y - (point == kLastPoint ? kLastHandleAbove : kHandleAbove);
    return {left + kHandleWidth / 2, top + kHandleHeight / 2};
}

CurveVerdict DrawCurvePlot(const DesignRecord& design, DrawingSurface& surface) {
    surface.Clear();
    surface.SetLineWidth(1);
    surface.Box(F(kLeft), F(kTop), F(kRight), F(kBottom), kBlueInk);
    DrawGrid(surface);
    DrawLine(surface, CurvePlace(0, 0), CurvePlace(1, 1), kIdealInk);
    if (!IsAllowed(design)) {
        return CurveVerdict::Disallowed;
    }
    DrawCurve(design, surface);
    DrawStrip(design, surface);
    return CurveVerdict::Allowed;
}

} // namespace vernacle
