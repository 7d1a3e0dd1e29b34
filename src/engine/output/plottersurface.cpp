#include "engine/output/plottersurface.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "engine/base/linereader.h"
#include "engine/base/numbertext.h"
#include "engine/base/text.h"
#include "engine/geometry/sheet.h"
#include "engine/output/hpgl.h"

namespace vernacle {

namespace {

constexpr double kPixelMm = 25.4 / 600; // of line widths that count a printer's pixels
constexpr double kFarthest = 32768;     // plotter units that a statement can say
constexpr const char* kEndOfText = "\x03";

// The letters of a plate are Arial's on paper: so high are their capitals, and so wide a digit with
// the air beside it, in parts of their size. A plotter puts half a letter's width between letters.
constexpr double kCapitals = 1409. / 2048;
constexpr double kDigit = 1139. / 2048;
constexpr double kCellPerWidth = 1.5;

struct Standing {
    const char* letter;
    const char* letters;
};

constexpr Standing kStandings[] = {
    {"µ", "u"},   {"μ", "u"},   {"°", "deg"},  {"º", "deg"},    {"Ω", "Ohm"}, {"Ω", "Ohm"},
    {"±", "+-"},  {"×", "x"},   {"÷", "/"},    {"²", "2"},      {"³", "3"},   {"½", "1/2"},
    {"¼", "1/4"}, {"¾", "3/4"}, {"ä", "ae"},   {"ö", "oe"},     {"ü", "ue"},  {"Ä", "Ae"},
    {"Ö", "Oe"},  {"Ü", "Ue"},  {"ß", "ss"},   {"é", "e"},      {"è", "e"},   {"ê", "e"},
    {"à", "a"},   {"â", "a"},   {"ç", "c"},    {"ô", "o"},      {"î", "i"},   {"û", "u"},
    {"ñ", "n"},   {"å", "a"},   {"Å", "A"},    {"ø", "o"},      {"Ø", "O"},   {"–", "-"},
    {"—", "-"},   {"−", "-"},   {"’", "'"},    {"“", "\""},     {"”", "\""},  {"∞", "inf"},
    {"≥", ">="},  {"≤", "<="},  {"√", "sqrt"}, {"\u00A0", " "},
};

std::string LettersFor(std::string_view letter) {
    if (letter.size() == 1) {
        const bool isPlain = letter[0] >= ' ' && letter[0] < '\x7F'; // a control is a command
        return isPlain ? std::string(letter) : "";
    }
    const auto* row = std::find_if(std::begin(kStandings), std::end(kStandings),
                                   [letter](const Standing& s) { return letter == s.letter; });
    return row == std::end(kStandings) ? "?" : row->letters;
}

SurfacePoint Whole(SurfacePoint at) {
    return {std::floor(at.x + 0.5), std::floor(at.y + 0.5)};
}

bool IsSame(SurfacePoint a, SurfacePoint b) {
    return a.x == b.x && a.y == b.y;
}

// What is no number, or beyond all plotters, is not plotted.
bool IsReachable(SurfacePoint at) {
    return std::fabs(at.x) <= kFarthest && std::fabs(at.y) <= kFarthest;
}

// Where the edges of an area cross a level line, from left to right.
std::vector<double> CrossingsAt(std::span<const SurfacePoint> corners, double y) {
    std::vector<double> crossings;
    for (std::size_t corner = 0; corner < corners.size(); ++corner) {
        const SurfacePoint from = corners[corner];
        const SurfacePoint to = corners[(corner + 1) % corners.size()];
        if ((from.y <= y) != (to.y <= y)) {
            crossings.push_back(from.x + (y - from.y) / (to.y - from.y) * (to.x - from.x));
        }
    }
    std::sort(crossings.begin(), crossings.end());
    return crossings;
}

} // namespace

int ColoursApart(Colour a, Colour b) {
    int sum = 0;
    for (const int shift : {0, 8, 16}) {
        const int apart = ((a >> shift) & 0xFF) - ((b >> shift) & 0xFF);
        sum += apart * apart;
    }
    return sum;
}

std::string PlotterLetters(const std::string& text) {
    std::string letters;
    for (std::string_view rest = text; !rest.empty();) {
        const std::string_view letter = Leftmost(rest, 1);
        letters += LettersFor(letter);
        rest.remove_prefix(letter.size());
    }
    return letters;
}

PlotterSurface::PlotterSurface(const PlateFrame& page, const PlateFrame& plotter, double penMm)
    : page_(page),
      plotter_(plotter),
      penMm_(penMm),
      pens_{{kBlackInk, ""}},
      states_(1),
      widthMm_(penMm) {}

SurfacePoint PlotterSurface::ToPlotter(SurfacePoint at) const {
    const double perUnit = plotter_.plateScale / page_.plateScale;
    return {plotter_.Left() + (at.x - page_.Left()) * perUnit,
            plotter_.Bottom() + (page_.Bottom() - at.y) * perUnit};
}

// The nearest, where the plotter has no more places.
std::size_t PlotterSurface::PenFor(Colour colour) {
    constexpr Colour kKeptBlack = 1; // a design's, apart from none
    colour = colour == kKeptBlack ? kBlackInk : colour;
    const auto isNearer = [colour](const Pen& a, const Pen& b) {
        return ColoursApart(a.colour, colour) < ColoursApart(b.colour, colour);
    };
    const auto nearest = std::min_element(pens_.begin(), pens_.end(), isNearer);
    if (nearest->colour == colour || pens_.size() == kPlotterPens) {
        hasMoreColours_ = hasMoreColours_ || nearest->colour != colour;
        return static_cast<std::size_t>(nearest - pens_.begin());
    }
    pens_.push_back({colour, ""});
    states_.emplace_back();
    return pens_.size() - 1;
}

void PlotterSurface::Statement(std::size_t pen, const std::string& text) {
    pens_[pen].statements.append(text).append(kLineEnd);
}

void PlotterSurface::SelectPenWidth(std::size_t pen) {
    PenState& state = states_[pen];
    if (state.widthMm != widthMm_) {
        Statement(pen, "PW" + PlotterNumber(widthMm_));
        state.widthMm = widthMm_;
    }
}

void PlotterSurface::MoveTo(std::size_t pen, SurfacePoint at) {
    const SurfacePoint whole = Whole(at);
    Statement(pen, "PU" + PlotterNumber(whole.x) + PlotterNumber(whole.y));
    states_[pen].at = whole;
    states_[pen].isPlaced = true;
}

void PlotterSurface::Stroke(SurfacePoint from, SurfacePoint to, Colour colour) {
    if (!IsReachable(from) || !IsReachable(to)) {
        return;
    }
    const std::size_t pen = PenFor(colour);
    SelectPenWidth(pen);
    const PenState& state = states_[pen];
    if (!state.isPlaced || !IsSame(state.at, Whole(from))) {
        MoveTo(pen, from);
    }
    const SurfacePoint whole = Whole(to);
    Statement(pen, "PD" + PlotterNumber(whole.x) + PlotterNumber(whole.y));
    states_[pen].at = whole;
}

void PlotterSurface::SetLineWidth(int pixels) {
    widthMm_ = std::max(pixels, 1) * kPixelMm;
}

void PlotterSurface::SetLineThickness(double units) {
    widthMm_ = units / kSheetUnitsPerMm;
}

void PlotterSurface::Line(float x1, float y1, float x2, float y2, Colour colour) {
    current_ = {double{x2}, double{y2}};
    Stroke(ToPlotter({double{x1}, double{y1}}), ToPlotter(current_), colour);
}

void PlotterSurface::Box(float x1, float y1, float x2, float y2, Colour colour) {
    Line(x1, y1, x2, y1, colour);
    Line(x2, y1, x2, y2, colour);
    Line(x2, y2, x1, y2, colour);
    Line(x1, y2, x1, y1, colour);
}

void PlotterSurface::FillArea(std::span<const SurfacePoint> corners, Colour colour) {
    if (corners.size() < 3) {
        return;
    }
    widthMm_ = penMm_;
    std::vector<SurfacePoint> area;
    double low = std::numeric_limits<double>::max();
    double high = std::numeric_limits<double>::lowest();
    for (const SurfacePoint& corner : corners) {
        area.push_back(ToPlotter(corner));
        low = std::min(low, area.back().y);
        high = std::max(high, area.back().y);
    }
    for (std::size_t corner = 0; corner < area.size(); ++corner) {
        Stroke(area[corner], area[(corner + 1) % area.size()], colour);
    }
    low = std::max(low, -kFarthest);
    high = std::min(high, kFarthest);
    const double apart = penMm_ * 2 * plotter_.plateScale;
    bool isForth = true; // and back, so that the pen has short ways
    for (double y = low + apart / 2; y < high; y += apart) {
        const std::vector<double> crossings = CrossingsAt(area, y);
        for (std::size_t pair = 0; pair + 1 < crossings.size(); pair += 2) {
            const SurfacePoint left{crossings[pair], y};
            const SurfacePoint right{crossings[pair + 1], y};
            Stroke(isForth ? left : right, isForth ? right : left, colour);
        }
        isForth = !isForth;
    }
}

void PlotterSurface::Circle(float x, float y, float r, Colour colour) {
    constexpr double kChordDegrees = 3;
    if (!IsReachable(ToPlotter({double{x}, double{y}}))) {
        return;
    }
    const std::size_t pen = PenFor(colour);
    SelectPenWidth(pen);
    MoveTo(pen, ToPlotter({double{x}, double{y}}));
    const double radius = double{r} * plotter_.plateScale / page_.plateScale;
    Statement(pen, "CI" + PlotterNumber(std::floor(radius + 0.5)) + PlotterNumber(kChordDegrees));
    states_[pen].isPlaced = false;
}

// What is drawn as a dot only says where a text begins.
void PlotterSurface::Dot(float x, float y, Colour /*colour*/) {
    current_ = {double{x}, double{y}};
}

float PlotterSurface::TextWidth(const std::string& text) const {
    const auto letters = static_cast<double>(PlotterLetters(text).size());
    return static_cast<float>(letters * kDigit * points_ * kMmPerPoint * kSheetUnitsPerMm);
}

float PlotterSurface::TextHeight(const std::string& /*text*/) const {
    return static_cast<float>(points_ * kMmPerPoint * kSheetUnitsPerMm);
}

void PlotterSurface::PrintText(const std::string& text) {
    PlaceText(text, {.at = current_,
                     .anchor = TextAnchor::TopLeft,
                     .em = points_ * kMmPerPoint * kSheetUnitsPerMm,
                     .turnRad = 0,
                     .face = {}});
}

// LO1 takes the lower left corner of the first letter.
void PlotterSurface::PlaceText(const std::string& text, const TextPlace& place) {
    const std::string letters = PlotterLetters(text);
    if (Trimmed(letters).empty() || !IsReachable(ToPlotter(place.at))) {
        return;
    }
    const std::size_t pen = PenFor(ink_);
    const double emMm = place.em / kSheetUnitsPerMm;
    const double heightMm = emMm * kCapitals;
    const double cellMm = emMm * kDigit;
    const double widthMm = cellMm / kCellPerWidth;
    const bool fromLeft = place.anchor == TextAnchor::TopLeft;
    const double across =
        (fromLeft ? 0 : static_cast<double>(letters.size()) * cellMm / 2) - (cellMm - widthMm) / 2;
    const double up = place.anchor == TextAnchor::Middle ? heightMm / 2 : heightMm;
    const double perMm = 2 * plotter_.plateScale;
    const double c = std::cos(place.turnRad);
    const double s = std::sin(place.turnRad);
    const SurfacePoint at = ToPlotter(place.at);
    const auto cm = [](double mm) { return PlotterDigits(mm / 10); };
    Statement(pen, "SI " + cm(widthMm) + " " + cm(heightMm));
    Statement(pen, "LO1");
    Statement(pen, place.turnRad == 0
                       ? "DI1,0"
                       : "DI" + PlotterNumber(ZeroIfTiny(c)) + PlotterNumber(ZeroIfTiny(s)));
    MoveTo(pen, {at.x + perMm * (up * s - across * c), at.y - perMm * (up * c + across * s)});
    Statement(pen, "LB" + letters + kEndOfText);
    states_[pen].isPlaced = false;
}

} // namespace vernacle
