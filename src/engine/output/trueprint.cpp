#include "engine/output/trueprint.h"

#include <algorithm>
#include <string>

#include "engine/base/hostservices.h"
#include "engine/base/text.h"
#include "engine/core/design.h"
#include "engine/geometry/primitives.h"
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

// A circular plate may be higher than its entry.
void KeepAllOnSheet(const DesignRecord& design, PrinterSurface& printer, const PlateFrame& frame) {
    const double round = design.PlateOutlineCircular == 1 ? frame.upPerHalfMm * frame.widthMm : 0;
    printer.KeepOnSheet(F(std::min(frame.Top(), frame.centreY - round) - kMarksReach),
                        F(std::max(frame.Bottom() + kFooterReach, frame.centreY + round)));
}

} // namespace

bool PrintTruePlate(const DesignRecord& design, PrinterSurface& printer) {
    DrawingState state;
    return PrintReporting(printer, state, [&] {
        const PlateFrame frame = TrueFrameOn(design, printer);
        KeepAllOnSheet(design, printer, frame);
        printer.StartSheet();
        DrawTruePlate(design, printer, TruePlateTraits(TrueMedium::Paper), frame,
                      {design.FontSize, design.LabelSpacing}, state);
        PrintTrueFooter(design, printer, frame);
        printer.EndDoc();
    });
}

} // namespace vernacle
