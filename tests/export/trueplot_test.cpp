// The plate of the workshop as HP-GL, its statements followed like a plotter does: the same plate
// as on paper, pen by pen.
#include <charconv>
#include <cmath>
#include <map>
#include <numbers>
#include <set>
#include <sstream>

#include "engine/core/service.h"
#include "engine/designfile/readwrite.h"
#include "export/exporttest.h"
#include "export/trueplate.h"

namespace vernacle::test {
namespace {

constexpr double kUnitsPerMm = 40;
constexpr double kHalfUnit = 0.5001;

struct PlottedLine {
    int pen;
    double widthMm;
    MmPoint from, to; // plotter units, y upward
};

struct PlottedText {
    int pen;
    std::string text;
    MmPoint at; // lower left of the first letter
    double widthMm, heightMm;
    double turnRad;
};

struct Plot {
    std::vector<PlottedLine> lines;
    std::vector<PlottedText> texts;
    std::vector<int> pensTaken; // in their order
    std::string comment;
};

std::vector<double> NumbersOf(std::string text) {
    for (char& c : text) {
        c = c == ',' ? ' ' : c;
    }
    std::vector<double> numbers;
    const char* at = text.data();
    const char* end = at + text.size();
    while (at < end) {
        double number = 0;
        const auto [next, error] = std::from_chars(at, end, number);
        if (error == std::errc()) {
            numbers.push_back(number);
            at = next;
        } else {
            ++at;
        }
    }
    return numbers;
}

// Follows the statements; one that is not known is a failure.
class Reader {
public:
    Plot Read(const std::string& stream) {
        std::istringstream lines(stream);
        for (std::string line; std::getline(lines, line);) {
            EXPECT_TRUE(line.ends_with('\r')) << line;
            line.pop_back();
            Take(line.substr(0, 2), line.substr(std::min<std::size_t>(2, line.size())));
        }
        return plot_;
    }

private:
    void Take(const std::string& word, const std::string& rest) {
        const std::vector<double> n = word == "LB" ? std::vector<double>{} : NumbersOf(rest);
        if (word == "SP") {
            pen_ = static_cast<int>(n.at(0));
            plot_.pensTaken.push_back(pen_);
        } else if (word == "PU" && n.size() == 2) {
            at_ = {n[0], n[1]};
        } else if (word == "PD") {
            plot_.lines.push_back({pen_, width_, at_, {n.at(0), n.at(1)}});
            at_ = {n[0], n[1]};
        } else if (word == "PW") {
            width_ = n.at(0);
        } else if (word == "SI") {
            size_ = {n.at(0) * 10, n.at(1) * 10};
        } else if (word == "DI") {
            turn_ = std::atan2(n.at(1), n.at(0));
        } else if (word == "LB") {
            EXPECT_TRUE(rest.ends_with('\x03'));
            plot_.texts.push_back(
                {pen_, rest.substr(0, rest.size() - 1), at_, size_.x, size_.y, turn_});
        } else if (word == "CO") {
            plot_.comment = rest;
        } else {
            const std::set<std::string> known = {"IN", "LT", "LO", "CI", "PU"};
            EXPECT_TRUE(known.count(word)) << word << rest;
        }
    }

    Plot plot_;
    int pen_ = 0;
    double width_ = 0;
    double turn_ = 0;
    MmPoint at_, size_;
};

class TruePlotTest : public ExportTest, public ::testing::WithParamInterface<int> {
protected:
    TruePlotTest() { StoreService(Program::Workshop); }

    Plot PlotOf(DesignRecord& design) const {
        design.DesignFileName = Path("plate.VRN");
        EXPECT_TRUE(WriteDesign(design));
        ExportQuietly(design.DesignFileName, {Path("p.hpgl")}, {"--workshop"});
        return Reader().Read(ReadFile("p.hpgl"));
    }
};

// From a sheet to the plotter: its plate's corner stands on whole units.
MmPoint OnPlotter(const TruePlate& plate, const DesignRecord& design, MmPoint sheet) {
    const double left = std::floor(4100 - 20 * double{design.PlateWidth});
    const double bottom = std::floor(8500 - 32 * double{design.PlateHeight});
    const MmPoint corner = plate.OnSheet(0, 0);
    return {left + kUnitsPerMm * (sheet.x - corner.x), bottom + kUnitsPerMm * (corner.y - sheet.y)};
}

bool IsWithin(MmPoint a, MmPoint b, double units) {
    return std::abs(a.x - b.x) <= units && std::abs(a.y - b.y) <= units;
}

void ExpectPlottedTics(const Plot& plot, const TruePlate& plate, const DesignRecord& design,
                       int scale) {
    std::set<int> pens;
    for (const Shape& tic : plate.Tics(scale)) {
        const MmPoint foot = OnPlotter(plate, design, tic.points[0]);
        const MmPoint end = OnPlotter(plate, design, tic.points[1]);
        bool isFound = false;
        for (const PlottedLine& line : plot.lines) {
            const bool isIt = IsWithin(line.to, foot, kHalfUnit) &&
                              IsWithin(line.from, end, kHalfUnit) &&
                              std::abs(line.widthMm - tic.widthMm) < 0.005;
            isFound = isFound || isIt;
            if (isIt) {
                pens.insert(line.pen);
            }
        }
        EXPECT_TRUE(isFound) << "scale " << scale << " at " << foot.x << " " << foot.y;
    }
    EXPECT_EQ(pens.size(), 1U) << "scale " << scale << " has a pen of its own";
}

void ExpectPlottedLabels(const Plot& plot, const TruePlate& plate, const DesignRecord& design,
                         int scale) {
    const double em = EmOf(design, scale);
    for (const int tic : LabelledTics(design, scale)) {
        const std::string label = std::to_string(tic);
        const MmPoint middle = OnPlotter(plate, design, plate.Middle(scale, tic));
        bool isFound = false;
        for (const PlottedText& text : plot.texts) {
            // A letter takes one and a half of its widths, the last half of it air.
            const double across =
                (1.5 * static_cast<double>(label.size()) - 0.5) * text.widthMm / 2 * kUnitsPerMm;
            const double up = text.heightMm / 2 * kUnitsPerMm;
            const double c = std::cos(text.turnRad);
            const double s = std::sin(text.turnRad);
            const MmPoint found{text.at.x + across * c - up * s, text.at.y + across * s + up * c};
            const double turned =
                std::remainder(text.turnRad - plate.LabelTurn(scale, tic), 2 * std::numbers::pi);
            isFound =
                isFound ||
                (text.text == label && IsWithin(found, middle, 0.1 * kUnitsPerMm) &&
                 std::abs(turned) < 0.002 && std::abs(text.heightMm - em * kCapitals) < 0.01 &&
                 std::abs(text.widthMm * 1.5 - em * kDigitAdvance) < 0.01);
        }
        EXPECT_TRUE(isFound) << "scale " << scale << " has no label " << label;
    }
}

TEST_P(TruePlotTest, EverythingStandsInItsPlace) {
    DesignRecord design = GenerateDesign(GetParam());
    const Plot plot = PlotOf(design);
    const TruePlate plate(design);
    for (int scale = 1; scale <= design.NumberOfScales; ++scale) {
        ExpectPlottedTics(plot, plate, design, scale);
        ExpectPlottedLabels(plot, plate, design, scale);
    }
    // Each pen is taken once, pen 1 first and none at the end.
    std::vector<int> taken = plot.pensTaken;
    ASSERT_GT(taken.size(), 3U);
    EXPECT_EQ(taken[0], 1); // the head of every stream
    EXPECT_EQ(taken[1], 1);
    taken.erase(taken.begin());
    EXPECT_TRUE(std::is_sorted(taken.begin(), taken.end()));
    EXPECT_EQ(std::set<int>(taken.begin(), taken.end()).size(), taken.size());
}

INSTANTIATE_TEST_SUITE_P(Generated, TruePlotTest, ::testing::Range(0, 15));

class TruePlotFormTest : public TruePlotTest {};

TEST_F(TruePlotFormTest, NoByteStandsForMoreThanALetter) {
    DesignRecord design = GenerateDesign(0);
    design.ScaleTitle[1] = "µA at 20 °C, 5 Ω ± Ü € \x1B;";
    const Plot plot = PlotOf(design);
    bool isFound = false;
    for (const PlottedText& text : plot.texts) {
        isFound = isFound || text.text == "uA at 20 degC, 5 Ohm +- Ue ? ;";
    }
    EXPECT_TRUE(isFound);
    for (const char c : ReadFile("p.hpgl")) {
        EXPECT_TRUE((c >= ' ' && c <= '~') || c == '\r' || c == '\n' || c == '\x03');
    }
}

TEST_F(TruePlotFormTest, ACommentNamesThePens) {
    DesignRecord design = GenerateDesign(1);
    design.ScaleColor[1] = 0x0000FF;
    design.ScaleColor[2] = 0x008000;
    const std::string comment = PlotOf(design).comment;
    EXPECT_EQ(comment, "\"pen one black, pen two yellow, pen three yellow, pen four green, "
                       "pen five red, pen six blue\";");
}

// A special scale's black is kept as the next colour.
TEST_F(TruePlotFormTest, BothBlacksAreOnePen) {
    DesignRecord design = GenerateDesign(1);
    design.ScaleColor[1] = 1;
    design.ScaleColor[2] = 0;
    EXPECT_EQ(PlotOf(design).comment.find("black", 16), std::string::npos);
}

// Six scales, two highlights and the blue marks want nine with black.
TEST_F(TruePlotFormTest, TheNinthColourTakesTheNearestPen) {
    DesignRecord design = GenerateDesign(5);
    ASSERT_EQ(design.NumberOfScales, 6);
    design.HighlightColor[1] = 0x00FF00;
    const Plot plot = PlotOf(design);
    EXPECT_EQ(*std::max_element(plot.pensTaken.begin(), plot.pensTaken.end()), 8);
    int bluest = 0;
    for (const PlottedText& text : plot.texts) { // the ruler's blue has come last
        bluest = text.text == "mm" ? text.pen : bluest;
    }
    EXPECT_NE(bluest, 0);
    EXPECT_NE(bluest, 1);
}

// An everyday plate is plotted as ever.
TEST_F(TruePlotFormTest, WithoutTheWorkshopTheStreamIsTheEverydayOne) {
    ExportQuietly(Example("PERCENT"), {Path("e.hpgl")});
    EXPECT_EQ(ReadFile("e.hpgl").find("CO\""), std::string::npos);
    ExportQuietly(Example("PERCENT"), {Path("w.hpgl")}, {"--workshop"});
    EXPECT_NE(ReadFile("w.hpgl").find("CO\"pen one black"), std::string::npos);
}

} // namespace
} // namespace vernacle::test
