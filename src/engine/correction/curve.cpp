#include "engine/correction/curve.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "engine/base/hostservices.h"
#include "engine/base/linereader.h"
#include "engine/base/numbertext.h"
#include "engine/base/text.h"
#include "engine/core/entry.h"
#include "engine/core/service.h"

namespace vernacle {

namespace {

constexpr std::string_view kSignature = "Meter"; // all that a reader compares of the first line
constexpr std::size_t kHeadingColumn = 16;
constexpr std::size_t kPointColumn = 15;

// Where a point stands in CorrectionPair.
int XAt(int point) {
    return 2 * point - 1;
}

int YAt(int point) {
    return 2 * point;
}

double X(const DesignRecord& design, int point) {
    return double{design.CorrectionPair[XAt(point)]};
}

double Y(const DesignRecord& design, int point) {
    return double{design.CorrectionPair[YAt(point)]};
}

// Points are 32-bit floats: a thousandth entered is a hair less or more between them.
constexpr double kLeastRise = 0.001 - 1e-6;
constexpr double kBeyondEnds = 0.1; // of the swing

double SlopeOf(const DesignRecord& design, int segment) {
    return (Y(design, segment + 1) - Y(design, segment)) /
           (X(design, segment + 1) - X(design, segment));
}

// first, blanks, and second beginning in that column (counted from 1).
std::string TwoColumns(std::string first, std::size_t column, std::string_view second) {
    first.resize(column - 1, ' ');
    return first.append(second);
}

std::string CurveText(const DesignRecord& design) {
    std::string text = "Meter movement-correction datafile";
    text.append(kLineEnd).append(Host.localDateTime()).append(kLineEnd).append(kLineEnd);
    text += PlainNumber(std::int32_t{design.NumberOfCorrectionPoints});
    text.append(kLineEnd).append(TwoColumns(" X:", kHeadingColumn, "Y:")).append(kLineEnd);
    for (int point = 1; point <= kCurvePoints; ++point) {
        text += TwoColumns(PlainNumber(design.CorrectionPair[XAt(point)]), kPointColumn,
                           PlainNumber(design.CorrectionPair[YAt(point)]));
        text += kLineEnd;
    }
    return text;
}

// The next line that is neither empty nor a comment, without its leading blanks. The end of the
// file is a failure.
std::string ReadCorrectionLine(LineReader& lines) {
    while (true) {
        const std::string_view line = LeftTrimmed(lines.Next());
        if (!line.empty() && std::string_view("!*'/\\").find(line[0]) == std::string_view::npos) {
            return std::string(line);
        }
    }
}

// Moves the first run of characters without a blank from the line to token.
void NextCurveToken(std::string& line, std::string& token) {
    const std::string_view rest = LeftTrimmed(line);
    token = rest.substr(0, rest.find(' '));
    line = LeftTrimmed(rest.substr(token.size()));
}

template <typename T>
void ReadToken(std::string& line, T& target) {
    std::string token;
    NextCurveToken(line, token);
    ParseEntry(token, target);
}

void ReadCurve(DesignRecord& design, const std::string& name) {
    LineReader lines(Host.readFile(name));
    if (!ReadCorrectionLine(lines).starts_with(kSignature)) {
        throw FileFailure(name + ": not a correction file");
    }
    ReadCorrectionLine(lines); // the date
    std::string line = ReadCorrectionLine(lines);
    ReadToken(line, design.NumberOfCorrectionPoints);
    ReadCorrectionLine(lines); // the column headings
    const int count = design.NumberOfCorrectionPoints;
    for (int point = 1; point <= count; ++point) {
        line = ReadCorrectionLine(lines);
        ReadToken(line, design.CorrectionPair[XAt(point)]);
        ReadToken(line, design.CorrectionPair[YAt(point)]);
    }
}

// A row of the curve: up to point n the curve is the line through point n - 1.
float OnSegment(const DesignRecord& design, double f, int segment) {
    const double slope = double{design.CorrectionSlope[segment]};
    if (segment == 1) { // starts at the origin, whatever the first pair says
        return static_cast<float>(f * slope);
    }
    return static_cast<float>((f - X(design, segment)) * slope + Y(design, segment));
}

} // namespace

void ComputeCorrectionSlopes(DesignRecord& design) {
    for (int segment = 1; segment < kCurvePoints; ++segment) {
        const double rise = Y(design, segment + 1) - Y(design, segment);
        const double run = X(design, segment + 1) - X(design, segment);
        StoreNumber(CheckedDivide(rise, run), design.CorrectionSlope[segment]);
    }
}

void ComputeGuardedSlopes(DesignRecord& design) {
    for (int segment = 1; segment < kCurvePoints; ++segment) {
        const auto slope = static_cast<float>(SlopeOf(design, segment));
        design.CorrectionSlope[segment] = std::isfinite(slope) ? slope : 1;
    }
}

bool PointRises(const DesignRecord& design, int point) {
    const double run = X(design, point + 1) - X(design, point);
    const double rise = Y(design, point + 1) - Y(design, point);
    return run >= kLeastRise && rise >= kLeastRise; // one that is no number does not
}

bool CurveRises(const DesignRecord& design) {
    for (int point = 1; point < kCurvePoints; ++point) {
        if (!PointRises(design, point)) {
            return false;
        }
    }
    return true;
}

double ContinuedDeflection(const DesignRecord& design, double f) {
    double shown = f;
    if (CurveRises(design)) {
        int segment = 1;
        while (segment < kCurvePoints - 1 && f >= X(design, segment + 1)) {
            ++segment;
        }
        shown = Y(design, segment) + (f - X(design, segment)) * SlopeOf(design, segment);
    }
    return std::clamp(shown, -kBeyondEnds, 1 + kBeyondEnds);
}

float CorrectDeflection(const DesignRecord& design, float& f) {
    if (f < 0) {
        f = 0;
        return 0;
    }
    for (int segment = 1; segment < kCurvePoints; ++segment) {
        if (double{f} < X(design, segment + 1)) {
            return OnSegment(design, double{f}, segment);
        }
    }
    if (f >= 1) {
        f = 1;
    }
    return 1;
}

double DrawnDeflection(const DesignRecord& design, double f) {
    if (Service.curveInFile) {
        return ContinuedDeflection(design, f);
    }
    auto held = static_cast<float>(f);
    return double{CorrectDeflection(design, held)};
}

void WriteCorrectionFile(DesignRecord& design, const std::string& name) {
    if (name.empty()) {
        return;
    }
    try {
        const auto sink = Host.openForOutput(name);
        design.NumberOfCorrectionPoints = kCurvePoints;
        sink->Write(CurveText(design));
        sink->Close();
    } catch (const RunTimeError&) {
        ReportFailure("We had a problem writing the curve data");
    }
}

void ReadCorrectionFile(DesignRecord& design, const std::string& name) {
    const auto pairs = design.CorrectionPair;
    const std::int16_t points = design.NumberOfCorrectionPoints;
    if (Service.carefulFiles) {
        SetLinearPairs(design); // whatever points the file has not
    }
    try {
        ReadCurve(design, name);
    } catch (const RunTimeError&) {
        if (Service.carefulFiles) {
            design.CorrectionPair = pairs;
            design.NumberOfCorrectionPoints = points;
        }
        ReportFailure("We did not read the linearity-correction file");
    }
}

} // namespace vernacle
