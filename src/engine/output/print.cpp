#include "engine/output/print.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "engine/base/hostservices.h"
#include "engine/base/text.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/geometry/primitives.h"
#include "engine/geometry/sheet.h"
#include "engine/output/calibrate.h"
#include "engine/output/trueprint.h"
#include "engine/render/overlays.h"
#include "engine/render/stages.h"
#include "engine/scale/scale.h"

namespace vernacle {

namespace {

constexpr double kBleed = 50;      // the background goes this far past the cut
constexpr double kRulerPoints = 8; // at which 45 units are half a digit
constexpr const char* kWebAddress = "https://harrowgate.example/vernacle";

struct PrintRun {
    const DesignRecord& design;
    DrawingRun drawing;
    PrinterSurface& printer;
    PageCopies ofScale; // the sizes at the relative size of the scale that is being printed
};

void PrintAt(PrinterSurface& printer, double x, double y, const std::string& text) {
    printer.SetCurrentX(F(x));
    printer.SetCurrentY(F(y));
    printer.PrintText(text);
}

void PrintBackground(PrintRun& run) {
    const PlateFrame& frame = run.drawing.frame;
    run.printer.FilledBox(F(frame.Left() - kBleed), F(frame.Top() - kBleed),
                          F(frame.Right() + kBleed), F(frame.Bottom() + kBleed),
                          run.design.PlateBackground);
}

void PrintOutline(PrintRun& run) {
    if (run.design.PlateOutlineCircular == 1) {
        DrawOutline(run.printer, run.drawing.frame, OutlineStart::Dotted, kBlackInk);
    }
}

// Sets the sizes and the ink of a scale's labels.
void SelectScale(PrintRun& run, int scale) {
    const DrawingRun& drawing = run.drawing;
    drawing.steps.RaiseRelativeSize(scale);
    const double relative = RelativeSizeOf(drawing.design, scale);
    run.ofScale.fontSize = F(double{drawing.sizes.fontSize} * relative);
    run.ofScale.labelSpacing = F(double{drawing.sizes.labelSpacing} * relative);
    run.printer.SetFontName(drawing.design.FontName);
    run.printer.SetFontSize(double{run.ofScale.fontSize});
    run.printer.SetForeColor(InkOf(drawing.design, scale));
}

double Sign(Direction direction) {
    return direction == Direction::Outward ? -1 : 1;
}

// Turned text needs the device: it is placed in the pixels of a page whose centre, the plate's
// centre, is at 2500, 1675 of a 600 dpi printer.
void PrintTurnedLabel(PrintRun& run, const TicLabel& label) {
    PrinterSurface& printer = run.printer;
    const PlateFrame& frame = run.drawing.frame;
    printer.PrintText(" "); // so that the page has begun and its device can be drawn on
    const ArcPlace place =
        PlaceTic(run.design, frame, run.drawing.traits.correction, label.scale, label.deflection);
    const double t = place.pointerAngleRad;
    const double p = place.arcAngleRad;
    const double radius = ScaleRadius(frame, double{run.design.BottomToScaleCeiling[label.scale]});
    const double across = 2 / double{printer.TwipsPerPixelX()} * frame.plateScale;
    const double up = 2.04 / double{printer.TwipsPerPixelY()} * frame.upPerHalfMm;
    double x = across * radius * -std::cos(p) + 2500;
    double y = up * 0.5 * frame.heightMm + 1675 -
               up * (radius * std::sin(p) - frame.offsetMm + frame.bearingMm);
    const double spacing = Sign(DirectionOf(label.scale)) * double{run.ofScale.labelSpacing};
    x += across * spacing * std::cos(t);
    y += up * spacing * std::sin(t);

    const std::string text = PrintedLabel(label);
    const double turn = run.design.LabelRotation == "V" ? p : t;
    const double width = double{printer.TextWidth(text)};
    const double height = double{printer.TextHeight(text)};
    const double points = double{run.ofScale.fontSize};
    x -= 0.06 / double{printer.TwipsPerPixelX()} * points *
         (width * std::sin(turn) + height * std::cos(turn));
    y += 0.06 / double{printer.TwipsPerPixelY()} * points *
         (width * std::cos(turn) - height * std::sin(turn));
    const double em = points * 20 / double{printer.TwipsPerPixelY()}; // 20 twips to the point
    printer.BeginFont(-RoundToInt(em), 0, LabelEscapement(run.design, frame, place),
                      run.drawing.state.LabelFontFace);
    printer.TextOutA(RoundToInt(x), RoundToInt(y), text);
    printer.EndFont();
}

void PrintUprightLabel(PrintRun& run, const TicLabel& label) {
    const PlateFrame& frame = run.drawing.frame;
    const ArcPlace place =
        PlaceTic(run.design, frame, run.drawing.traits.correction, label.scale, label.deflection);
    // Coordinates are 32-bit floats before they are cut: a label at mid-scale, a hair off the
    // centre line in double precision, would else lose a unit.
    const SurfacePoint whole = {std::trunc(F(place.point.x)), std::trunc(F(place.point.y))};
    const SurfacePoint anchor =
        AlongPointer(frame, whole, place.pointerAngleRad, double{run.ofScale.labelSpacing},
                     DirectionOf(label.scale));
    const std::string text = PrintedLabel(label);
    PrintAt(run.printer, std::floor(F(anchor.x - 0.5 * double{run.printer.TextWidth(text)})),
            std::floor(F(anchor.y - 0.5 * double{run.printer.TextHeight(text)})), text);
}

void PrintLabels(PrintRun& run) {
    const bool turned = run.design.LabelRotation == "B" || run.design.LabelRotation == "V";
    ForEachScaleUpward(run.drawing, [&](int scale) {
        SelectScale(run, scale);
        run.drawing.state.WhereMarker =
            IsSpecial(run.design, scale) ? kMarkSpecialLabels : kMarkStandardLabels;
        WalkLabels(run.design, scale, run.drawing.traits.labelFlags, [&](const TicLabel& label) {
            if (turned) {
                PrintTurnedLabel(run, label);
            } else {
                PrintUprightLabel(run, label);
            }
        });
    });
}

// The only clipping of any output: a title stays on the paper, if not on the plate.
void PrintTitle(PrintRun& run, int scale) {
    SelectScale(run, scale);
    const PlateFrame& frame = run.drawing.frame;
    const std::string& title = run.design.ScaleTitle[scale];
    const double width = double{run.printer.TextWidth(title)};
    const double x = QuadrantTitleX(run.design, frame, scale)
                         .value_or(kSheetCentre.x - width * frame.plateScale * 0.018);
    const double y =
        (frame.heightMm - 2 * double{run.design.BottomToTitle[scale]}) * frame.upPerHalfMm +
        kSheetCentre.y;
    PrintAt(run.printer, std::trunc(std::clamp(x, 300.0, 11200.0)),
            std::trunc(std::clamp(y, 300.0, 14900.0)), title);
}

void PrintTitles(PrintRun& run) {
    run.drawing.state.WhereMarker = kMarkTitles;
    ForEachScaleUpward(run.drawing, [&run](int scale) { PrintTitle(run, scale); });
}

void PrintRuler(PrintRun& run) {
    DrawRuler(run.drawing, {.lengthMm = double{run.design.PlateWidth},
                            .belowPlate = 400,
                            .fineWidth = 5,
                            .coarseWidth = 10,
                            .baseWidth = 5,
                            .fontPoints = kRulerPoints,
                            .unit = "MILLIMETERS"});
}

void PrintFooter(PrintRun& run) {
    const double x = run.drawing.frame.Left();
    const double bottom = run.drawing.frame.Bottom();
    run.printer.SetFontSize(kFooterPoints);
    PrintAt(run.printer, x, bottom + 1000, run.design.DesignFileName);
    PrintAt(run.printer, x, bottom + 1150, "Printed by Vernacle from Harrowgate Software");
    PrintAt(run.printer, x, bottom + 1300, kWebAddress);
    PrintAt(run.printer, x, bottom + 1450, Host.localDateTime());
}

// The plate and its trim marks, without which it cannot be cut out; a circular outline may be
// higher than the plate.
void KeepPlateOnSheet(PrintRun& run) {
    const PlateFrame& frame = run.drawing.frame;
    const double outline =
        run.design.PlateOutlineCircular == 1 ? frame.plateScale * frame.widthMm : 0;
    const double top = std::min(frame.Top() - kMarksReach, kSheetCentre.y - outline);
    const double bottom = std::max(frame.Bottom() + kMarksReach, kSheetCentre.y + outline);
    run.printer.KeepOnSheet(F(top), F(bottom));
}

void PrintPage(PrintRun& run) {
    KeepPlateOnSheet(run);
    run.printer.StartSheet();
    PrintBackground(run);
    PrintOutline(run);
    for (const DrawingStage stage : run.drawing.traits.stages) {
        stage(run.drawing);
    }
    if (run.design.PrintText == "Y") {
        PrintLabels(run);
        PrintTitles(run);
    }
    PrintRuler(run);
    PrintFooter(run);
    EndStage(run.drawing);
    run.printer.EndDoc();
}

void EndDocQuietly(PrinterSurface& printer) {
    try {
        printer.EndDoc();
    } catch (const RunTimeError&) {
        // The document has already failed; that is what is reported.
    }
}

// Highlights and free texts have no place here, and the graphic none at all.
constexpr DrawingStage kPrintStages[] = {
    TrimMarksStage, HolesStage, BearingsStage, TicsStage, ArcsStage, FontStage,
};

} // namespace

DrawingTraits PrintTraits() {
    return {.centre = kSheetCentre,
            .preparation = Preparation::None,
            .lineWidths = {.trimMarks = 16, .holes = 6, .bearings = 3, .arcFactor = 2.4},
            .stages = kPrintStages};
}

PlateFrame PrintFrame(const DesignRecord& design) {
    PlateFrame frame =
        FrameOfDesign(design, double{design.CalibrationX} * kSheetUnitsPerHalfMm, kSheetCentre);
    frame.upPerHalfMm = double{design.CalibrationY} * kSheetUnitsPerHalfMm;
    return frame;
}

std::string PrintedLabel(const TicLabel& label) {
    return label.text == "/" ? " " : label.text;
}

bool PrintDesign(const DesignRecord& design, PrinterSurface& printer, const DrawingSteps& steps) {
    const DrawingTraits traits = PrintTraits();
    DrawingState state;
    state.WhereMarker = kMarkStart;
    return PrintReporting(printer, state, [&] {
        const PageCopies sizes{design.FontSize, design.LabelSpacing};
        PrintRun run{design,
                     {design, printer, traits, state, steps, sizes, PrintFrame(design)},
                     printer,
                     sizes};
        PrintPage(run);
    });
}

bool PrintReporting(PrinterSurface& printer, const DrawingState& state,
                    const std::function<void()>& print) {
    try {
        print();
        return true;
    } catch (const RunTimeError& failure) {
        EndDocQuietly(printer);
        Host.failureBox({"We had a problem driving the printer.\n\nPrintScaleErrorHandler 1026 " +
                             std::to_string(state.WhereMarker),
                         failure.what()});
        return false;
    }
}

bool PrintPlate(DesignRecord& design, PrinterSurface& printer) {
    HoldCalibration(design);
    return Service.truePlate ? PrintTruePlate(design, printer)
                             : PrintDesign(design, printer, StepsOn(design));
}

} // namespace vernacle
