#include "engine/designfile/designlines.h"

#include <algorithm>

#include "engine/correction/curve.h"
#include "engine/designfile/starlines.h"
#include "engine/scale/scale.h"

namespace vernacle {

namespace {

using D = DesignRecord;
using S = ServiceState;

// What the file keeps and the program does not offer: the stored value is read and given up.
void ForceStandardStyle(DesignRecord& design) {
    design.PlateStyle = 0;
}
void ForceFont(DesignRecord& design) {
    design.FontName = "Arial";
}
void ForceNoGraphic(DesignRecord& design) {
    design.DrawGraphic = "N";
}
void ForceNoGraphicFile(DesignRecord& design) {
    design.GraphicFileName.clear();
}
void ForceWhitePlate(DesignRecord& design) {
    design.PlateBackground = kWhite;
}
void ForceSevenPoints(DesignRecord& design) {
    design.NumberOfCorrectionPoints = kCurvePoints;
}
void HoldAspect(DesignRecord& design) {
    design.AspectRatio = std::clamp(design.AspectRatio, 0.5F, 2.0F);
}
void SwitchHighlightsOn(DesignRecord& design) {
    if (design.NumberOfHighlights > 0) {
        design.DrawHighlights = "Y";
    }
}
void ForceNoHighlights(DesignRecord& design) {
    design.NumberOfHighlights = 0;
    design.DrawHighlights = "N";
}
void ForceTicsAndArcs(DesignRecord& design) {
    design.PrintTicsAndArcs.fill(std::int16_t{0});
}

// Lines leave texts; pages store numbers.
void NumberTicsAndArcs(DesignRecord& design) {
    for (int scale = 0; scale <= kLastFlagScale; ++scale) {
        DynamicValue& value = design.PrintTicsAndArcs[scale];
        value = static_cast<std::int16_t>(NumberOf(value) != 0 ? 1 : 0);
    }
}

// What is left is the identity between the curve's ends.
void ForceStraightCurve(DesignRecord& design) {
    constexpr int kFirst = 1;
    constexpr int kLast = 2 * kCurvePoints - 1;
    for (int entry = kFirst; entry <= kLast + 1; ++entry) {
        design.CorrectionPair[entry] = 1;
    }
    design.CorrectionPair[kFirst] = design.CorrectionPair[kFirst + 1] = 0;
    for (int entry = kFirst + 2; entry < kLast; ++entry) {
        const float previous = design.CorrectionPair[entry - 2];
        if (design.CorrectionPair[entry] <= previous) {
            design.CorrectionPair[entry] = static_cast<float>(double{previous} + 0.01);
        }
    }
    design.CorrectionPair[kLast] = design.CorrectionPair[kLast + 1] = 1;
    ComputeCorrectionSlopes(design);
}

void DropUndrawnGraphic(DesignRecord& design, LinePlace /*place*/) {
    if (design.DrawGraphic == "N") {
        design.GraphicFileName.clear();
    }
}

// Blocks 1 to this count are then written as the slots stand, full or not: a gap among the slots
// costs the last ones.
void CountHighlights(DesignRecord& design, LinePlace /*place*/) {
    design.NumberOfHighlights = 0;
    for (int slot = 1; slot <= kHighlights; ++slot) {
        if (design.HighlightStop[slot] > 0) {
            ++design.NumberOfHighlights;
        }
    }
}

void ListDeletions(DesignRecord& design, LinePlace /*place*/) {
    CollectDeletedTics(design);
}

// A step between the lines.
constexpr FileLine Step(int stage, AfterReading afterReading = {}) {
    return {nullptr, nullptr, Nowhere, nullptr, stage, afterReading};
}

// clang-format off
constexpr FileLine kHead[] = {
    {"Filename: ",                       WriteGlued,      At<&D::DesignFileName>,            Drop,            417},
    {"",                                 WriteDateTime,   Nowhere,                           Drop,            422},
    {kStarMark,                          WriteNothing,    Nowhere,                           nullptr,         424, {}, nullptr, nullptr, &S::carefulFiles},
    {"Plate width: ",                    WritePlain,      At<&D::PlateWidth>,                ReadEntry,       427},
    {"Plate height: ",                   WritePlain,      At<&D::PlateHeight>,               ReadEntry,       433},
    {"Bottom to bearing: ",              WritePlain,      At<&D::BottomToBearing>,           ReadEntry,       438},
    {"Bottom to mounting holes: ",       WritePlain,      At<&D::BottomToHoles>,             ReadEntry,       443},
    {"Hole separation: ",                WritePlain,      At<&D::HoleSeparation>,            ReadEntry,       448},
    {"Pointer deflection: ",             WritePlain,      At<&D::PointerDeflection>,         ReadEntry,       453},
    {"Dummy1: ",                         WriteOne,        Nowhere,                           Drop,            458},
    {"Dummy2:",                          WriteSpacedTwo,  Nowhere,                           Drop,            463},
    {"Minor ticmark length: ",           WritePlain,      At<&D::MinorTicLength>,            ReadEntry,       468},
    {"Minor ticmark width: ",            WritePlain,      At<&D::MinorTicWidth>,             ReadEntry,       473},
    {"Major ticmark length: ",           WritePlain,      At<&D::MajorTicLength>,            ReadEntry,       478},
    {"Major ticmark width: ",            WritePlain,      At<&D::MajorTicWidth>,             ReadEntry,       483},
    {"Font size: ",                      WritePlain,      At<&D::FontSize>,                  ReadEntry,       488},
    {"Actual/virtual offset: ",          WritePlain,      At<&D::ActualVirtualOffset>,       ReadEntry,       493},
    {"Dummy3: ",                         WriteThree,      Nowhere,                           Drop,            498},
    {"Dummy4: ",                         WriteFour,       Nowhere,                           Drop,            503},
    {"Plate style: ",                    WritePlain,      At<&D::PlateStyle>,                ReadEntry,       508, {ForceStandardStyle, &S::styles}},
    {"Draw arcs Y/N:",                   WriteGlued,      At<&D::DrawArcs>,                  ReadText,        513},
    {"Label rotation H/V/B:",            WriteGlued,      At<&D::LabelRotation>,             ReadText,        518},
    {"Print text Y/N:",                  WriteGlued,      At<&D::PrintText>,                 ReadText,        523},
    {"Label spacing: ",                  WritePlain,      At<&D::LabelSpacing>,              ReadEntry,       528},
    {"Font style: ",                     WriteGlued,      At<&D::FontName>,                  ReadTrimmed,     533, {ForceFont, &S::styles}},
    {"Number of scales: ",               WritePlain,      At<&D::NumberOfScales>,            ReadEntry,       538},
    Step(544),
};

constexpr FileLine kScaleColor =
    {"Scale color: ",                    WritePlain,      At<&D::ScaleColor>,                ReadEntry,       549};

constexpr FileLine kStandardScale[] = {
    {"Scale left end (units): ",         WritePlain,      At<&D::ScaleLeftEnd>,              ReadEntry,       554},
    {"Scale length (units): ",           WritePlain,      At<&D::ScaleLengthUnits>,          ReadEntry,       559},
    {"Bottom to title: ",                WritePlain,      At<&D::BottomToTitle>,             ReadEntry,       564},
    {"Bottom to scale ceiling: ",        WritePlain,      At<&D::BottomToScaleCeiling>,      ReadEntry,       569},
    {"Scale title:",                     WriteGlued,      At<&D::ScaleTitle>,                ReadText,        574},
    {"Number of ticmarks: ",             WritePlain,      At<&D::NrOfTicmarks>,              ReadEntry,       579},
    {"Major ticmarks every how often: ", WritePlain,      At<&D::MajorEveryHowMany>,         ReadEntry,       584},
    {"Labels every how many ticmarks: ", WritePlain,      At<&D::LabelsEveryHowMany>,        ReadEntry,       589},
    {"Linearity exponent: ",             WritePlain,      At<&D::LinearityExponent>,         ReadEntry,       594},
};

constexpr FileLine kSpecialScaleHead[] = {
    {"Bottom to scale title: ",          WritePlain,      At<&D::BottomToTitle>,             ReadEntry,       599},
    {"Bottom to scale ceiling: ",        WritePlain,      At<&D::BottomToScaleCeiling>,      ReadEntry,       604},
    {"Scale title:",                     WriteGlued,      At<&D::ScaleTitle>,                ReadText,        609},
    {"Number of ticmarks: ",             WritePlain,      At<&D::SpecialNrOfTicmarks>,       ReadEntry,       614},
    {"* Deflection, Label Y/N, Tic Y/N, Major Y/N, Label:",WriteNothing,    Nowhere,                           nullptr,         617},
};

// A label with a colon is cut where no other stands before it.
constexpr FileLine kNumberedTic =
    {"",                                 WriteNumberedTic,Nowhere,                           ReadTicFields,   620, {}, FillEmptyLabel};
constexpr FileLine kSpecialTic =
    {"",                                 WriteTicFields,  Nowhere,                           ReadTicFields,   620, {}, FillEmptyLabel};

// One line for the exponent of the scale's law, whichever that is; where both laws keep theirs, it
// is that of the block.
constexpr FileLine kBottomTic =
    {"Unlabelled ticmark at scale bottom Y/N: ",WriteTrimmed,    At<&D::UnlabelledBottomTic>,       ReadText,        625};
constexpr FileLine kSharedExponent =
    {"Scale exponent: ",                 WritePlain,      At<&D::LinearityExponent>,         ReadEntry,       630};
constexpr FileLine kSpecialExponent =
    {"Scale exponent: ",                 WritePlain,      At<&D::SpecialExponent>,           ReadEntry,       630};
constexpr FileLine kMultiplier =
    {"Fullscale multiplier: ",           WritePlain,      At<&D::FullscaleMultiplier>,       ReadEntry,       635};

constexpr FileLine kPlateTail[] = {
    {"Draw graphic Y/N:",                WriteGlued,      At<&D::DrawGraphic>,               ReadText,        645, {ForceNoGraphic, &S::reserveStages}, nullptr, DropUndrawnGraphic},
    {"Graphic filename:",                WriteGlued,      At<&D::GraphicFileName>,           ReadText,        650, {ForceNoGraphicFile, &S::reserveStages}},
    {"Left to graphic: ",                WritePlain,      At<&D::LeftToGraphic>,             ReadEntry,       655},
    {"Bottom to graphic: ",              WritePlain,      At<&D::BottomToGraphic>,           ReadEntry,       660},
    {"Graphic width: ",                  WritePlain,      At<&D::GraphicWidth>,              ReadEntry,       665},
    {"Graphic height: ",                 WritePlain,      At<&D::GraphicHeight>,             ReadEntry,       670},
    {"Arc width: ",                      WritePlain,      At<&D::ArcWidth>,                  ReadEntry,       675},
    {"Messages: ",                       WritePlain,      At<&D::MessageLevel>,              ReadEntry,       680},
    {"Texts: ",                          WritePlain,      At<&D::NumberOfTexts>,             ReadVal,         685},
};

constexpr FileLine kText[] = {
    {"Text %:",                          WriteGlued,      At<&D::TextString>,                ReadText,        690},
    {"Left to text: ",                   WritePadded,     At<&D::LeftToText>,                ReadVal,         695},
    {"Bottom to text: ",                 WritePadded,     At<&D::BottomToText>,              ReadVal,         700},
    {"Relative size: ",                  WritePadded,     At<&D::TextRelativeSize>,          ReadVal,         705},
    {"Color: ",                          WritePlain,      At<&D::TextColor>,                 ReadInteger,     710},
};

constexpr FileLine kHighlightCount =
    {"Highlights: ",                     WritePlain,      At<&D::NumberOfHighlights>,        ReadVal,         715, {SwitchHighlightsOn}, CountHighlights};

constexpr FileLine kHighlight[] = {
    {"Starting percentage: ",            WritePlain,      At<&D::HighlightStart>,            ReadEntry,       720},
    {"Stopping percentage: ",            WritePlain,      At<&D::HighlightStop>,             ReadEntry,       725},
    {"Ceiling: ",                        WritePlain,      At<&D::HighlightCeiling>,          ReadEntry,       730},
    {"Length: ",                         WritePlain,      At<&D::HighlightLength>,           ReadEntry,       735},
    {"Color: ",                          WritePlain,      At<&D::HighlightColor>,            ReadVal,         740},
};

constexpr FileLine kBackground[] = {
    Step(743, {ForceNoHighlights, &S::reserveStages}),
    {"Plate background: ",               WritePlain,      At<&D::PlateBackground>,           ReadVal,         745, {ForceWhitePlate, &S::styles}},
};

// The lists of scales 5 and 6 have no lines: deletions there do not outlive the session.
constexpr FileLine kDeletedTics[kFiledLists] = {
    {"Scale 1 - deleted tics: ",         WritePlain,      At<&D::DeletedTicCount>,           ReadVal,         750, {}, ListDeletions},
    {"Scale 2 - deleted tics: ",         WritePlain,      At<&D::DeletedTicCount>,           ReadVal,         760},
    {"Scale 3 - deleted tics: ",         WritePlain,      At<&D::DeletedTicCount>,           ReadVal,         770},
    {"Scale 4 - deleted tics: ",         WritePlain,      At<&D::DeletedTicCount>,           ReadVal,         780},
};
// Their places are the flags alone: a file may hold more of these lines than a list has slots.
constexpr FileLine kDeletedTic[kFiledLists] = {
    {"Tic deleted: ",                    WriteDeletedTic, Nowhere,                           ReadDeletedTic,  755},
    {"Tic deleted: ",                    WriteDeletedTic, Nowhere,                           ReadDeletedTic,  765},
    {"Tic deleted: ",                    WriteDeletedTic, Nowhere,                           ReadDeletedTic,  775},
    {"Tic deleted: ",                    WriteDeletedTic, Nowhere,                           ReadDeletedTic,  785},
};

constexpr FileLine kDeletedLabels[kFiledLists] = {
    {"Scale 1 - deleted labels: ",       WritePlain,      At<&D::DeletedLabelCount>,         ReadVal,         790},
    {"Scale 2 - deleted labels: ",       WritePlain,      At<&D::DeletedLabelCount>,         ReadVal,         800},
    {"Scale 3 - deleted labels: ",       WritePlain,      At<&D::DeletedLabelCount>,         ReadVal,         810},
    {"Scale 4 - deleted labels: ",       WritePlain,      At<&D::DeletedLabelCount>,         ReadVal,         820},
};
constexpr FileLine kDeletedLabel[kFiledLists] = {
    {"Label deleted: ",                  WriteDeletedLabel,Nowhere,                          ReadDeletedLabel,795},
    {"Label deleted: ",                  WriteDeletedLabel,Nowhere,                          ReadDeletedLabel,805},
    {"Label deleted: ",                  WriteDeletedLabel,Nowhere,                          ReadDeletedLabel,815},
    {"Label deleted: ",                  WriteDeletedLabel,Nowhere,                          ReadDeletedLabel,825},
};

constexpr FileLine kFontSizesHeading =
    {"Relative font sizes:",             WriteNothing,    Nowhere,                           Drop,            830};
constexpr FileLine kFontSize =
    {"Scale %: ",                        WritePlain,      At<&D::RelativeFontSize>,          ReadEntry,       835};

constexpr FileLine kAspect[] = {
    {"Aspect ratio: ",                   WritePlain,      At<&D::AspectRatio>,               ReadVal,         840, {HoldAspect}},
    {"Number of correction points: ",    WritePlain,      At<&D::NumberOfCorrectionPoints>,  ReadFirstVal,    845, {ForceSevenPoints, &S::curveInFile}},
};
constexpr FileLine kCurvePoint =
    {"Pair #%: ",                        WriteCurvePoint, Nowhere,                           ReadCurvePoint,  850};
constexpr FileLine kAfterCurve[] = {
    Step(852, {ForceStraightCurve, &S::curveInFile}),
    Step(853, {.take = ComputeGuardedSlopes, .takenWith = &S::curveInFile}),
};

constexpr FileLine kTicsAndArcsHeading =
    {"Print ticmarks and arcs:",         WriteNothing,    Nowhere,                           Drop,            855};
constexpr FileLine kTicsAndArcs =
    {"Scale %: ",                        WriteTicsAndArcs,Nowhere,                           ReadTicsAndArcs, 860};
// What the file gains stands behind what is forced and before the end: a file that is older ends
// there, and nothing behind is run.
constexpr FileLine kTail[] = {
    Step(862, {ForceTicsAndArcs, &S::severalScales}),
    Step(863, {.take = NumberTicsAndArcs, .takenWith = &S::severalScales}),
    Step(990),
};
// clang-format on

} // namespace

bool IsOfHead(const FileLine& line) {
    return line.stage <= std::end(kHead)[-1].stage;
}

bool LooksLikeHead(std::string_view item, bool isEnded) {
    return std::any_of(std::begin(kHead), std::end(kHead), [=](const FileLine& line) {
        const std::string_view label = line.label ? line.label : "";
        const std::string_view word = label.substr(0, label.rfind(':') + 1); // without its blank
        return !word.empty() && (item.starts_with(word) || (!isEnded && word.starts_with(item)));
    });
}

template <std::size_t Count>
void FileWalker::VisitAll(const FileLine (&lines)[Count], LinePlace place) {
    for (const FileLine& line : lines) {
        if (!line.standsWith || IsLifted(line.standsWith)) {
            Visit(line, place);
        }
    }
}

void FileWalker::Walk() {
    VisitAll(kHead);
    const int scales = design_.NumberOfScales;
    for (int scale = 1; scale <= scales; ++scale) {
        WalkScale(scale);
    }
    VisitAll(kPlateTail);
    for (int text = 1, last = design_.NumberOfTexts; text <= last; ++text) {
        VisitAll(kText, {text});
    }
    Visit(kHighlightCount, {});
    for (int highlight = 1, last = design_.NumberOfHighlights; highlight <= last; ++highlight) {
        VisitAll(kHighlight, {highlight});
    }
    VisitAll(kBackground);
    WalkDeletions();
    WalkPerScale(kFontSizesHeading, kFontSize);
    VisitAll(kAspect);
    for (int point = 1; point <= kCurvePoints; ++point) {
        Visit(kCurvePoint, {point});
    }
    VisitAll(kAfterCurve);
    WalkPerScale(kTicsAndArcsHeading, kTicsAndArcs);
    VisitAll(kTail);
}

void FileWalker::WalkScale(int scale) {
    Visit(kScaleColor, {scale});
    if (design_.ScaleColor[scale] >= 0) {
        VisitAll(kStandardScale, {scale});
        return;
    }
    VisitAll(kSpecialScaleHead, {scale});
    for (int tic = 0, last = design_.SpecialNrOfTicmarks[scale]; tic <= last; ++tic) {
        Visit(Service.carefulFiles ? kNumberedTic : kSpecialTic, {scale, tic});
    }
    Visit(kBottomTic, {scale});
    Visit(Service.carefulFiles ? kSpecialExponent : kSharedExponent, {scale});
    Visit(kMultiplier, {scale});
}

void FileWalker::WalkDeletions() {
    for (int scale = 1; scale <= kFiledLists; ++scale) {
        Visit(kDeletedTics[scale - 1], {scale});
        for (int entry = 1, last = design_.DeletedTicCount[scale]; entry <= last; ++entry) {
            Visit(kDeletedTic[scale - 1], {scale, entry});
        }
    }
    for (int scale = 1; scale <= kFiledLists; ++scale) {
        Visit(kDeletedLabels[scale - 1], {scale});
        for (int entry = 1, last = design_.DeletedLabelCount[scale]; entry <= last; ++entry) {
            Visit(kDeletedLabel[scale - 1], {scale, entry});
        }
    }
}

void FileWalker::WalkPerScale(const FileLine& heading, const FileLine& line) {
    Visit(heading, {});
    const int scales = design_.NumberOfScales;
    for (int scale = 1; scale <= scales; ++scale) {
        Visit(line, {scale});
    }
}

} // namespace vernacle
