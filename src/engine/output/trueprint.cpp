#include "engine/output/trueprint.h"

#include <algorithm>
#include <string>

#include "engine/base/hostservices.h"
#include "engine/base/text.h"
#include "engine/core/design.h"
#include "engine/geometry/primitives.h"
#include "engine/geometry/sheet.h"
#include "engine/output/print.h"
#include "engine/render/drawing.h"

namespace vernacle {

namespace {

constexpr double kFooterReach = 1450;
constexpr double kFooterStart = 1000;
constexpr double kFooterLine = 150;

PlateFrame TrueFrameOn(const DesignRecord& design, const PrinterSurface& printer) {
    return printer.IsDevice()
               ? TrueFrame(design, double{design.CalibrationX}, double{design.CalibrationY})
               : TrueFrame(design, 1, 1);
}

void PrintTrueFooter(const DesignRecord& design, PrinterSurface& printer, const PlateFrame& frame) {
    printer.SetFontSize(kFooterPoints);
    double y = frame.Bottom() + kFooterStart;
    for (const std::string& line :
         {std::string(FileNameOf(design.DesignFileName)),
          std::string("Printed by Vernacle from Harrowgate Software"), Host.localDateTime()}) {
        printer.SetCurrentX(F(frame.Left()));
        printer.SetCurrentY(F(y));
        printer.PrintText(line);
        y += kFooterLine;
    }
}

// What must not be lost, from top to bottom. A circular plate may be higher than its entry.
struct KeptPart {
    double top;
    double bottom;
};

KeptPart KeptOf(const DesignRecord& design, const PlateFrame& frame) {
    const double round = design.PlateOutlineCircular == 1 ? frame.upPerHalfMm * frame.widthMm : 0;
    return {std::min(frame.Top(), frame.centreY - round) - kMarksReach,
            std::max(frame.Bottom() + kFooterReach, frame.centreY + round)};
}

// What is printed beside and below the plate, by how far it reaches past the plate's edges, units.
struct PrintedPart {
    const char* name;
    double aside; // to the left and to the right
    double above;
    double below;
};

constexpr double kRulerReach = 700; // with its numbers
constexpr double kHalfNumber = 120;

constexpr PrintedPart kPrintedParts[] = {
    {"the plate's edge", 0, 0, 0},
    {"trim marks", kMarksReach, kMarksReach, kMarksReach},
    {"the ruler", kHalfNumber, 0, kRulerReach},
    {"the footer", 0, 0, kFooterReach},
};

// The part of the logical area that a printer's sheet shows, units.
struct ShownPart {
    double left, top, right, bottom;
};

ShownPart ShownOn(double widthMm, double heightMm, const KeptPart& kept) {
    const double startX = AreaStartMm(widthMm, kSheetWidth, kSheetCentre.x);
    const double startY = AreaStartMm(heightMm, kSheetHeight, kSheetCentre.y);
    const double top = startY + kept.top / kSheetUnitsPerMm;
    const double bottom = startY + kept.bottom / kSheetUnitsPerMm;
    const double down = AreaShift(kUnprintableMm - top, heightMm - kUnprintableMm - bottom);
    const auto units = [](double mm) { return mm * kSheetUnitsPerMm; };
    return {units(kUnprintableMm - startX), units(kUnprintableMm - startY - down),
            units(widthMm - kUnprintableMm - startX),
            units(heightMm - kUnprintableMm - startY - down)};
}

} // namespace

std::string CutOffOnSheet(const DesignRecord& design, double widthMm, double heightMm) {
    constexpr double kTolerance = 1; // unit
    const PlateFrame frame =
        TrueFrame(design, double{design.CalibrationX}, double{design.CalibrationY});
    const ShownPart shown = ShownOn(widthMm, heightMm, KeptOf(design, frame));
    std::string cut;
    for (const PrintedPart& part : kPrintedParts) {
        const bool fits = frame.Left() - part.aside >= shown.left - kTolerance &&
                          frame.Right() + part.aside <= shown.right + kTolerance &&
                          frame.Top() - part.above >= shown.top - kTolerance &&
                          frame.Bottom() + part.below <= shown.bottom + kTolerance;
        if (!fits) {
            cut += (cut.empty() ? "" : ", ") + std::string(part.name);
        }
    }
    return cut;
}

bool PrintTruePlate(const DesignRecord& design, PrinterSurface& printer) {
    DrawingState state;
    return PrintReporting(printer, state, [&] {
        const PlateFrame frame = TrueFrameOn(design, printer);
        const KeptPart kept = KeptOf(design, frame);
        printer.KeepOnSheet(F(kept.top), F(kept.bottom));
        printer.StartSheet();
        DrawTruePlate(design, printer, TruePlateTraits(TrueMedium::Paper), frame,
                      {design.FontSize, design.LabelSpacing}, state);
        PrintTrueFooter(design, printer, frame);
        printer.EndDoc();
    });
}

} // namespace vernacle
