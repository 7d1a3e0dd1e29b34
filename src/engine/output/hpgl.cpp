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
#include "engine/core/service.h"
#include "engine/geometry/geometry.h"
#include "engine/output/trueplot.h"
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

// Of the plate, lower left: whole units, on paper that is wider and higher than most plates.
Point CornerOf(const DesignRecord& design) {
    return {static_cast<double>(Corner(4100 - kUnitsPerMm / 2 * double{design.PlateWidth})),
            static_cast<double>(Corner(8500 - 32 * double{design.PlateHeight}))};
}

// Inside a label a control character is a command to the plotter, and an escape one to the printer:
// a design that is passed on must not be able to give any.
std::string WithoutControls(std::string bytes) {
    std::erase_if(bytes, [](char c) { return (c >= '\0' && c < ' ') || c == '\x7F'; });
    return bytes;
}

std::string SizeStatement(const std::string& width, const std::string& height) {
    return "SI " + width + " " + height;
}

class Plotter {
public:
    Plotter(const DesignRecord& design, ByteSink& sink) : design_(design), sink_(sink) {}

    void WritePlateAndScales(HpglMode mode);
    void PlotFreeTexts();
    void WriteRest(HpglMode mode);

private:
    void Statement(const std::string& text) { sink_.Write(std::string(text).append(kLineEnd)); }
    void Command(const std::string& word, double number) {
        Statement(word + PlotterNumber(number));
    }
    void Command(const std::string& word, Point numbers) {
        Statement(word + PlotterNumber(numbers.x) + PlotterNumber(numbers.y));
    }
    void CharacterSize(const std::string& width, const std::string& height) {
        Statement(SizeStatement(width, height));
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

    void PlotCutLines();
    void PlotMarks();
    void PlotScale(int scale);
    void PlotTic(int scale);
    void PlotArc(int scale);
    void PlotRuler();
    void PlotNotes(double rulerMm);

    ArcPlace PlaceOnScale(int scale, double fraction) const {
        return PlaceOnArc(frame_, PointerAngle(frame_, fraction),
                          ScaleRadius(frame_, double{design_.BottomToScaleCeiling[scale]}));
    }
    Point AtMm(double fromLeftMm, double fromBottomMm) const {
        return {corner_.x + kUnitsPerMm * fromLeftMm, corner_.y + kUnitsPerMm * fromBottomMm};
    }

    const DesignRecord& design_;
    ByteSink& sink_;
    Point corner_ = CornerOf(design_);
    PlateFrame frame_ = PlotterFrame(design_);
    int tic_ = 0; // that is being plotted, and one more behind the last of a scale
};

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
    if (design_.PrintText != "Y") {
        return;
    }
    PenUp(at);
    if (IsFullCircle(design_) && tic_ == 0) {
        Statement("DI -1 0");
    } else {
        Command("DI", {ZeroIfTiny(std::cos(angle)), ZeroIfTiny(std::sin(angle))});
    }
    Label(text);
}

// Outside the plate's edges and past its corners, so that they cross there.
void Plotter::PlotCutLines() {
    constexpr double kOutside = 30;
    constexpr double kPast = 100;
    const Point low = corner_;
    const Point high = AtMm(double{design_.PlateWidth}, double{design_.PlateHeight});
    PlotLine({low.x - kOutside, low.y - kPast}, {low.x - kOutside, high.y + kPast});
    PlotLine({low.x - kPast, high.y + kOutside}, {high.x + kPast, high.y + kOutside});
    PlotLine({high.x + kOutside, high.y + kPast}, {high.x + kOutside, low.y - kPast});
    PlotLine({high.x + kPast, low.y - kOutside}, {low.x - kPast, low.y - kOutside});
}

void Plotter::PlotMarks() {
    constexpr double kRadius = 30;
    const double middle = double{design_.PlateWidth} / 2;
    const double apart = double{design_.HoleSeparation} / 2;
    const double bearing = double{design_.BottomToBearing};
    PlotMark(kRadius, AtMm(middle - apart, double{design_.BottomToHoles}));
    PlotMark(kRadius, AtMm(middle + apart, double{design_.BottomToHoles}));
    PlotMark(kRadius, AtMm(middle, bearing));
    PlotMark(kRadius, AtMm(middle, bearing - double{design_.ActualVirtualOffset}));
}

void Plotter::PlotTic(int scale) {
    const bool isMajor = IsMultiple(tic_, design_.MajorEveryHowMany[scale]);
    const bool isLabelled = IsMultiple(tic_, design_.LabelsEveryHowMany[scale]);
    for (const bool wide : {isMajor, isLabelled}) {
        if (wide) {
            Command("PW", double{design_.MajorTicWidth} * 0.2);
        }
    }
    const float length = isMajor || isLabelled ? design_.MajorTicLength : design_.MinorTicLength;
    if (length == design_.MinorTicLength) {
        Command("PW", double{design_.MinorTicWidth} * 0.1);
    } else if (length == design_.MajorTicLength) {
        Command("PW", double{design_.MajorTicWidth} * 0.1);
    }
    const ArcPlace place = PlaceOnScale(scale, double{design_.StandardDeflection[scale][tic_]});
    const auto at = [&](float mm) {
        return AlongPointer(frame_, place.point, place.pointerAngleRad, double{mm},
                            DirectionOf(scale));
    };
    PlotLine(at(length), place.point);
    Statement("LO5");
    if (isLabelled && !(IsFullCircle(design_) && tic_ == 0)) {
        PlotRotatedText(0, at(design_.LabelSpacing), design_.StandardLabel[scale][tic_]);
    }
}

void Plotter::PlotArc(int scale) {
    Statement("DI");
    Command("PW", double{design_.ArcWidth} * 0.1);
    if (design_.DrawArcs != "Y") {
        return;
    }
    for (int chord = 0; chord <= kArcChords; ++chord) {
        const Point point = PlaceOnScale(scale, chord / double{kArcChords}).point;
        Command(chord == 0 ? "PU" : "PD", Nearest(point));
    }
}

void Plotter::PlotScale(int scale) {
    for (tic_ = 0; tic_ <= design_.NrOfTicmarks[scale]; ++tic_) {
        PlotTic(scale);
    }
    PlotArc(scale);
    Statement("LO6");
    PlotRotatedText(0, AtMm(double{design_.PlateWidth} / 2, double{design_.BottomToTitle[scale]}),
                    design_.ScaleTitle[scale]);
}

// As many of the list as the design counts: a gap cuts off texts at its end.
void Plotter::PlotFreeTexts() {
    for (int text = 1; text <= design_.NumberOfTexts; ++text) {
        if (design_.TextString[text].empty()) {
            continue;
        }
        std::string width;
        std::string height;
        FormatByMagnitude(double{design_.TextRelativeSize[text]} / 6.4, width);
        FormatByMagnitude(double{design_.TextRelativeSize[text]} / 4.8, height);
        Statement("LO3");
        CharacterSize(width, height);
        PlotText(AtMm(double{design_.LeftToText[text]}, double{design_.BottomToText[text]}),
                 std::string(Trimmed(design_.TextString[text])));
    }
}

// The ruler's coordinates are cut to whole units, not rounded.
void Plotter::PlotRuler() {
    const double length = std::min(double{design_.PlateWidth}, kLongestRulerMm);
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
    PlotRotatedText(0, {800, corner_.y - 800}, "Filename: " + design_.DesignFileName);
    PlotRotatedText(0, {800, corner_.y - 1000}, "Time/date: " + Host.localDateTime());
}

void Plotter::WritePlateAndScales(HpglMode mode) {
    BeginPlot(sink_, mode, double{design_.FontSize});
    PlotCutLines();
    PlotMarks();
    Statement("SD 1,21 2,1 7,4");
    for (int scale = 1; scale <= design_.NumberOfScales; ++scale) {
        PlotScale(scale);
    }
}

void Plotter::WriteRest(HpglMode mode) {
    PlotRuler();
    EndPlot(sink_, mode);
}

} // namespace

double ZeroIfTiny(double value) {
    return std::fabs(value) <= 0.001 ? 0 : value;
}

void BeginPlot(ByteSink& sink, HpglMode mode, double fontSize) {
    const auto statement = [&sink](const std::string& text) {
        sink.Write(std::string(text).append(kLineEnd));
    };
    if (mode == HpglMode::PclPrinter) { // reset, portrait, enter HP-GL/2
        for (const char* escape : {"E", "&l0O", "%1B"}) {
            statement(std::string(kEscape) + escape);
        }
    }
    for (const char* command : {"IN", "SP1", "LT"}) {
        statement(command);
    }
    statement(SizeStatement(PlotterDigits(fontSize / 60), PlotterDigits(fontSize / 40)));
}

void EndPlot(ByteSink& sink, HpglMode mode) {
    const auto statement = [&sink](const std::string& text) {
        sink.Write(std::string(text).append(kLineEnd));
    };
    statement("PUSP0PG;");
    if (mode == HpglMode::PclPrinter) {
        statement(std::string(kEscape) + "%1A");
        statement(std::string(kEscape) + "E");
    }
}

PlateFrame PlotterFrame(const DesignRecord& design) {
    constexpr double kUnitsPerHalfMm = kUnitsPerMm / 2;
    const Point corner = CornerOf(design);
    PlateFrame frame = FrameOfDesign(design, kUnitsPerHalfMm,
                                     {corner.x + kUnitsPerHalfMm * double{design.PlateWidth},
                                      corner.y + kUnitsPerHalfMm * double{design.PlateHeight}});
    frame.upPerHalfMm = -kUnitsPerHalfMm;
    frame.quadrant = false;
    return frame;
}

void CountPlottedTexts(DesignRecord& design) {
    design.NumberOfTexts = 0;
    for (int text = 1; text <= kPlottedTexts; ++text) {
        if (!design.TextString[text].empty()) {
            ++design.NumberOfTexts;
        }
    }
}

void WriteHpglStream(DesignRecord& design, ByteSink& sink, HpglMode mode) {
    Plotter plotter(design, sink);
    plotter.WritePlateAndScales(mode);
    if (design.PrintText == "Y") {
        CountPlottedTexts(design);
        plotter.PlotFreeTexts();
    }
    plotter.WriteRest(mode);
}

void WriteHpgl(DesignRecord& design, const std::string& path, HpglMode mode) {
    const std::string target = mode == HpglMode::File ? path : "LPT1";
    try {
        const auto sink = Host.openForOutput(target);
        if (Service.truePlate) {
            PlotTruePlate(design, *sink, mode);
        } else {
            WriteHpglStream(design, *sink, mode);
        }
        sink->Close();
    } catch (const RunTimeError& failure) {
        ReportFailure({"The HPGL file was not written correctly.", failure.what()});
        return;
    }
    const bool lacksGraphic = Service.truePlate && design.DrawGraphic == "Y";
    Host.informationBox((mode == HpglMode::File
                             ? "THE HPGL FILE WAS SUCCESSFULLY WRITTEN TO\r\n" + path
                             : "THE HPGL FILE WITH PCL HEADER/FOOTER WAS SENT DIRECTLY TO THE PCL "
                               "PRINTER ON LPT1") +
                        (lacksGraphic ? "\r\nThe graphic is not plotted." : ""));
}

} // namespace vernacle
