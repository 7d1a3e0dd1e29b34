// The texts of the printed plate, read back from the PDF: each in its place.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "export/exporttest.h"
#include "support/pdfreader.h"
#include "support/plategeometry.h"

namespace vernacle::test {

namespace {

// The word nearest to a place, of those that read so.
Word NearestWord(const std::vector<Word>& words, const std::string& text, MmPoint place) {
    Word nearest;
    double least = 1e9;
    for (const Word& word : words) {
        const double distance = std::hypot(word.Centre().x - place.x, word.Centre().y - place.y);
        if (word.text == text && distance < least) {
            least = distance;
            nearest = word;
        }
    }
    EXPECT_EQ(nearest.text, text) << "is not on the page";
    return nearest;
}

class SheetTextTest : public ExportTest {};

TEST_F(SheetTextTest, UprightLabelsAreCentredOnTheirAnchors) {
    struct Row {
        const char* name;
        const char* example;
        Paper paper;
        std::vector<std::pair<int, const char*>> labels; // by tic
    };
    const Row rows[] = {
        {"galvanometer",
         "GALVANOMETER-30-0-30",
         kA4,
         {{0, "-30"}, {10, "-20"}, {20, "-10"}, {30, "0"}, {40, "10"}, {50, "20"}, {60, "30"}}},
        {"milliamperes",
         "MILLIAMPERES-0-1",
         kLetter,
         {{0, "0"}, {10, ".2"}, {20, ".4"}, {30, ".6"}, {40, ".8"}, {50, "1"}}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const std::string design = Example(row.example);
        ExportQuietly(design, {Path("plate.pdf")}, {"--paper", row.paper.name});
        const std::vector<Word> words = ReadPdfWords(Path("plate.pdf"));
        const Plate plate = ReadPlate(ReadText(design));
        const SheetGeometry geometry(plate, row.paper, {});
        for (const auto& [tic, text] : row.labels) {
            const double fraction = static_cast<double>(tic) / plate.tics;
            const MmPoint anchor = geometry.OnSheet(
                PointAlongPointer(plate, fraction, plate.labelSpacing * plate.relativeSize));
            const Word word = NearestWord(words, text, anchor);
            // The box of a word is of the letters' advances and of the cell's height; the place of
            // a label is cut to whole page units, of which a millimetre has 56.
            EXPECT_NEAR(word.Centre().x, anchor.x, 0.06) << text;
            EXPECT_NEAR(word.Centre().y, anchor.y, 0.06) << text;
        }
    }
}

// Where the first letter of a turned label must begin on its base line: the label's corner is
// placed in device pixels of a page whose plate has its middle at 2500, 1675, and it turns about
// that.
MmPoint StartOfTurnedLabel(const Plate& plate, const Paper& paper, double fraction,
                           std::size_t digits) {
    constexpr double kPixelMm = 25.4 / 600;
    constexpr double kUnitMm = 1 / 56.578;
    constexpr double kTwips = 2.4;          // to the pixel
    constexpr double kDigit = 1139 / 2048.; // of Arial's em, as the two below
    constexpr double kAscent = 1854 / 2048.;
    constexpr double kDescent = 434 / 2048.;
    const double points = plate.fontSize;
    const double em = points / 72 * 25.4;
    const double width = static_cast<double>(digits) * kDigit * em / kUnitMm;
    const double height = (kAscent + kDescent) * em / kUnitMm;
    const double t = (90 - plate.swing / 2 + plate.swing * fraction) * std::numbers::pi / 180;
    const double radius = plate.ceiling - plate.bearing + plate.offset;
    const double p = t + std::asin(plate.offset * std::cos(t) / radius);
    const double across = 2 / kTwips * 28.289;
    const double up = 2.04 / kTwips * 28.289;
    const double share = 0.06 / kTwips * points;
    const double x = across * (-radius * std::cos(p) - plate.labelSpacing * std::cos(t)) + 2500 -
                     share * (width * std::sin(t) + height * std::cos(t));
    const double y = up * (plate.height / 2 - radius * std::sin(p) + plate.offset - plate.bearing -
                           plate.labelSpacing * std::sin(t)) +
                     1675 + share * (width * std::cos(t) - height * std::sin(t));
    const double turn = std::numbers::pi / 2 - t; // counter-clockwise
    return {(paper.widthMm - 11500 * kUnitMm) / 2 + x * kPixelMm + kAscent * em * std::sin(turn),
            (paper.heightMm - 15200 * kUnitMm) / 2 + y * kPixelMm + kAscent * em * std::cos(turn)};
}

// How far the sheet's picture stands below the usual place of the plate's middle.
double MovedDownMm(const Plate& plate, const Paper& paper) {
    const MmPoint middle =
        SheetGeometry(plate, paper, {}).OnSheet({plate.width / 2, plate.height / 2});
    return middle.y - (paper.heightMm / 2 + (4000 - 15200 / 2.0) / 56.578);
}

TEST_F(SheetTextTest, TurnedLabelsStandWhereTheDeviceIsToldTo) {
    struct Row {
        const char* name;
        Paper paper;
        Edits edits;
        bool isMoved;
    };
    const Row rows[] = {
        {"A4", kA4, {}, false},
        {"Letter", kLetter, {}, false},
        {"high on A4", kA4, {{"Plate height: ", "180"}}, true},
        {"high on Letter", kLetter, {{"Plate height: ", "180"}}, true},
    };
    for (const auto& [name, paper, edits, isMoved] : rows) {
        SCOPED_TRACE(name);
        const std::string design = EditedExample("PERCENT", edits);
        const Plate plate = ReadPlate(ReadText(design));
        const double moved = MovedDownMm(plate, paper);
        EXPECT_EQ(moved > 10, isMoved) << moved;
        ExportQuietly(design, {Path("plate.pdf")}, {"--paper", paper.name});
        const std::vector<MmPoint> glyphs = ReadPdf(Path("plate.pdf")).glyphs;
        for (int value = 0; value <= 100; value += 10) {
            const std::string text = std::to_string(value);
            MmPoint start = StartOfTurnedLabel(plate, paper, value / 100.0, text.size());
            start.y += moved;
            const auto distance = [start](MmPoint glyph) {
                return std::hypot(glyph.x - start.x, glyph.y - start.y);
            };
            double least = 1e9;
            for (const MmPoint glyph : glyphs) {
                least = std::min(least, distance(glyph));
            }
            EXPECT_LT(least, 0.05) << text; // a device pixel, and the turn in tenths of a degree
        }
    }
}

TEST_F(SheetTextTest, TitleRulerAndFooterAreThere) {
    const std::string design = Example("GALVANOMETER-30-0-30");
    ExportQuietly(design, {Path("plate.pdf")});
    const std::vector<Word> words = ReadPdfWords(Path("plate.pdf"));
    const Plate plate = ReadPlate(ReadText(design));
    const SheetGeometry geometry(plate, kA4, {});
    const double unit = 1 / 56.578;
    const MmPoint corner = geometry.OnSheet({0, 0});

    const MmPoint title = geometry.OnSheet({plate.width / 2, plate.titleUp});
    EXPECT_NEAR(NearestWord(words, "GALVANOMETER", title).topLeft.y, title.y, 0.1);
    for (const char* number : {"0", "10", "90"}) {
        const double digits = static_cast<double>(std::string(number).size());
        const MmPoint place = {corner.x + std::stoi(number) - 45 * digits * unit,
                               corner.y + 530 * unit};
        const MmPoint found = NearestWord(words, number, place).topLeft;
        EXPECT_NEAR(found.x, place.x, 0.05) << number;
        EXPECT_NEAR(found.y, place.y, 0.1) << number;
    }
    const MmPoint unitName = {corner.x + 90 + 180 * unit, corner.y + 530 * unit};
    EXPECT_NEAR(NearestWord(words, "MILLIMETERS", unitName).topLeft.x, unitName.x, 0.05);

    const std::pair<const char*, double> footer[] = {
        {design.c_str(), 1000},
        {"Printed", 1150},
        {"https://harrowgate.example/vernacle", 1300},
        {"2026-01-02", 1450},
    };
    for (const auto& [text, below] : footer) {
        const MmPoint place = {corner.x, corner.y + below * unit};
        const MmPoint found = NearestWord(words, text, place).topLeft;
        EXPECT_NEAR(found.x, place.x, 0.05) << text;
        EXPECT_NEAR(found.y, place.y, 0.1) << text;
    }
    EXPECT_EQ(NearestWord(words, "03:04:05", corner).text, "03:04:05");
}

TEST_F(SheetTextTest, WithoutTextsOnlyRulerAndFooterAreWritten) {
    const std::string design = EditedExample("GALVANOMETER-30-0-30", {{"Print text Y/N:", "N"}});
    ExportQuietly(design, {Path("plate.pdf")});
    const std::vector<Word> words = ReadPdfWords(Path("plate.pdf"));
    const auto count = [&words](const std::string& text) {
        return std::count_if(words.begin(), words.end(),
                             [&text](const Word& word) { return word.text == text; });
    };
    EXPECT_EQ(count("GALVANOMETER"), 0);
    EXPECT_EQ(count("-30"), 0);
    EXPECT_EQ(count("10"), 1); // of the ruler alone
    EXPECT_EQ(count("MILLIMETERS"), 1);
}

} // namespace

} // namespace vernacle::test
