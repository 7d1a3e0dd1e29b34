#include "engine/output/calibrate.h"

#include <algorithm>
#include <cmath>

#include "engine/base/hostservices.h"
#include "engine/base/linereader.h"
#include "engine/base/numbertext.h"
#include "engine/base/text.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/designfile/linedoubts.h"
#include "engine/geometry/primitives.h"
#include "engine/geometry/sheet.h"

namespace vernacle {

namespace {

constexpr const char* kCalibrationFile = "Calibrate.txt";
constexpr const char* kHeader = "\"Vernacle calibration file\"";
constexpr float kSmallestFactor = 0.5F;
constexpr float kLargestFactor = 2;
constexpr double kSquareMm = 100;

void RaiseFactor(float& factor) {
    if (factor == 0) {
        factor = 1;
    }
}

std::string CalibrationText(const DesignRecord& design) {
    return std::string(kHeader) + "\r\n\r\n#" + Host.isoDateTime() + "#\r\n\r\n" +
           PlainNumber(design.CalibrationX) + "\r\n" + PlainNumber(design.CalibrationY) +
           "\r\n\r\n";
}

void PrintSquare(const DesignRecord& design, PrinterSurface& printer) {
    const double halfX = kSquareMm * double{design.CalibrationX} * kSheetUnitsPerHalfMm;
    const double halfY = kSquareMm * double{design.CalibrationY} * kSheetUnitsPerHalfMm;
    printer.KeepOnSheet(F(kSheetCentre.y - halfY), F(kSheetCentre.y + halfY));
    printer.StartSheet();
    printer.SetLineWidth(1);
    printer.Box(F(kSheetCentre.x - halfX), F(kSheetCentre.y - halfY), F(kSheetCentre.x + halfX),
                F(kSheetCentre.y + halfY), kBlackInk);
    printer.EndDoc();
}

} // namespace

void ReadCalibration(DesignRecord& design, const std::string& name, const LineReport& doubt) {
    LineReader lines(Host.readFile(name));
    const auto doubtUnless = [&](bool isRight, const char* reason) {
        if (!isRight && doubt) {
            doubt(lines.LineNumber(), reason);
        }
    };
    try {
        doubtUnless(Trimmed(lines.NextValue()) == kHeader, "does not begin as a calibration");
        lines.NextValue(); // the date
        for (float* factor : {&design.CalibrationX, &design.CalibrationY}) {
            const std::string_view value = lines.NextValue();
            doubtUnless(HasDigit(value), "no number");
            StoreNumber(NumericValue(value), *factor);
        }
    } catch (const FileFailure&) {
        throw FileFailure(name + ": ends before its two factors");
    }
}

void ReadCalibrate(DesignRecord& design) {
    for (const std::string& file : Host.calibrationsToRead()) {
        try {
            ReadCalibration(design, file);
            return;
        } catch (const RunTimeError&) {
            // The next one. Printing raises a factor that was never read, which shows on paper.
        }
    }
}

void WriteCalibrate(DesignRecord& design) {
    if (!Service.carefulFiles) {
        design.DesignFileName = kCalibrationFile;
    }
    try {
        const auto sink = Host.openForOutput(Host.calibrationToWrite());
        sink->Write(CalibrationText(design));
        sink->Close();
    } catch (const RunTimeError&) {
        // The factors still hold for this session.
    }
}

bool PrintTestSquare(DesignRecord& design, PrinterSurface& printer) {
    RaiseFactor(design.CalibrationX);
    RaiseFactor(design.CalibrationY);
    try {
        PrintSquare(design, printer);
        return true;
    } catch (const RunTimeError& failure) {
        if (design.MessageLevel > 0) {
            Host.playSound("warningprinter.wav");
        }
        ReportFailure({"We had a problem driving the printer.", failure.what()});
        return false;
    }
}

void Recalibrate(float& factor, double measuredMm) {
    RaiseFactor(factor);
    if (measuredMm > 0) {
        const double corrected = double{factor} * kSquareMm / measuredMm;
        factor = std::clamp(F(corrected), kSmallestFactor, kLargestFactor);
    }
}

EntryLimits MeasureLimits(float factor) {
    RaiseFactor(factor);
    const auto tenths = [factor](float corrected) {
        return std::round(double{factor} * kSquareMm / double{corrected} * 10) / 10;
    };
    return {tenths(kLargestFactor), tenths(kSmallestFactor)};
}

void HoldCalibration(DesignRecord& design) {
    for (float* factor : {&design.CalibrationX, &design.CalibrationY}) {
        *factor = std::clamp(*factor, kSmallestFactor, kLargestFactor);
    }
}

} // namespace vernacle
