#include "engine/output/trueplot.h"

#include <algorithm>
#include <array>

#include "engine/base/bytesink.h"
#include "engine/base/hostservices.h"
#include "engine/base/linereader.h"
#include "engine/base/numbertext.h"
#include "engine/base/text.h"
#include "engine/core/design.h"
#include "engine/output/plottersurface.h"
#include "engine/render/drawing.h"

namespace vernacle {

namespace {

struct NamedColour {
    Colour colour;
    const char* name;
};

constexpr NamedColour kNames[] = {
    {0x000000, "black"},   {0xFFFFFF, "white"}, {0x0000FF, "red"},    {0xFF0000, "blue"},
    {0x00FF00, "lime"},    {0x008000, "green"}, {0x00FFFF, "yellow"}, {0x00A5FF, "orange"},
    {0xFF00FF, "magenta"}, {0xFFFF00, "cyan"},  {0x800080, "purple"}, {0x2A2AA5, "brown"},
    {0x808080, "grey"},    {0x800000, "navy"},  {0x000080, "maroon"}, {0x808000, "teal"},
    {0x008080, "olive"},   {0xCBC0FF, "pink"},
};

constexpr std::array<const char*, kPlotterPens> kNumbers = {"one",  "two", "three", "four",
                                                            "five", "six", "seven", "eight"};

std::string NameOf(Colour colour) {
    return std::min_element(std::begin(kNames), std::end(kNames),
                            [colour](const NamedColour& a, const NamedColour& b) {
                                return ColoursApart(a.colour, colour) <
                                       ColoursApart(b.colour, colour);
                            })
        ->name;
}

// Drawn as on paper, and kept by pens.
PlotterSurface Plot(const DesignRecord& design) {
    const PlateFrame page = TrueFrame(design, 1, 1);
    PlotterSurface surface(page, PlotterFrame(design), kPenMm.Held(double{design.PenWidth}));
    DrawingState state;
    DrawTruePlate(design, surface, TruePlateTraits(TrueMedium::Plotter), page,
                  {design.FontSize, design.LabelSpacing}, state);
    return surface;
}

std::vector<PlotterPen> PensOf(const PlotterSurface& surface) {
    std::vector<PlotterPen> pens;
    for (const PlotterSurface::Pen& pen : surface.Pens()) {
        pens.push_back({pen.colour, NameOf(pen.colour)});
    }
    return pens;
}

// Digits and semicolons inside a comment end it for some readers.
std::string CommentOn(const std::vector<PlotterPen>& pens) {
    std::string list;
    for (std::size_t pen = 0; pen < pens.size(); ++pen) {
        list += (list.empty() ? "" : ", ") + std::string("pen ") + kNumbers.at(pen) + " " +
                pens[pen].name;
    }
    return "CO\"" + list + "\";";
}

void PlotNotes(const DesignRecord& design, PlotterSurface& surface) {
    constexpr double kBelowPlate = 1000; // units of the page
    constexpr double kLineApart = 150;
    constexpr double kPoints = 6;
    const PlateFrame page = TrueFrame(design, 1, 1);
    surface.SetForeColor(kBlackInk);
    surface.SetFontSize(kPoints);
    double y = page.Bottom() + kBelowPlate;
    for (const std::string& note : {"Filename: " + std::string(FileNameOf(design.DesignFileName)),
                                    "Time/date: " + Host.localDateTime()}) {
        surface.SetCurrentX(static_cast<float>(page.Left()));
        surface.SetCurrentY(static_cast<float>(y));
        surface.PrintText(note);
        y += kLineApart;
    }
}

} // namespace

std::vector<PlotterPen> PensOf(const DesignRecord& design) {
    return PensOf(Plot(design));
}

bool NeedsMorePens(const DesignRecord& design) {
    return Plot(design).HasMoreColours();
}

std::string PenTable(const DesignRecord& design) {
    const PlotterSurface surface = Plot(design);
    std::string table = "The plotter's pens and their colours:\n";
    int number = 0;
    for (const PlotterPen& pen : PensOf(surface)) {
        table += "\nPen " + std::to_string(++number) + ": " + pen.name;
    }
    if (surface.HasMoreColours()) {
        table += "\n\nThe plate has more colours than a plotter has pens. What is drawn in the "
                 "others takes the pen whose colour is nearest.";
    }
    return table;
}

void PlotTruePlate(const DesignRecord& design, ByteSink& sink, HpglMode mode) {
    PlotterSurface surface = Plot(design);
    PlotNotes(design, surface);
    const auto statement = [&sink](std::string text) { sink.Write(text.append(kLineEnd)); };
    BeginPlot(sink, mode, double{design.FontSize});
    statement(CommentOn(PensOf(surface)));
    int number = 0;
    for (const PlotterSurface::Pen& pen : surface.Pens()) {
        ++number;
        if (!pen.statements.empty()) {
            statement("SP" + std::to_string(number));
            sink.Write(pen.statements);
            statement("PU");
        }
    }
    EndPlot(sink, mode);
}

} // namespace vernacle
