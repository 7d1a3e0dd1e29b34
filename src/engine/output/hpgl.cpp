// Commands of the stream. Each statement ends with CR LF; a number stands between blanks. A plotter
// unit is 0.025 mm, so 40 are a millimetre and coordinates are whole; y grows upward.
//
//   IN            initialise
//   SP n          select pen n: 1 draws, 0 puts it away
//   LT            solid lines
//   SI w h        character width and height, cm
//   SD ...        the stick font for labels
//   PU x y        move with the pen up              -32768 to 32767 on most plotters
//   PD x y        draw
//   PW w          pen width, mm
//   CI r a        circle of radius r, in chords of a degrees
//   LO n          label origin: 1 to 9, bottom left to top right; none for the default
//   DI c s        label direction, cosine and sine; none for upright text
//   LB text ETX   label
//   PG            page
#include "engine/output/hpgl.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "engine/base/codepage.h"
#include "engine/base/hostservices.h"
#include "engine/base/linereader.h"
#include "engine/base/numbertext.h"
#include "engine/base/text.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/geometry/geometry.h"
#include "engine/scale/scale.h"

namespace vernacle {

namespace {

constexpr double kUnitsPerMm = 40;
constexpr int kPlottedTexts = 5;
constexpr const char* kEndOfLabel = "\x03";
constexpr const char* kEscape = "\x1B";

// A point in plotter units, and the two ways in which one is made whole.
using Point = SurfacePoint;

Point Nearest(Point point) {
    return {std::floor(point.x + 0.5), std::floor(point.y + 0.5)};
}

Point Below(Point point) {
    return {std::floor(point.x), std::floor(point.y)};
}

std::int16_t Corner(double value) {
    std::int16_t corner = 0;
    StoreNumber(std::floor(value), corner);
    return corner;
}

// Inside a label a control character is a command to the plotter, and an escape one to the printer:
// a design that is passed on must not be able to give any.
std::string WithoutControls(std::string bytes) {
    std::erase_if(bytes, [](char c) { return (c >= '\0' && c < ' ') || c == '\x7F'; });
    return bytes;
}

class Plotter {
public:
    explicit Plotter(ByteSink& sink) : sink_(sink) {}

    void WriteAll(HpglMode mode);

private:
    void Statement(const std::string& text) { sink_.Write(std::string(text).append(kLineEnd)); }
    void Command(const std::string& word, double number) {
        Statement(word + PlotterNumber(number));
    }
    void Command(const std::string& word, Point numbers) {
        Statement(word + PlotterNumber(numbers.x) + PlotterNumber(numbers.y));
    }
    void CharacterSize(const std::string& width, const std::string& height) {
        Statement(std::string("SI ").append(width).append(" ").append(height));
    }
    void PenUp(Point at) { Command("PU", Nearest(at)); }
    void PenDown(Point at) { Command("PD", Nearest(at)); }
    void Label(const std::string& text) {
        Statement("LB" + WithoutControls(ToPlotterBytes(text)) + kEndOfLabel);
    }

    void PlotLine(Point from, Point to);
    void PlotMark(double radius, Point at);
    void PlotText(Point at, const std::string& text);
    void PlotRotatedText(double angle, Point at, const std::string& text);

    void WriteHeader(HpglMode mode);
    void PlotCutLines();
    void PlotMarks();
    void PlotScale(int scale);
    void PlotTic(int scale, int tic);
    void PlotArc(int scale);
    void PlotFreeTexts();
    void PlotRuler();
    void PlotNotes(double rulerMm);

    Point AtMm(double fromLeftMm, double fromBottomMm) const {
        return {corner_.x + kUnitsPerMm * fromLeftMm, corner_.y + kUnitsPerMm * fromBottomMm};
    }

    ByteSink& sink_;
    Point corner_; // of the plate, lower left
};

double PointerAngleOf(double fraction) {
    const double degreesPerRadian = double{ComputeDegreesPerRadian()};
    const double swing = double{Design.PointerDeflection};
    return (90 - swing * 0.5) / degreesPerRadian + swing * fraction / degreesPerRadian;
}

// From the plate's corner to where the pointer crosses the scale's arc, plotter units.
Point BasePoint(int scale, double pointerAngle) {
    const double bearing = kUnitsPerMm * double{Design.BottomToBearing};
    const double offset = kUnitsPerMm * double{Design.ActualVirtualOffset};
    const double radius =
        kUnitsPerMm * double{Design.BottomToScaleCeiling[scale]} - bearing + offset;
    double sine = CheckedDivide(offset * std::sin(pointerAngle + kRightAngle), radius);
    const double p = pointerAngle + ArcSin(sine);
    return {-radius * std::cos(p) + kUnitsPerMm / 2 * double{Design.PlateWidth},
            radius * std::sin(p) - offset + bearing};
}

Point Along(Point from, double pointerAngle, double lengthMm, Direction direction) {
    const double length = kUnitsPerMm * (direction == Direction::Outward ? lengthMm : -lengthMm);
    return {from.x - length * std::cos(pointerAngle), from.y + length * std::sin(pointerAngle)};
}

Point operator+(Point a, Point b) {
    return {a.x + b.x, a.y + b.y};
}

// On a full circle of one scale, text at the first tic would stand on that of the last.
bool IsFullCircle() {
    return Design.NumberOfScales == 1 && Design.PointerDeflection == 360;
}

double ZeroIfTiny(double value) {
    return std::fabs(value) <= 0.001 ? 0 : value;
}

void Plotter::PlotLine(Point from, Point to) {
    PenUp(from);
    PenDown(to);
}

void Plotter::PlotMark(double radius, Point at) {
    constexpr double kArm = 50;
    PlotLine({at.x - kArm, at.y}, {at.x + kArm, at.y});
    PlotLine({at.x, at.y - kArm}, {at.x, at.y + kArm});
    PenUp(at);
    Command("CI", {radius + 0.5, 3});
}

void Plotter::PlotText(Point at, const std::string& text) {
    PenUp(at);
    Label(text);
}

void Plotter::PlotRotatedText(double angle, Point at, const std::string& text) {
    if (Design.PrintText != "Y") {
        return;
    }
    PenUp(at);
    if (IsFullCircle() && Design.TicLoop == 0) {
        Statement("DI -1 0");
    } else {
        Command("DI", {ZeroIfTiny(std::cos(angle)), ZeroIfTiny(std::sin(angle))});
    }
    Label(text);
}

void Plotter::WriteHeader(HpglMode mode) {
    if (mode == HpglMode::PclPrinter) { // reset, portrait, enter HP-GL/2
        for (const char* escape : {"E", "&l0O", "%1B"}) {
            Statement(std::string(kEscape) + escape);
        }
    }
    for (const char* command : {"IN", "SP1", "LT"}) {
        Statement(command);
    }
    const double size = double{Design.FontSize};
    CharacterSize(PlotterDigits(size / 60), PlotterDigits(size / 40));
}

// Outside the plate's edges and past its corners, so that they cross there.
void Plotter::PlotCutLines() {
    constexpr double kOutside = 30;
    constexpr double kPast = 100;
    const Point low = corner_;
    const Point high = AtMm(double{Design.PlateWidth}, double{Design.PlateHeight});
    PlotLine({low.x - kOutside, low.y - kPast}, {low.x - kOutside, high.y + kPast});
    PlotLine({low.x - kPast, high.y + kOutside}, {high.x + kPast, high.y + kOutside});
    PlotLine({high.x + kOutside, high.y + kPast}, {high.x + kOutside, low.y - kPast});
    PlotLine({high.x + kPast, low.y - kOutside}, {low.x - kPast, low.y - kOutside});
}

void Plotter::PlotMarks() {
    constexpr double kRadius = 30;
    const double middle = double{Design.PlateWidth} / 2;
    const double apart = double{Design.HoleSeparation} / 2;
    const double bearing = double{Design.BottomToBearing};
    PlotMark(kRadius, AtMm(middle - apart, double{Design.BottomToHoles}));
    PlotMark(kRadius, AtMm(middle + apart, double{Design.BottomToHoles}));
    PlotMark(kRadius, AtMm(middle, bearing));
    PlotMark(kRadius, AtMm(middle, bearing - double{Design.ActualVirtualOffset}));
}

void Plotter::PlotTic(int scale, int tic) {
    const bool isMajor = IsMultiple(tic, Design.MajorEveryHowMany[scale]);
    const bool isLabelled = IsMultiple(tic, Design.LabelsEveryHowMany[scale]);
    for (const bool wide : {isMajor, isLabelled}) {
        if (wide) {
            Command("PW", double{Design.MajorTicWidth} * 0.2);
        }
    }
    const float length = isMajor || isLabelled ? Design.MajorTicLength : Design.MinorTicLength;
    if (length == Design.MinorTicLength) {
        Command("PW", double{Design.MinorTicWidth} * 0.1);
    } else if (length == Design.MajorTicLength) {
        Command("PW", double{Design.MajorTicWidth} * 0.1);
    }
    const double angle = PointerAngleOf(double{Design.StandardDeflection[scale][tic]});
    const Point base = corner_ + BasePoint(scale, angle);
    PlotLine(Along(base, angle, double{length}, DirectionOf(scale)), base);
    Statement("LO5");
    if (isLabelled && !(IsFullCircle() && tic == 0)) {
        PlotRotatedText(0, Along(base, angle, double{Design.LabelSpacing}, DirectionOf(scale)),
                        Design.StandardLabel[scale][tic]);
    }
}

void Plotter::PlotArc(int scale) {
    Statement("DI");
    Command("PW", double{Design.ArcWidth} * 0.1);
    if (Design.DrawArcs != "Y") {
        return;
    }
    for (int chord = 0; chord <= kArcChords; ++chord) {
        const Point point = corner_ + BasePoint(scale, PointerAngleOf(chord / double{kArcChords}));
        Command(chord == 0 ? "PU" : "PD", Nearest(point));
    }
}

void Plotter::PlotScale(int scale) {
    const int last = Design.NrOfTicmarks[scale];
    for (Design.TicLoop = 0; Design.TicLoop <= static_cast<float>(last); ++Design.TicLoop) {
        PlotTic(scale, CurrentTic(Design));
    }
    PlotArc(scale);
    Statement("LO6");
    PlotRotatedText(0, AtMm(double{Design.PlateWidth} / 2, double{Design.BottomToTitle[scale]}),
                    Design.ScaleTitle[scale]);
}

// Only the first five are counted, and as many of the list are then plotted: a gap cuts off texts
// at its end.
void Plotter::PlotFreeTexts() {
    if (Design.PrintText != "Y") {
        return;
    }
    Design.NumberOfTexts = 0;
    for (int text = 1; text <= kPlottedTexts; ++text) {
        if (!Design.TextString[text].empty()) {
            ++Design.NumberOfTexts;
        }
    }
    for (int text = 1; text <= Design.NumberOfTexts; ++text) {
        if (Design.TextString[text].empty()) {
            continue;
        }
        std::string width;
        std::string height;
        FormatByMagnitude(double{Design.TextRelativeSize[text]} / 6.4, width);
        FormatByMagnitude(double{Design.TextRelativeSize[text]} / 4.8, height);
        Statement("LO3");
        CharacterSize(width, height);
        PlotText(AtMm(double{Design.LeftToText[text]}, double{Design.BottomToText[text]}),
                 std::string(Trimmed(Design.TextString[text])));
    }
}

// The ruler's coordinates are cut to whole units, not rounded.
void Plotter::PlotRuler() {
    const double length = std::min(double{Design.PlateWidth}, kLongestRulerMm);
    const auto at = [this](double mm, double below) {
        return Below({corner_.x + kUnitsPerMm * mm, corner_.y - below});
    };
    Statement("PW.5");
    for (int mm = 0; mm <= length; mm += 10) {
        Command("PU", at(mm, 380));
        Command("PD", at(mm, 280));
    }
    Statement("LO5");
    Statement("SI.15,.2;");
    for (int mm = 0; mm <= length; mm += 10) {
        Command("PU", at(mm, 465));
        Label(std::to_string(mm));
    }
    Statement("PW.2");
    Statement("SI.15,.2;");
    for (int mm = 0; mm <= length; ++mm) {
        Command("PU", at(mm, 380));
        Command("PD", at(mm, 330));
    }
    Command("PU", at(0, 380));
    Command("PD", at(length, 380));
    PlotNotes(length);
}

void Plotter::PlotNotes(double rulerMm) {
    PenUp({corner_.x + 160 + kUnitsPerMm * rulerMm, corner_.y - 500});
    Statement("LO");
    Label("mm");
    Statement("SI .15 .2");
    PlotRotatedText(0, {800, corner_.y - 800}, "Filename: " + Design.DesignFileName);
    PlotRotatedText(0, {800, corner_.y - 1000}, "Time/date: " + Host.localDateTime());
}

void Plotter::WriteAll(HpglMode mode) {
    corner_.x = Corner(4100 - 20 * double{Design.PlateWidth});
    corner_.y = Corner(8500 - 32 * double{Design.PlateHeight});
    WriteHeader(mode);
    PlotCutLines();
    PlotMarks();
    Statement("SD 1,21 2,1 7,4");
    for (Design.CurrentScale = 1; Design.CurrentScale <= Design.NumberOfScales;
         ++Design.CurrentScale) {
        PlotScale(Design.CurrentScale);
    }
    PlotFreeTexts();
    PlotRuler();
    Statement("PUSP0PG;");
    if (mode == HpglMode::PclPrinter) {
        Statement(std::string(kEscape) + "%1A");
        Statement(std::string(kEscape) + "E");
    }
}

} // namespace

void WriteHpglStream(ByteSink& sink, HpglMode mode) {
    Plotter(sink).WriteAll(mode);
}

void WriteHpgl(const std::string& path, HpglMode mode) {
    const std::string target = mode == HpglMode::File ? path : "LPT1";
    try {
        const auto sink = Host.openForOutput(target);
        WriteHpglStream(*sink, mode);
        sink->Close();
    } catch (const RunTimeError& failure) {
        ReportFailure({"The HPGL file was not written correctly.", failure.what()});
        return;
    }
    Host.informationBox(mode == HpglMode::File
                            ? "THE HPGL FILE WAS SUCCESSFULLY WRITTEN TO\r\n" + path
                            : "THE HPGL FILE WITH PCL HEADER/FOOTER WAS SENT DIRECTLY TO THE PCL "
                              "PRINTER ON LPT1");
}

} // namespace vernacle
