// The one design of the process: every field of a plate, the tables of its scales, and the working
// state that its pages and routines share. Lengths are millimetres on the plate, colours
// 0x00BBGGRR.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "engine/base/table.h"

namespace vernacle {

constexpr int kLastScale = 8; // bound of the per-scale tables
constexpr int kLastFlagScale =
    10;                          // bound of the tables that an older plate of ten scales left wider
constexpr int kScales = 6;       // scales that the pages offer and ResetDesign fills
constexpr int kFiledLists = 4;   // scales whose deleted tics and labels a file keeps
constexpr int kLastTic = 360;    // a scale has at most 361 tics, 0 to 360
constexpr int kTexts = 10;       // free texts
constexpr int kOpeningTexts = 8; // free texts that SetOpeningValues fills
constexpr int kHighlights = 10;  // highlights
constexpr int kCurvePoints = 7;  // points of the correction curve
constexpr int kLastPairEntry = 20; // bound of CorrectionPair: point n is at 2n - 1 (X) and 2n (Y)
constexpr std::int32_t kWhite = 0xFFFFFF;

// A value that a page stores as a number and a file leaves as text.
using DynamicValue = std::variant<std::int16_t, std::string>;

// The number that the value is, or that its text starts with; 0 for one never set.
double NumberOf(const DynamicValue& value);

template <typename T>
using PerScale = Table<T, kLastScale>;
template <typename T>
using PerTic = TicTable<T, kLastScale, kLastTic>;
using DeletionFlags = TicTable<std::string, kLastFlagScale, kLastTic>; // "N": deleted by the user

struct DesignRecord {
    // The plate and the movement
    std::string DesignFileName; // full path, empty when there is none
    float PlateWidth = 0;
    float PlateHeight = 0;
    float BottomToBearing = 0; // plate's bottom edge to the pointer's bearing; below it if negative
    float BottomToHoles = 0;
    float HoleSeparation = 0;
    float PointerDeflection = 0; // total swing, degrees
    float MinorTicLength = 0;
    float MinorTicWidth = 0; // tenths of a millimetre
    float MajorTicLength = 0;
    float MajorTicWidth = 0;       // tenths of a millimetre
    float FontSize = 0;            // points
    float ActualVirtualOffset = 0; // real bearing down to the virtual bearing
    std::int16_t PlateStyle = 0;   // 0 standard, 1 quadrant
    std::string DrawArcs;          // "Y" or "N"
    std::string LabelRotation; // "H" horizontal, "B" along the bearing's radius, "V" upright to it
    std::string PrintText;     // "Y" or "N"
    float LabelSpacing = 0;
    std::string FontName;
    std::int16_t NumberOfScales = 0;
    std::string DrawGraphic; // "Y" or "N"
    std::string GraphicFileName;
    float LeftToGraphic = 0;
    float BottomToGraphic = 0;
    float GraphicWidth = 0;
    float GraphicHeight = 0;
    float ArcWidth = 0;            // tenths of a millimetre
    std::int16_t MessageLevel = 0; // sound: 0 off, 1 warnings, 2 all
    std::int16_t NumberOfTexts = 0;
    std::int16_t NumberOfHighlights = 0;
    std::int32_t PlateBackground = 0; // never 0: black is stored as 1
    float AspectRatio = 0;            // horizontal stretch of the screen picture
    std::int16_t NumberOfCorrectionPoints = 0;
    std::string DrawHighlights;            // "Y" or "N"; not stored in a file
    std::int16_t PlateOutlineCircular = 0; // 1 circular, 0 rectangular; not stored in a file
    float LeftToBearing = -1; // of a quadrant plate in the workshop; below 0 it is in the middle
    float PenWidth = 0.3F;    // of the plotter's pens in the workshop, mm: so far apart it hatches

    // The scales
    PerScale<std::int32_t>
        ScaleColor;                   // its magnitude is the colour; negative marks a special scale
    PerScale<float> ScaleLeftEnd;     // value at the left end, units
    PerScale<float> ScaleLengthUnits; // span, units
    PerScale<float> BottomToTitle;
    PerScale<float> BottomToScaleCeiling; // bottom edge to the top of the arc at mid-scale
    PerScale<std::string> ScaleTitle;
    PerScale<std::int16_t> NrOfTicmarks;
    PerScale<std::int16_t> MajorEveryHowMany;
    PerScale<std::int16_t> LabelsEveryHowMany;
    PerScale<float> LinearityExponent;
    PerScale<std::int16_t> SpecialNrOfTicmarks;
    PerScale<std::string> UnlabelledBottomTic;
    PerScale<float> FullscaleMultiplier;
    PerScale<float> SpecialExponent;  // of a setup's law, apart from that of a standard one
    PerScale<std::string> ScaleSetup; // whose tics it has in its tables: "dB"; empty if unknown
    PerScale<float> RelativeFontSize; // relative to FontSize
    Table<DynamicValue, kLastFlagScale> PrintTicsAndArcs; // 0: the scale's tics and arc are drawn

    // The tics of special scales, as the setups store them
    PerTic<float> TicDeflection; // fraction of full deflection
    PerTic<std::string> TicLabelYN;
    PerTic<std::string> TicPrintYN;
    PerTic<std::string> TicMajorYN;
    PerTic<std::string> TicLabelText;

    // The tics of standard scales, as ComputeTicDeflections and ComputeTicLabels fill them, and
    // the flags by which the user deletes single ones ("N")
    PerTic<float> StandardDeflection;
    PerTic<std::string> StandardLabel;
    DeletionFlags StandardTicYN;
    DeletionFlags StandardLabelYN;

    // The deleted tics and labels of each scale, entries 1 to the count; CollectDeletedTics
    Table<std::int16_t, kScales> DeletedTicCount;
    Table<std::int16_t, kScales> DeletedLabelCount;
    Table<Table<std::int16_t, kLastTic>, kScales> DeletedTics;
    Table<Table<std::int16_t, kLastTic>, kScales> DeletedLabels;

    // Free texts
    Table<std::string, kTexts> TextString;
    Table<float, kTexts> LeftToText;
    Table<float, kTexts> BottomToText;
    Table<float, kTexts> TextRelativeSize;
    Table<std::int32_t, kTexts> TextColor;

    // Highlights; one whose stop is not above 0 is an empty slot
    Table<float, kHighlights> HighlightStart; // percent of the scale
    Table<float, kHighlights> HighlightStop;
    Table<float, kHighlights> HighlightCeiling;
    Table<float, kHighlights> HighlightLength;
    Table<std::int32_t, kHighlights> HighlightColor;

    // The movement's correction curve; correction/curve
    Table<float, kLastPairEntry> CorrectionPair;
    Table<float, kCurvePoints - 1> CorrectionSlope;

    std::string ForeignLines; // of its file: marked with a star, and known to no field

    // The printer; render/calibrate
    float CalibrationX = 0;
    float CalibrationY = 0;

    // Working state, never stored
    std::int16_t CurrentScale = 0; // the drawing's loop index and the setups' working scale
    std::int16_t ActiveScale = 0;  // the scale selected on the scales page
    std::int16_t HelpTopic = 0;    // the illustration that the illustrated help shows
    std::string ProgramName;
    std::string VersionText;
    float ScreenScaleX = 0;        // screen width in twips / 12000
    float ScreenScaleY = 0;        // screen height in twips / 9000
    std::int16_t SharedIndex2 = 0; // the tic that a file's line deleted, or where a field ended
    float TicLoop = 0;             // the tic selected among all
};

extern DesignRecord Design;

// The tic that TicLoop stands at.
int CurrentTic(const DesignRecord& design);

// The first values of the process; fields without an opening value keep what they hold.
void SetOpeningValues(DesignRecord& design);

// A tic of a special scale as a new design has it.
void ResetSpecialTic(DesignRecord& design, int scale, int tic);

// Puts every design field that has a default back to it, and the correction curve to the line.
void ResetDesign(DesignRecord& design);

// Makes the correction curve the straight line through its seven usual points, all slopes 1.
void SetLinearCurve(DesignRecord& design);
void SetLinearPairs(DesignRecord& design); // the same without its slopes

// Repairs what a file may have brought and forces what the program does not offer: one scale, its
// law linear, its colour the default, the font "Arial". Returns 0.
int NormalizeDesign(DesignRecord& design);

// VersionText, ProgramName and the screen factors, from the screen's size.
void SetVersionAndScreenScale(DesignRecord& design);

} // namespace vernacle
