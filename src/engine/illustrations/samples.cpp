#include "engine/illustrations/samples.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <span>

#include "engine/core/design.h"
#include "engine/core/entry.h"
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
    void (*special)(DesignRecord& design, int scale) = nullptr; // makes it a special one
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

// Puts back what the arc sine noted last: a sample is no step of what a message tells of.
class TraceKeeper {
public:
    TraceKeeper() = default;
    ~TraceKeeper() { LastStepTrace = kept_; }
    TraceKeeper(const TraceKeeper&) = delete;
    TraceKeeper& operator=(const TraceKeeper&) = delete;

private:
    const StepTrace kept_ = LastStepTrace;
};

// The default design, on a screen of square units that is no real one.
void SetDefaults(DesignRecord& design) {
    design.ScreenScaleX = kSquareScreenScale;
    design.ScreenScaleY = kSquareScreenScale;
    SetOpeningValues(design);
    ResetDesign(design);
    design.AspectRatio = 1;
}

void SetPlate(DesignRecord& design, const SamplePlate& plate) {
    design.PlateWidth = plate.width;
    design.PlateHeight = plate.height;
    design.BottomToBearing = plate.bottomToBearing;
    design.ActualVirtualOffset = plate.actualVirtualOffset;
    design.PointerDeflection = plate.pointerDeflectionDeg;
    design.BottomToHoles = plate.bottomToHoles;
    design.HoleSeparation = plate.holeSeparation;
    design.PlateStyle = plate.style;
    design.LabelRotation = plate.labelRotation;
    design.FontSize = plate.fontSize;
    design.LabelSpacing = plate.labelSpacing;
    design.ArcWidth = 1;
    design.MinorTicWidth = 1;
    design.MajorTicWidth = 3;
}

void SetScale(DesignRecord& design, int scale, const SampleScale& values) {
    design.BottomToScaleCeiling[scale] = values.bottomToCeiling;
    design.BottomToTitle[scale] = values.bottomToTitle;
    design.ScaleTitle[scale] = values.title;
    design.ScaleLengthUnits[scale] = values.span;
    design.NrOfTicmarks[scale] = values.tics;
    design.MajorEveryHowMany[scale] = values.majorEvery;
    design.LabelsEveryHowMany[scale] = values.labelsEvery;
    design.LinearityExponent[scale] = values.exponent;
    for (const int tic : values.deletedTics) {
        design.StandardTicYN[scale][tic] = "N";
    }
    for (const int label : values.deletedLabels) {
        design.StandardLabelYN[scale][label] = "N";
    }
    if (values.special) {
        values.special(design, scale);
    }
}

// A scale that keeps its number but shows nothing.
void HideScale(DesignRecord& design, int scale) {
    design.PrintTicsAndArcs[scale] = std::int16_t{1};
    design.ScaleTitle[scale].clear();
    for (int tic = 0; tic <= kLastTic; ++tic) {
        design.StandardLabelYN[scale][tic] = "N";
    }
}

// The scales take the odd numbers, by which all of them point outward; those between are hidden.
void SetScales(DesignRecord& design, std::span<const SampleScale> scales) {
    int number = 0;
    for (const SampleScale& values : scales) {
        if (number > 0) {
            HideScale(design, ++number);
        }
        SetScale(design, ++number, values);
    }
    design.NumberOfScales = static_cast<std::int16_t>(number);
}

} // namespace

void DrawSample(DrawingSurface& surface, Sample sample) {
    const TraceKeeper keeper;
    const SampleRow& row = RowOf(sample);
    const auto design = std::make_unique<DesignRecord>(); // too large for a stack
    SetDefaults(*design);
    SetPlate(*design, row.plate);
    SetScales(*design, row.scales);
    DrawingState state;
    DrawPage(*design, surface, SampleTraits(),
             {.fontSize = design->FontSize, .labelSpacing = design->LabelSpacing}, state);
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
