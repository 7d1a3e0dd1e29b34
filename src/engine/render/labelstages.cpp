#include <array>
#include <cmath>

#include "engine/base/hostservices.h"
#include "engine/base/text.h"
#include "engine/core/design.h"
#include "engine/geometry/primitives.h"
#include "engine/geometry/sheet.h"
#include "engine/render/stages.h"
#include "engine/scale/scale.h"

namespace vernacle {

namespace {

// Sizes per point of font size, in half millimetres of the plate: of the made fonts, and of the
// ordinary font that measures for them.
constexpr double kLabelHeight = 0.0513;
constexpr double kTitleHeight = 0.05;
constexpr double kCharacterWidth = 0.0198;
constexpr double kOrdinarySize = 0.0285;

// The height of a made font per point; the sampled fitting asks for that of the characters.
double HeightPerPoint(const DrawingRun& run, double usual) {
    const bool sampled = run.traits.labelFitting == LabelFitting::Sampled;
    return sampled ? -kTitleHeight * run.frame.aspect : usual;
}

struct MadeFont {
    double heightPerPoint;
    double points;
    int escapement;
};

// Writes with a font made for it; its top left corner is at (x, y).
void WriteText(DrawingRun& run, SurfacePoint at, const std::string& text, const MadeFont& font) {
    const double height = run.frame.upPerHalfMm * font.heightPerPoint * font.points * run.screen.y;
    const double width = run.frame.AcrossPerHalfMm() * kCharacterWidth * font.points * run.screen.x;
    run.surface.BeginFont(RoundToInt(height), RoundToInt(width), font.escapement,
                          run.state.LabelFontFace);
    run.surface.SetCurrentX(F(at.x));
    run.surface.SetCurrentY(F(at.y));
    run.surface.PrintText(text);
    run.surface.EndFont();
}

// Half the size of a label, in units per unit of its measure: how far its corner stands from its
// middle.
struct LabelMeasure {
    double across;
    double down;
    double textWidth;
    double textHeight;
};

LabelMeasure MeasureLabel(const DrawingRun& run, const TicLabel& label, double points) {
    const double width = double{run.surface.TextWidth(label.text)};
    const double height = double{run.surface.TextHeight(label.text)};
    return {run.frame.AcrossPerHalfMm() * 0.0011 * run.screen.x * points,
            run.frame.upPerHalfMm * 0.001 * run.screen.y * points, width, height};
}

SurfacePoint Upright(SurfacePoint anchor, const LabelMeasure& m) {
    return {anchor.x - m.across * m.textWidth, anchor.y - m.down * m.textHeight};
}

SurfacePoint AlongRadius(SurfacePoint anchor, const LabelMeasure& m, double t) {
    return {anchor.x - m.across * (m.textWidth * std::sin(t) + m.textHeight * std::cos(t)),
            anchor.y + m.down * (m.textWidth * std::cos(t) - m.textHeight * std::sin(t))};
}

// The label's corner, so that the middle of its text comes to stand at the anchor.
SurfacePoint MeasuredCorner(const DrawingRun& run, const TicLabel& label, SurfacePoint anchor,
                            double t) {
    const double fontSize = double{run.sizes.fontSize};
    const double points = fontSize * RelativeSizeOf(run.design, label.scale);
    if (run.design.LabelRotation == "H") {
        return Upright(anchor, MeasureLabel(run, label, points));
    }
    if (run.design.LabelRotation == "B") {
        // A special scale's turned labels take the plate's size alone.
        const double turned = label.special ? fontSize : points;
        return AlongRadius(anchor, MeasureLabel(run, label, turned), t);
    }
    return anchor;
}

// The wizard's page: fitted to a sample text of 303 by 149 units at 16 points.
SurfacePoint SampledCorner(const DrawingRun& run, int scale, SurfacePoint anchor, double t) {
    const double points = double{run.sizes.fontSize} * RelativeSizeOf(run.design, scale) / 16;
    const double across = run.frame.AcrossPerHalfMm() * run.screen.y * points;
    const double up = run.frame.upPerHalfMm * run.screen.y * points;
    if (run.design.LabelRotation == "H") {
        return Upright(anchor, {across * 0.014, up * 0.011, 303, 149});
    }
    if (run.design.LabelRotation == "B") {
        const double width = double{run.surface.TextWidth("jjj")};
        const double height = double{run.surface.TextHeight("jjjj")};
        return AlongRadius(anchor, {across * kOrdinarySize, across * kOrdinarySize, width, height},
                           t);
    }
    return anchor;
}

// A text of a true plate in the font of the plate.
void PlaceAt(DrawingRun& run, SurfacePoint at, TextAnchor anchor, const std::string& text,
             double points, double turnRad = 0) {
    const double em = points * kMmPerPoint * run.traits.unitsPerMm;
    run.surface.PlaceText(text,
                          {at, anchor, em, turnRad, std::string(Trimmed(run.design.FontName))});
}

// Of a full circle's one scale the last tic stands on the first.
bool IsOnFirst(const DesignRecord& design, const TicLabel& label) {
    const int last =
        label.special ? design.SpecialNrOfTicmarks[label.scale] : design.NrOfTicmarks[label.scale];
    return IsFullCircle(design) && label.number == last;
}

// A label of a true plate; a lone "/" stands for none.
void PlaceLabel(DrawingRun& run, const TicLabel& label, const ArcPlace& place,
                SurfacePoint anchor) {
    if (label.text == "/" || IsOnFirst(run.design, label) || !HasPlace(run, label.scale, place)) {
        return;
    }
    const double relative = RelativeSizeOf(run.design, label.scale);
    PlaceAt(run, anchor, TextAnchor::Middle, label.text, double{run.sizes.fontSize} * relative,
            LabelTurn(run.design, place));
}

void DrawLabel(DrawingRun& run, const TicLabel& label) {
    const ArcPlace place =
        PlaceTic(run.design, run.frame, run.traits.correction, label.scale, label.deflection);
    const double relative = RelativeSizeOf(run.design, label.scale);
    const double t = place.pointerAngleRad;
    const SurfacePoint anchor =
        AlongPointer(run.frame, place.point, t, double{run.sizes.labelSpacing} * relative,
                     DirectionOf(label.scale));
    if (run.traits.labelFitting == LabelFitting::Centred) {
        PlaceLabel(run, label, place, anchor);
        return;
    }
    const bool sampled = run.traits.labelFitting == LabelFitting::Sampled;
    const SurfacePoint corner = sampled ? SampledCorner(run, label.scale, anchor, t)
                                        : MeasuredCorner(run, label, anchor, t);
    WriteText(run, corner, label.text,
              {.heightPerPoint = HeightPerPoint(run, kLabelHeight),
               .points = double{run.sizes.fontSize} * relative,
               .escapement = LabelEscapement(run.design, run.frame, place)});
}

void DrawLabels(DrawingRun& run, int scale) {
    const double points = double{run.design.RelativeFontSize[scale]} * double{run.sizes.fontSize};
    run.surface.SetFontSize(run.frame.upPerHalfMm * kOrdinarySize * points * run.screen.y);
    run.steps.RaiseRelativeSize(scale);
    const bool setsBack = run.traits.labelFlags == LabelFlags::SetBack;
    if (setsBack) {
        run.steps.ClearColour(scale);
    }
    run.surface.SetForeColor(InkOf(run.design, scale));
    const auto draw = [&run](const TicLabel& label) { DrawLabel(run, label); };
    const auto setBack = [&run, setsBack](int of, int tic) {
        if (setsBack) {
            run.steps.SetBackLabel(of, tic);
        }
    };
    if (ShowsSpecial(run, scale)) {
        run.state.WhereMarker = kMarkSpecialLabels;
        WalkSpecialLabels(run.design, scale, run.traits.labelFlags, setBack, draw);
    } else {
        run.state.WhereMarker = kMarkStandardLabels;
        WalkStandardLabels(run.design, scale, run.traits.labelFlags, setBack, draw);
    }
}

// Half plate widths from the centre line to the titles of a quadrant plate's scales.
constexpr std::array<double, 5> kQuadrantTitles = {0, 0.8, 0.4, 0.4, 0.2};

double TitleX(const DrawingRun& run, int scale) {
    const double width = double{run.surface.TextWidth(run.design.ScaleTitle[scale])};
    return QuadrantTitleX(run.design, run.frame, scale)
        .value_or(run.frame.centreX - run.frame.aspect * 0.59 * width);
}

void PlaceTitle(DrawingRun& run, int scale, double y) {
    const auto left = QuadrantTitleX(run.design, run.frame, scale);
    PlaceAt(run, {left.value_or(run.frame.centreX), y},
            left ? TextAnchor::TopLeft : TextAnchor::TopMiddle, run.design.ScaleTitle[scale],
            double{run.sizes.fontSize} * RelativeSizeOf(run.design, scale));
}

void DrawTitle(DrawingRun& run, int scale) {
    run.surface.SetForeColor(InkOf(run.design, scale));
    const double y =
        (run.frame.heightMm - 2 * double{run.design.BottomToTitle[scale]}) * run.frame.upPerHalfMm +
        run.frame.centreY;
    if (run.traits.labelFitting == LabelFitting::Centred) {
        PlaceTitle(run, scale, y);
        return;
    }
    WriteText(run, {TitleX(run, scale), y}, run.design.ScaleTitle[scale],
              {.heightPerPoint = HeightPerPoint(run, kTitleHeight),
               .points = double{run.sizes.fontSize} * RelativeSizeOf(run.design, scale),
               .escapement = 0});
}

} // namespace

std::string FontFace(const std::string& name) {
    return std::string(Trimmed(name)) + '\0';
}

double LabelTurn(const DesignRecord& design, const ArcPlace& place) {
    if (design.LabelRotation == "B") {
        return kRightAngle - place.pointerAngleRad;
    }
    if (design.LabelRotation == "V") {
        return kRightAngle - place.arcAngleRad;
    }
    return 0;
}

int LabelEscapement(const DesignRecord& design, const PlateFrame& frame, const ArcPlace& place) {
    const double tenthsPerRadian = 10 * frame.degreesPerRadian;
    return RoundToInt(LabelTurn(design, place) * tenthsPerRadian);
}

std::optional<double> QuadrantTitleX(const DesignRecord& design, const PlateFrame& frame,
                                     int scale) {
    const auto index = static_cast<std::size_t>(scale);
    if (design.PlateStyle != 1 || index >= kQuadrantTitles.size()) {
        return std::nullopt;
    }
    return frame.centreX - kQuadrantTitles[index] * frame.AcrossPerHalfMm() * frame.widthMm;
}

void FontStage(DrawingRun& run) {
    run.state.WhereMarker = kMarkFont;
    const std::string name = run.traits.fontName ? run.traits.fontName : run.design.FontName;
    run.state.LabelFontFace = FontFace(name);
    run.surface.SetFontName(name);
}

void LabelsStage(DrawingRun& run) {
    if (run.design.PrintText != "Y") {
        return;
    }
    if (run.traits.tables == Tables::ByColour) {
        ForEachScaleUpward(run, [&run](int scale) { DrawLabels(run, scale); });
    } else {
        DrawLabels(run, run.design.CurrentScale);
    }
}

void TitlesStage(DrawingRun& run) {
    if (run.design.PrintText == "Y") {
        run.state.WhereMarker = kMarkTitles;
        ForEachScaleUpward(run, [&run](int scale) { DrawTitle(run, scale); });
    }
}

void FreeTextsStage(DrawingRun& run) {
    const FreeTexts texts = run.sizes.texts ? *run.sizes.texts : CopyOfTexts(run.design);
    for (int text = 1; text <= kTexts; ++text) {
        if (texts.TextString[text].empty()) {
            continue;
        }
        const double fromLeft = double{texts.LeftToText[text]};
        const double fromBottom = double{texts.BottomToText[text]};
        const SurfacePoint corner = PlatePoint(run.frame, fromLeft, fromBottom);
        const double points = double{run.sizes.fontSize} * double{texts.TextRelativeSize[text]};
        run.surface.SetForeColor(texts.TextColor[text]);
        if (run.traits.IsTrue()) {
            PlaceAt(run, corner, TextAnchor::TopLeft, texts.TextString[text], points);
        } else {
            WriteText(run, corner, texts.TextString[text],
                      {.heightPerPoint = kLabelHeight, .points = points, .escapement = 0});
        }
    }
}

// A pixel counts as so many units as it has twips on a screen of usual size.
double FreeTextWidthMm(double averageCharacters, double points) {
    const double halfMm = averageCharacters * kCharacterWidth * kTwipsPerPixel * points;
    return halfMm / 2;
}

} // namespace vernacle
