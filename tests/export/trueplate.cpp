#include "export/trueplate.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vernacle::test {

namespace {

constexpr double kA4Width = 210;
constexpr double kA4Height = 297;

double Radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

using Random = std::mt19937;

float Between(Random& random, double low, double high) {
    return static_cast<float>(std::uniform_real_distribution<double>(low, high)(random));
}

// A curve that bends by at most a quarter of a segment.
void BendCurve(DesignRecord& design, Random& random) {
    SetLinearCurve(design);
    for (int point = 2; point < kCurvePoints; ++point) {
        design.CorrectionPair[2 * point] += Between(random, -0.04, 0.04);
    }
}

void GiveStandardScale(DesignRecord& design, int scale, Random& random) {
    design.NrOfTicmarks[scale] = static_cast<std::int16_t>(Between(random, 10, 60));
    design.MajorEveryHowMany[scale] = 5;
    design.LabelsEveryHowMany[scale] = 10;
    design.LinearityExponent[scale] = scale % 2 ? 1.F : Between(random, 0.5, 2);
    design.ScaleLeftEnd[scale] = 0;
    design.ScaleLengthUnits[scale] = design.NrOfTicmarks[scale];
    design.StandardTicYN[scale][3] = "N";
}

// Deflections of a setup reach a little beyond both ends.
void GiveSpecialScale(DesignRecord& design, int scale, Random& random) {
    const int last = static_cast<int>(Between(random, 5, 30));
    design.SpecialNrOfTicmarks[scale] = static_cast<std::int16_t>(last);
    design.ScaleColor[scale] *= -1;
    for (int tic = 0; tic <= last; ++tic) {
        const double share = static_cast<double>(tic) / last;
        design.TicDeflection[scale][tic] = static_cast<float>(1.08 * share * share - 0.04);
        design.TicPrintYN[scale][tic] = tic == 2 ? "N" : "Y";
        design.TicMajorYN[scale][tic] = tic % 4 == 0 ? "Y" : "N";
        design.TicLabelYN[scale][tic] = tic % 4 == 0 ? "Y" : "N";
        design.TicLabelText[scale][tic] = std::to_string(tic);
    }
}

} // namespace

DesignRecord GenerateDesign(int number) {
    constexpr const char* kRotations[] = {"H", "B", "V"};
    constexpr float kSwings[] = {90, 270, 360, 60, 110};
    constexpr std::int32_t kColours[] = {0x0000C0, 0x30A000, 0xC04000,
                                         0x806010, 0xA000A0, 0x008090};
    Random random(static_cast<unsigned>(number));
    DesignRecord design;
    ResetDesign(design);
    design.PlateWidth = Between(random, 100, 140);
    design.PlateHeight = Between(random, 100, 130);
    design.PlateStyle = number % 3 == 2 ? 1 : 0;
    design.LeftToBearing = number % 2 ? Between(random, 5, 60) : -1;
    design.PointerDeflection = kSwings[number % 5];
    design.BottomToBearing = Between(random, 20, 50);
    design.ActualVirtualOffset = Between(random, -8, 12);
    design.MinorTicWidth = Between(random, 0.5, 4);
    design.MajorTicWidth = Between(random, 4, 9);
    design.MinorTicLength = Between(random, 1, 2);
    design.MajorTicLength = Between(random, 2, 4);
    design.ArcWidth = Between(random, 0.5, 6);
    design.FontSize = Between(random, 5, 9);
    design.LabelSpacing = Between(random, 3, 6);
    design.LabelRotation = kRotations[number % 3];
    design.NumberOfScales = static_cast<std::int16_t>(1 + number % 6);
    design.PlateBackground = number % 2 ? kWhite : 0xF0FFE0;
    for (int scale = 1; scale <= design.NumberOfScales; ++scale) {
        design.ScaleColor[scale] = kColours[scale - 1];
        design.RelativeFontSize[scale] = Between(random, 0.6, 1.2);
        design.BottomToScaleCeiling[scale] =
            design.BottomToBearing + 25 + 7 * static_cast<float>(scale);
        design.ScaleTitle[scale] = "T" + std::to_string(scale);
        if (number % 5 != 2 && scale % 3 == 0) { // not among full circles
            GiveSpecialScale(design, scale, random);
        } else {
            GiveStandardScale(design, scale, random);
        }
    }
    design.NumberOfHighlights = 2;
    for (int slot = 1; slot <= 2; ++slot) {
        design.HighlightStart[slot] = slot == 1 ? 0 : Between(random, 50, 60);
        design.HighlightStop[slot] = slot == 1 ? Between(random, 10, 30) : 100;
        design.HighlightCeiling[slot] = design.BottomToBearing + 22 + 7 * static_cast<float>(slot);
        design.HighlightLength[slot] = 1.5F;
        design.HighlightColor[slot] = 0x10F0F0 + slot;
    }
    BendCurve(design, random);
    return design;
}

std::vector<int> LabelledTics(const DesignRecord& design, int scale) {
    const bool special = design.ScaleColor[scale] < 0;
    const int last = special ? design.SpecialNrOfTicmarks[scale] : design.NrOfTicmarks[scale];
    // All around, the last one would stand on the first.
    const bool isFull = design.NumberOfScales == 1 && design.PointerDeflection == 360;
    std::vector<int> tics;
    for (int tic = 0; tic <= (isFull ? last - 1 : last); tic += special ? 4 : 10) {
        tics.push_back(tic);
    }
    return tics;
}

double EmOf(const DesignRecord& design, int scale) {
    return double{design.FontSize} * double{design.RelativeFontSize[scale]} * kMmPerPoint;
}

MmPoint TruePlate::OnSheet(double fromLeftMm, double fromBottomMm) const {
    const double centreX = (kA4Width - 11500 * kUnitMm) / 2 + 6000 * kUnitMm;
    const double centreY = (kA4Height - 15200 * kUnitMm) / 2 + 4000 * kUnitMm;
    return {centreX - double{design_.PlateWidth} / 2 + fromLeftMm,
            centreY + double{design_.PlateHeight} / 2 - fromBottomMm};
}

double TruePlate::RadiusMm(double ceilingMm) const {
    return ceilingMm - double{design_.BottomToBearing} + double{design_.ActualVirtualOffset};
}

MmPoint TruePlate::VirtualBearing() const {
    const bool moved = design_.PlateStyle == 1 && design_.LeftToBearing >= 0;
    const double x = moved ? double{design_.LeftToBearing} : double{design_.PlateWidth} / 2;
    return OnSheet(x, double{design_.BottomToBearing} - double{design_.ActualVirtualOffset});
}

double TruePlate::Corrected(double fraction) const {
    const auto x = [this](int point) { return double{design_.CorrectionPair[2 * point - 1]}; };
    const auto y = [this](int point) { return double{design_.CorrectionPair[2 * point]}; };
    int last = 2;
    while (last < kCurvePoints && fraction > x(last)) {
        ++last;
    }
    const double slope = (y(last) - y(last - 1)) / (x(last) - x(last - 1));
    return std::clamp(y(last) - (x(last) - fraction) * slope, -0.1, 1.1);
}

double TruePlate::PointerRad(double fraction) const {
    const double swing = double{design_.PointerDeflection};
    const double start = 90 - swing / 2;
    // A quadrant plate's pointer starts level, but for a rounding that belongs to its geometry.
    const double turnedBack = design_.PlateStyle == 1 ? start / 57.295 : 0;
    return Radians(start + swing * Corrected(fraction)) - turnedBack;
}

bool TruePlate::IsMet(double fraction, double ceilingMm) const {
    const double beside = double{design_.ActualVirtualOffset} * std::cos(PointerRad(fraction));
    return std::abs(beside) <= RadiusMm(ceilingMm);
}

// A ray from the real bearing meets a circle about the virtual one.
MmPoint TruePlate::Meet(double fraction, double ceilingMm) const {
    const double t = PointerRad(fraction);
    const double offset = double{design_.ActualVirtualOffset};
    const double radius = RadiusMm(ceilingMm);
    const double beside = offset * std::cos(t);
    const double along = std::sqrt(radius * radius - beside * beside) - offset * std::sin(t);
    const MmPoint bearing = VirtualBearing();
    return {bearing.x - along * std::cos(t), bearing.y - offset - along * std::sin(t)};
}

MmPoint TruePlate::Outward(MmPoint from, double pointerRad, double mm, int scale) const {
    const double signedMm = scale % 2 ? mm : -mm;
    return {from.x - signedMm * std::cos(pointerRad), from.y - signedMm * std::sin(pointerRad)};
}

double TruePlate::Fraction(int scale, int tic) const {
    if (design_.ScaleColor[scale] < 0) {
        return double{design_.TicDeflection[scale][tic]};
    }
    const double share = static_cast<double>(tic) / design_.NrOfTicmarks[scale];
    return std::pow(share, double{design_.LinearityExponent[scale]});
}

std::vector<TruePlate::Tic> TruePlate::TicsOf(int scale) const {
    const bool special = design_.ScaleColor[scale] < 0;
    const int last = special ? design_.SpecialNrOfTicmarks[scale] : design_.NrOfTicmarks[scale];
    std::vector<Tic> tics;
    for (int tic = 0; tic <= last; ++tic) {
        const bool major = special ? design_.TicMajorYN[scale][tic] == "Y" : tic % 5 == 0;
        const std::string& flag =
            special ? design_.TicPrintYN[scale][tic] : design_.StandardTicYN[scale][tic];
        tics.push_back({Fraction(scale, tic), major, flag == "N"});
    }
    return tics;
}

std::vector<Shape> TruePlate::Tics(int scale) const {
    const double ceiling = double{design_.BottomToScaleCeiling[scale]};
    std::vector<Shape> shapes;
    for (const auto& [fraction, isMajor, isDeleted] : TicsOf(scale)) {
        if (isDeleted || !IsMet(fraction, ceiling)) {
            continue;
        }
        const float length = isMajor ? design_.MajorTicLength : design_.MinorTicLength;
        const float tenths = isMajor ? design_.MajorTicWidth : design_.MinorTicWidth;
        const MmPoint foot = Meet(fraction, ceiling);
        Shape tic;
        tic.stroked = true;
        tic.points = {foot,
                      Outward(foot, PointerRad(fraction),
                              double{length} * double{design_.RelativeFontSize[scale]}, scale)};
        tic.widthMm = double{tenths} / 10;
        tic.rgb = Rgb(scale);
        shapes.push_back(tic);
    }
    return shapes;
}

MmPoint TruePlate::Middle(int scale, int label) const {
    const double fraction = Fraction(scale, label);
    const double spacing = double{design_.LabelSpacing} * double{design_.RelativeFontSize[scale]};
    return Outward(Meet(fraction, double{design_.BottomToScaleCeiling[scale]}),
                   PointerRad(fraction), spacing, scale);
}

double TruePlate::LabelTurn(int scale, int label) const {
    const double fraction = Fraction(scale, label);
    if (design_.LabelRotation == "B") {
        return Radians(90) - PointerRad(fraction);
    }
    if (design_.LabelRotation == "V") {
        const MmPoint at = Meet(fraction, double{design_.BottomToScaleCeiling[scale]});
        const MmPoint bearing = VirtualBearing();
        return std::atan2(bearing.x - at.x, bearing.y - at.y);
    }
    return 0;
}

unsigned TruePlate::Rgb(int scale) const {
    const auto colour = static_cast<unsigned>(std::abs(design_.ScaleColor[scale]));
    return ((colour & 0xFF) << 16) | (colour & 0xFF00) | (colour >> 16);
}

std::vector<MmPoint> FeetOf(const SvgPicture& page, const TruePlate& plate, int scale,
                            double ceilingMm) {
    constexpr double kOnArcMm = 0.05;
    const MmPoint centre = plate.VirtualBearing();
    const auto away = [centre](MmPoint p) { return std::hypot(p.x - centre.x, p.y - centre.y); };
    std::vector<MmPoint> feet;
    for (const Shape& shape : page.shapes) {
        if (!shape.stroked || shape.rgb != plate.Rgb(scale) || shape.points.size() != 2) {
            continue;
        }
        const auto [inner, outer] = std::ranges::minmax(shape.points, {}, away);
        const MmPoint foot = scale % 2 ? inner : outer;
        if (std::abs(away(foot) - plate.RadiusMm(ceilingMm)) < kOnArcMm) {
            feet.push_back(foot);
        }
    }
    return feet;
}

bool HasPointAt(const std::vector<MmPoint>& points, MmPoint at, double withinMm) {
    return std::ranges::any_of(
        points, [&](MmPoint p) { return std::hypot(p.x - at.x, p.y - at.y) <= withinMm; });
}

} // namespace vernacle::test
