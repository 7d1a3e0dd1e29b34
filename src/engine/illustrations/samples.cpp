#include "engine/illustrations/samples.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>

#include "engine/core/design.h"
#include "engine/illustrations/samplescales.h"
#include "engine/render/drawing.h"
#include "engine/render/stages.h"

namespace vernacle {

namespace {

// Lengths in mm.
struct SamplePlate {
    float width = 100;
    float height = 72;
    float bottomToBearing = 16;
    float actualVirtualOffset = 13;
    float pointerDeflectionDeg = 90;
    float bottomToHoles = 14;
    float holeSeparation = 70;
    std::int16_t style = 0; // 1 quadrant
    const char* labelRotation = "H";
    float fontSize = 10;
    float labelSpacing = 6.5F;
};

struct SampleScale {
    float bottomToCeiling;
    float bottomToTitle;
    const char* title;
    float span = 50; // the value at the right end, the left end being 0
    std::int16_t tics = 50;
    std::int16_t majorEvery = 5;
    std::int16_t labelsEvery = 10;
    float exponent = 1;
    std::span<const int> deletedTics = {};
    std::span<const int> deletedLabels = {};
    void (*special)(int scale) = nullptr; // makes it a special one
};

// On the plate, mm from its left and bottom edge.
struct Detail {
    float left;
    float bottom;
    float width;
    float height;
};

struct SampleRow {
    Sample sample;
    const SamplePlate& plate;
    std::span<const SampleScale> scales;
    const Detail* detail; // none: the whole plate
};

constexpr SamplePlate kUsualPlate;
constexpr SamplePlate kBearingPlate = {.actualVirtualOffset = 0, .labelRotation = "B"};
constexpr SamplePlate kHorizontalPlate = {.actualVirtualOffset = 60};
constexpr SamplePlate kTallPlate = {.width = 116,
                                    .height = 92,
                                    .bottomToBearing = 10,
                                    .actualVirtualOffset = 0,
                                    .bottomToHoles = 10,
                                    .holeSeparation = 90,
                                    .fontSize = 10};
constexpr SamplePlate kQuadrantPlate = {.width = 72,
                                        .height = 54,
                                        .bottomToBearing = 10,
                                        .actualVirtualOffset = 0,
                                        .style = 1,
                                        .fontSize = 7,
                                        .labelSpacing = 6};

constexpr int kMinorsOfLeftEnd[] = {1, 2, 3, 4, 6, 7, 8, 9, 11, 12, 13, 14};
constexpr int kTicsOfLeftEnd[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 16, 17, 18, 19};
constexpr int kFirstLabels[] = {10};

constexpr SampleScale kLinear[] = {{56, 44, "VOLTS", 30, 30, 5, 5, 1}};
constexpr SampleScale kAllTics[] = {{56, 44, "AMPERES", 50, 50, 5, 10, 1}};
constexpr SampleScale kCrowded[] = {{56, 44, "AMPERES", 50, 50, 5, 10, 2}};
constexpr SampleScale kThinned[] = {{56, 44, "AMPERES", 50, 50, 5, 10, 2, kMinorsOfLeftEnd}};
constexpr SampleScale kCleared[] = {
    {56, 44, "AMPERES", 50, 50, 5, 10, 2, kTicsOfLeftEnd, kFirstLabels}};
constexpr SampleScale kExponents[] = {
    {78, 75, "Exponent 2", 10, 20, 2, 4, 2},
    {56, 53, "Exponent 1", 10, 20, 2, 4, 1},
    {34, 31, "Exponent 0.5", 10, 20, 2, 4, 0.5F},
};
constexpr SampleScale kQuadrant[] = {{38, 50, "VOLTS", 50, 50, 5, 10, 1}};

constexpr SampleScale kOhmmeter[] = {
    {.bottomToCeiling = 56, .bottomToTitle = 44, .title = "OHMS", .special = SetUpSampleOhmmeter}};
constexpr SampleScale kArbitrary[] = {
    {.bottomToCeiling = 56, .bottomToTitle = 44, .title = "FUEL", .special = SetUpSampleArbitrary}};
constexpr SampleScale kSmeter[] = {{.bottomToCeiling = 56,
                                    .bottomToTitle = 44,
                                    .title = "S-UNITS, dB",
                                    .special = SetUpSampleSmeter}};
constexpr SampleScale kVswr[] = {
    {.bottomToCeiling = 56, .bottomToTitle = 44, .title = "VSWR", .special = SetUpSampleVswr}};
constexpr SampleScale kDecibel[] = {
    {.bottomToCeiling = 56, .bottomToTitle = 44, .title = "dB", .special = SetUpSampleDecibel}};

constexpr Detail kLeftEnd = {.left = 12, .bottom = 44, .width = 26, .height = 19};

// Those of a page, but for the trim marks: no sample is ever cut out.
constexpr DrawingStage kStages[] = {
    ClearStage, PlateStage, HolesStage,  BearingsStage, TicsStage,
    ArcsStage,  FontStage,  LabelsStage, TitlesStage,
};

DrawingTraits SampleTraits() {
    DrawingTraits traits = ScalesTraits();
    traits.stages = kStages;
    return traits;
}

constexpr SampleRow kSamples[] = {
    {Sample::LinearScale, kUsualPlate, kLinear, nullptr},
    {Sample::ExponentOne, kUsualPlate, kAllTics, nullptr},
    {Sample::ExponentTwo, kUsualPlate, kCrowded, &kLeftEnd},
    {Sample::SomeTicsRemoved, kUsualPlate, kThinned, &kLeftEnd},
    {Sample::LeftEndCleared, kUsualPlate, kCleared, &kLeftEnd},
    {Sample::Exponents, kTallPlate, kExponents, nullptr},
    {Sample::RotatedBearing, kBearingPlate, kAllTics, nullptr},
    {Sample::RotatedHorizontal, kHorizontalPlate, kAllTics, nullptr},
    {Sample::StandardStyle, kUsualPlate, kAllTics, nullptr},
    {Sample::QuadrantStyle, kQuadrantPlate, kQuadrant, nullptr},
    {Sample::Ohmmeter, kUsualPlate, kOhmmeter, nullptr},
    {Sample::Arbitrary, kUsualPlate, kArbitrary, nullptr},
    {Sample::Smeter, kUsualPlate, kSmeter, nullptr},
    {Sample::Vswr, kUsualPlate, kVswr, nullptr},
    {Sample::Decibel, kUsualPlate, kDecibel, nullptr},
};

const SampleRow& RowOf(Sample sample) {
    return *std::ranges::find(kSamples, sample, &SampleRow::sample);
}

// The one design and the drawing's state, taken away for a while. They are too large for a stack.
class BorrowedDesign {
public:
    BorrowedDesign() : design_(std::make_unique<DesignRecord>(Design)), drawing_(Drawing) {}
    ~BorrowedDesign() {
        Design = std::move(*design_);
        Drawing = std::move(drawing_);
        LastStepTrace = trace_;
    }
    BorrowedDesign(const BorrowedDesign&) = delete;
    BorrowedDesign& operator=(const BorrowedDesign&) = delete;

private:
    std::unique_ptr<DesignRecord> design_;
    DrawingState drawing_;
    StepTrace trace_ = LastStepTrace;
};

// The default design, on a screen of square units that is no real one.
void SetDefaults() {
    Design.ScreenScaleX = kSquareScreenScale;
    Design.ScreenScaleY = kSquareScreenScale;
    SetOpeningValues(Design);
    ResetDesign(Design);
    Design.AspectRatio = 1;
}

void SetPlate(const SamplePlate& plate) {
    Design.PlateWidth = plate.width;
    Design.PlateHeight = plate.height;
    Design.BottomToBearing = plate.bottomToBearing;
    Design.ActualVirtualOffset = plate.actualVirtualOffset;
    Design.PointerDeflection = plate.pointerDeflectionDeg;
    Design.BottomToHoles = plate.bottomToHoles;
    Design.HoleSeparation = plate.holeSeparation;
    Design.PlateStyle = plate.style;
    Design.LabelRotation = plate.labelRotation;
    Design.FontSize = plate.fontSize;
    Design.LabelSpacing = plate.labelSpacing;
    Design.ArcWidth = 1;
    Design.MinorTicWidth = 1;
    Design.MajorTicWidth = 3;
}

void SetScale(int scale, const SampleScale& values) {
    Design.BottomToScaleCeiling[scale] = values.bottomToCeiling;
    Design.BottomToTitle[scale] = values.bottomToTitle;
    Design.ScaleTitle[scale] = values.title;
    Design.ScaleLengthUnits[scale] = values.span;
    Design.NrOfTicmarks[scale] = values.tics;
    Design.MajorEveryHowMany[scale] = values.majorEvery;
    Design.LabelsEveryHowMany[scale] = values.labelsEvery;
    Design.LinearityExponent[scale] = values.exponent;
    for (const int tic : values.deletedTics) {
        Design.StandardTicYN[scale][tic] = "N";
    }
    for (const int label : values.deletedLabels) {
        Design.StandardLabelYN[scale][label] = "N";
    }
    if (values.special) {
        values.special(scale);
    }
}

// A scale that keeps its number but shows nothing.
void HideScale(int scale) {
    Design.PrintTicsAndArcs[scale] = std::int16_t{1};
    Design.ScaleTitle[scale].clear();
    for (int tic = 0; tic <= kLastTic; ++tic) {
        Design.StandardLabelYN[scale][tic] = "N";
    }
}

// The scales take the odd numbers, by which all of them point outward; those between are hidden.
void SetScales(std::span<const SampleScale> scales) {
    int number = 0;
    for (const SampleScale& values : scales) {
        if (number > 0) {
            HideScale(++number);
        }
        SetScale(++number, values);
    }
    Design.NumberOfScales = static_cast<std::int16_t>(number);
}

} // namespace

void DrawSample(DrawingSurface& surface, Sample sample) {
    const BorrowedDesign borrowed;
    const SampleRow& row = RowOf(sample);
    SetDefaults();
    SetPlate(row.plate);
    SetScales(row.scales);
    DrawPage(Design, surface, SampleTraits(),
             {.fontSize = Design.FontSize, .labelSpacing = Design.LabelSpacing}, Drawing);
}

LogicalArea SampleArea(Sample sample) {
    constexpr double kMargin = 80; // units
    const SampleRow& row = RowOf(sample);
    const DrawingTraits traits = SampleTraits();
    const double width = double{row.plate.width};
    const double height = double{row.plate.height};
    const double unitsPerMm = 2 * traits.extent / std::max(width, height);
    const double left = traits.centre.x - width / 2 * unitsPerMm;
    const double bottom = traits.centre.y + height / 2 * unitsPerMm;
    if (row.detail) {
        const double top = double{row.detail->bottom} + double{row.detail->height};
        return {left + double{row.detail->left} * unitsPerMm, bottom - top * unitsPerMm,
                double{row.detail->width} * unitsPerMm, double{row.detail->height} * unitsPerMm};
    }
    return {left - kMargin, bottom - height * unitsPerMm - kMargin,
            width * unitsPerMm + 2 * kMargin, height * unitsPerMm + 2 * kMargin};
}

} // namespace vernacle
