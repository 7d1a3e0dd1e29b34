// Designs with everything in use, and where the true plate of one must have each tic, arc, label
// and highlight: worked out in millimetres by plain trigonometry, from the record alone.
#pragma once

#include <random>
#include <string>
#include <vector>

#include "engine/core/design.h"
#include "support/svgpicture.h"

namespace vernacle::test {

constexpr double kUnitMm = 1 / 56.578; // of the page
constexpr double kMmPerPoint = 25.4 / 72;
constexpr double kDigitAdvance = 1139. / 2048; // of the letters' size, in Arial's metrics
constexpr double kCapitals = 1409. / 2048;

// Several scales of both kinds with colours of their own, a bent curve, highlights, texts; styles,
// swings and rotations in turn by the number.
DesignRecord GenerateDesign(int number);

// The tics of a scale of such a design whose labels are drawn; each label is its tic's number.
std::vector<int> LabelledTics(const DesignRecord& design, int scale);

// The size of a scale's letters, mm.
double EmOf(const DesignRecord& design, int scale);

class TruePlate {
public:
    // On an A4 sheet, where the plate's middle stands where every plate's does.
    explicit TruePlate(const DesignRecord& design) : design_(design) {}

    std::vector<Shape> Tics(int scale) const; // two points and a width each, the arc's point first
    MmPoint Middle(int scale, int label) const;   // of a label's letters
    double LabelTurn(int scale, int label) const; // radians, counter-clockwise
    double RadiusMm(double ceilingMm) const;
    MmPoint VirtualBearing() const;
    // Where the pointer, at that fraction of the swing and so corrected, meets the arc.
    MmPoint Meet(double fraction, double ceilingMm) const;
    MmPoint OnSheet(double fromLeftMm, double fromBottomMm) const;
    bool IsMet(double fraction, double ceilingMm) const;
    double Corrected(double fraction) const;
    unsigned Rgb(int scale) const;

private:
    struct Tic {
        double fraction;
        bool isMajor;
        bool isDeleted;
    };
    std::vector<Tic> TicsOf(int scale) const;
    double Fraction(int scale, int tic) const;
    double PointerRad(double fraction) const; // from the left horizontal
    MmPoint Outward(MmPoint from, double pointerRad, double mm, int scale) const;

    const DesignRecord& design_;
};

// Where tics of a scale's colour stand on the arc of that ceiling on a page: those ends of their
// lines that lie on it, as the lines lead outward from there, or inward on even scales.
std::vector<MmPoint> FeetOf(const SvgPicture& page, const TruePlate& plate, int scale,
                            double ceilingMm);

bool HasPointAt(const std::vector<MmPoint>& points, MmPoint at, double withinMm);

} // namespace vernacle::test
