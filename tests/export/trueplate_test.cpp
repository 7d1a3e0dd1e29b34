// The plate of the workshop on paper, read back from PDF and SVG: everything stands within 0.02 mm
// of its place, every line is as wide as its entry says.
#include "export/trueplate.h"

#include <algorithm>
#include <cmath>

#include <QImage>

#include "engine/core/service.h"
#include "engine/designfile/readwrite.h"
#include "export/exporttest.h"
#include "support/pdfreader.h"

namespace vernacle::test {
namespace {

constexpr double kPlaceToleranceMm = 0.02;
constexpr double kLineToleranceMm = 0.005;

bool IsAt(MmPoint a, MmPoint b) {
    return std::hypot(a.x - b.x, a.y - b.y) <= kPlaceToleranceMm;
}

unsigned RgbOf(std::int32_t colour) {
    const auto bits = static_cast<unsigned>(colour);
    return ((bits & 0xFF) << 16) | (bits & 0xFF00) | (bits >> 16);
}

std::string Text(MmPoint point) {
    return "(" + std::to_string(point.x) + ", " + std::to_string(point.y) + ")";
}

class TruePlateTest : public ExportTest, public ::testing::WithParamInterface<int> {
protected:
    TruePlateTest() { StoreService(Program::Workshop); }

    // The design as a file, and as it is read back from it.
    std::string Write(DesignRecord& design) const {
        design.DesignFileName = Path("plate.VRN");
        EXPECT_TRUE(WriteDesign(design));
        ReadDesign(design, Path("plate.VRN"));
        return design.DesignFileName;
    }
};

class TruePlateFormTest : public TruePlateTest {};

std::vector<Shape> LinesOf(const SvgPicture& picture, unsigned rgb, bool areArcs) {
    std::vector<Shape> lines;
    for (const Shape& shape : picture.shapes) {
        if (shape.stroked && !shape.curved && shape.rgb == rgb &&
            (shape.points.size() > 2) == areArcs) {
            lines.push_back(shape);
        }
    }
    return lines;
}

void ExpectTics(const SvgPicture& picture, const TruePlate& plate, int scale) {
    std::vector<Shape> found = LinesOf(picture, plate.Rgb(scale), false);
    for (const Shape& tic : plate.Tics(scale)) {
        const auto hit = std::find_if(found.begin(), found.end(), [&](const Shape& line) {
            return std::abs(line.widthMm - tic.widthMm) < kLineToleranceMm && line.cap == "butt" &&
                   ((IsAt(line.points[0], tic.points[0]) && IsAt(line.points[1], tic.points[1])) ||
                    (IsAt(line.points[0], tic.points[1]) && IsAt(line.points[1], tic.points[0])));
        });
        if (hit == found.end()) {
            ADD_FAILURE() << "scale " << scale << " has no tic at " << Text(tic.points[0]) << " to "
                          << Text(tic.points[1]) << " of " << tic.widthMm << " mm";
        } else {
            found.erase(hit);
        }
    }
    EXPECT_TRUE(found.empty()) << "scale " << scale << " has " << found.size() << " more lines";
}

void ExpectArc(const SvgPicture& picture, const TruePlate& plate, const DesignRecord& design,
               int scale) {
    const std::vector<Shape> arcs = LinesOf(picture, plate.Rgb(scale), true);
    ASSERT_EQ(arcs.size(), 1U) << scale; // one path
    const Shape& arc = arcs.front();
    EXPECT_NEAR(arc.widthMm, double{design.ArcWidth} / 10, kLineToleranceMm);
    const double ceiling = double{design.BottomToScaleCeiling[scale]};
    const MmPoint centre = plate.VirtualBearing();
    const double radius = plate.RadiusMm(ceiling);
    for (std::size_t point = 0; point < arc.points.size(); ++point) {
        const auto [x, y] = arc.points[point];
        EXPECT_NEAR(std::hypot(x - centre.x, y - centre.y), radius, kPlaceToleranceMm);
        if (point > 0) { // the sagitta of each chord
            const double chord =
                std::hypot(x - arc.points[point - 1].x, y - arc.points[point - 1].y);
            EXPECT_LT(chord * chord / (8 * radius), 0.006);
        }
    }
    // Its ends reach the outermost tics.
    for (const Shape& tic : plate.Tics(scale)) {
        const double angle = std::atan2(centre.y - tic.points[0].y, centre.x - tic.points[0].x);
        const bool isOnArc = std::any_of(arc.points.begin(), arc.points.end(), [&](MmPoint point) {
            return std::hypot(point.x - tic.points[0].x, point.y - tic.points[0].y) < 3;
        });
        EXPECT_TRUE(isOnArc) << "scale " << scale << " at " << angle;
    }
}

void ExpectHighlight(const SvgPicture& picture, const TruePlate& plate, const DesignRecord& design,
                     int slot) {
    const unsigned rgb = RgbOf(design.HighlightColor[slot]);
    const auto area = std::find_if(picture.shapes.begin(), picture.shapes.end(),
                                   [&](const Shape& s) { return !s.stroked && s.rgb == rgb; });
    ASSERT_NE(area, picture.shapes.end()) << slot;
    const double ceiling = double{design.HighlightCeiling[slot]};
    const double outer = ceiling + double{design.HighlightLength[slot]};
    const MmPoint centre = plate.VirtualBearing();
    for (const MmPoint point : area->points) {
        const double distance = std::hypot(point.x - centre.x, point.y - centre.y);
        EXPECT_TRUE(std::abs(distance - plate.RadiusMm(ceiling)) < kPlaceToleranceMm ||
                    std::abs(distance - plate.RadiusMm(outer)) < kPlaceToleranceMm)
            << distance;
    }
    for (const float percent : {design.HighlightStart[slot], design.HighlightStop[slot]}) {
        for (const double height : {ceiling, outer}) {
            const MmPoint corner = plate.Meet(double{percent} / 100, height);
            EXPECT_TRUE(std::any_of(area->points.begin(), area->points.end(),
                                    [&](MmPoint point) { return IsAt(point, corner); }))
                << "slot " << slot << " has no corner at " << Text(corner);
        }
    }
}

// Where the base line of a label's first letter begins, by the middle of its letters.
MmPoint StartOf(MmPoint middle, double turn, std::size_t digits, double em) {
    const double back = static_cast<double>(digits) * kDigitAdvance * em / 2;
    const double down = kCapitals * em / 2;
    return {middle.x - back * std::cos(turn) + down * std::sin(turn),
            middle.y + back * std::sin(turn) + down * std::cos(turn)};
}

void ExpectLabels(const SvgPicture& picture, const TruePlate& plate, const DesignRecord& design,
                  int scale) {
    const double em = EmOf(design, scale);
    for (const int tic : LabelledTics(design, scale)) {
        const MmPoint start = StartOf(plate.Middle(scale, tic), plate.LabelTurn(scale, tic),
                                      std::to_string(tic).size(), em);
        const bool stands = std::any_of(picture.glyphs.begin(), picture.glyphs.end(),
                                        [&](MmPoint glyph) { return IsAt(glyph, start); });
        EXPECT_TRUE(stands) << "scale " << scale << " has no label " << tic << " at "
                            << Text(start);
    }
}

TEST_P(TruePlateTest, EverythingStandsInItsPlace) {
    DesignRecord design = GenerateDesign(GetParam());
    const std::string file = Write(design);
    ExportQuietly(file, {Path("p.pdf"), Path("p.svg")}, {"--workshop", "--strict"});
    const TruePlate plate(design);
    const SvgPicture pdf = ReadPdf(Path("p.pdf"));
    const SvgPicture svg = ReadSvg(ReadFile("p.svg"));
    for (const SvgPicture& picture : {pdf, svg}) {
        for (int scale = 1; scale <= design.NumberOfScales; ++scale) {
            ExpectTics(picture, plate, scale);
            ExpectArc(picture, plate, design, scale);
        }
        ExpectHighlight(picture, plate, design, 1);
        ExpectHighlight(picture, plate, design, 2);
    }
    for (int scale = 1; scale <= design.NumberOfScales; ++scale) {
        ExpectLabels(pdf, plate, design, scale);
    }
}

constexpr int kWidth = 1600; // pixels
constexpr int kHeight = 1000;

// From the sheet to a picture that shows the plate with its trim marks and its ruler.
QPointF OnPicture(const TruePlate& plate, const DesignRecord& design, MmPoint sheet) {
    constexpr double kBesideMm = 520 * kUnitMm;
    constexpr double kAboveMm = 400 * kUnitMm;
    constexpr double kBelowMm = 1120 * kUnitMm;
    const double width = double{design.PlateWidth} + 2 * kBesideMm;
    const double height = double{design.PlateHeight} + kAboveMm + kBelowMm;
    const double perMm = std::min(kWidth / width, kHeight / height);
    const MmPoint corner = plate.OnSheet(-kBesideMm, double{design.PlateHeight} + kAboveMm);
    return {kWidth / 2. + (sheet.x - corner.x - width / 2) * perMm,
            kHeight / 2. + (sheet.y - corner.y - height / 2) * perMm};
}

// Whether the scale's colour outweighs the plate's within a pixel of there.
bool IsInked(const QImage& picture, QPointF at, unsigned rgb) {
    const QColor ink(static_cast<QRgb>(rgb));
    for (int dx = -1; dx <= 1; ++dx) {
        for (int dy = -1; dy <= 1; ++dy) {
            const QPoint pixel(static_cast<int>(std::floor(at.x())) + dx,
                               static_cast<int>(std::floor(at.y())) + dy);
            if (!picture.valid(pixel)) {
                return true; // beside the picture
            }
            const QColor found(picture.pixel(pixel));
            if (std::abs(found.red() - ink.red()) < 100 &&
                std::abs(found.green() - ink.green()) < 100 &&
                std::abs(found.blue() - ink.blue()) < 100) {
                return true;
            }
        }
    }
    return false;
}

TEST_P(TruePlateTest, ThePictureShowsThePlateOfThePaper) {
    DesignRecord design = GenerateDesign(GetParam());
    const std::string file = Write(design);
    ExportQuietly(file, {Path("p.png")}, {"--workshop", "--size", "1600x1000"});
    const QImage picture(QString::fromStdString(Path("p.png")));
    ASSERT_EQ(picture.size(), QSize(kWidth, kHeight));
    const TruePlate plate(design);
    for (int scale = 1; scale <= design.NumberOfScales; ++scale) {
        for (const Shape& tic : plate.Tics(scale)) {
            if (tic.widthMm < 0.3) {
                continue; // fainter than a pixel
            }
            const auto [foot, end] = std::pair(tic.points[0], tic.points[1]);
            const MmPoint middle{(foot.x + end.x) / 2, (foot.y + end.y) / 2};
            EXPECT_TRUE(IsInked(picture, OnPicture(plate, design, middle), tic.rgb))
                << "scale " << scale << " at " << Text(middle);
        }
    }
}

// A printer's factors are a printer's.
TEST_F(TruePlateFormTest, ACalibrationStretchesNoFile) {
    DesignRecord design = GenerateDesign(0);
    const std::string file = Write(design);
    const std::string factors = WriteFile("Calibrate.txt", "\"Vernacle calibration file\"\r\n\r\n"
                                                           "#2026-01-02 03:04:05#\r\n\r\n"
                                                           "1.02\r\n.97\r\n\r\n");
    ExportQuietly(file, {Path("a.svg")}, {"--workshop"});
    ExportQuietly(file, {Path("b.svg")}, {"--workshop", "--calibration", factors});
    EXPECT_EQ(ReadFile("a.svg"), ReadFile("b.svg"));
}

TEST_F(TruePlateFormTest, TheFooterNamesTheFileWithoutItsFolders) {
    DesignRecord design = GenerateDesign(0);
    ExportQuietly(Write(design), {Path("p.pdf")}, {"--workshop"});
    std::string text;
    for (const Word& word : ReadPdfWords(Path("p.pdf"))) {
        text += word.text + " ";
    }
    EXPECT_NE(text.find("plate.VRN Printed by Vernacle from Harrowgate Software "), text.npos)
        << text;
    EXPECT_EQ(text.find("/"), text.rfind("/")) << "a folder: " << text;
    EXPECT_EQ(text.find("https"), text.npos) << text;
    EXPECT_NE(text.find(" mm "), text.npos) << text;
}

// A plate of the largest size with marks, ruler and footer.
TEST_F(TruePlateFormTest, TheLargestPlateFitsOnBothPapers) {
    DesignRecord design = GenerateDesign(0);
    design.PlateWidth = design.PlateHeight = 180;
    const std::string file = Write(design);
    for (const auto& [paper, height] : {std::pair{"A4", 297.0}, {"Letter", 279.4}}) {
        SCOPED_TRACE(paper);
        ExportQuietly(file, {Path("p.pdf")}, {"--workshop", "--paper", paper});
        double lowest = 0;
        for (const Word& word : ReadPdfWords(Path("p.pdf"))) {
            lowest = std::max(lowest, word.bottomRight.y);
        }
        EXPECT_LT(lowest, height - 4.2);
        EXPECT_GT(lowest, 180 + 20);
        for (const Shape& shape : ReadPdf(Path("p.pdf")).shapes) {
            for (const MmPoint point : shape.points) {
                EXPECT_GT(point.x, 4);
                EXPECT_GT(point.y, 4);
                EXPECT_LT(point.y, height - 4);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Generated, TruePlateTest, ::testing::Range(0, 15));

} // namespace
} // namespace vernacle::test
