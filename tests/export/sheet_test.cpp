// The printed plate, read back from the PDF and the SVG and laid over the geometry: everything
// stands within 0.02 mm of its place, and nothing else is there.
#include <algorithm>
#include <cmath>
#include <list>
#include <optional>
#include <ostream>

#include "engine/base/numbertext.h"
#include "export/exporttest.h"
#include "support/pdfreader.h"
#include "support/plategeometry.h"

namespace vernacle::test {

namespace {

constexpr double kToleranceMm = 0.02;
constexpr double kWidthToleranceMm = 0.002;

struct SheetCase {
    const char* name;
    const char* example;
    Paper paper;
    Edits edits = {};
    Calibration calibration = {};              // as in the file; both 1 is no file
    std::optional<Calibration> effective = {}; // if it is another
    std::vector<int> deletedTics = {};
};

void PrintTo(const SheetCase& sheet, std::ostream* out) {
    *out << sheet.name;
}

// With a point in any locale.
std::string Factor(double factor) {
    return PlainNumber(static_cast<float>(factor));
}

std::string CalibrationFile(const Calibration& calibration) {
    return "\"Vernacle calibration file\"\r\n\r\n#2026-01-02 03:04:05#\r\n\r\n" +
           Factor(calibration.across) + "\r\n" + Factor(calibration.up) + "\r\n\r\n";
}

bool IsNear(MmPoint a, MmPoint b) {
    return std::abs(a.x - b.x) <= kToleranceMm && std::abs(a.y - b.y) <= kToleranceMm;
}

bool LooksLike(const Shape& found, const Shape& wanted) {
    return found.rgb == wanted.rgb && std::abs(found.widthMm - wanted.widthMm) < kWidthToleranceMm;
}

bool IsLine(const Shape& found, const Shape& wanted) {
    return LooksLike(found, wanted) && ((IsNear(found.points[0], wanted.points[0]) &&
                                         IsNear(found.points[1], wanted.points[1])) ||
                                        (IsNear(found.points[0], wanted.points[1]) &&
                                         IsNear(found.points[1], wanted.points[0])));
}

bool IsRing(const Shape& found, const Shape& wanted) {
    return LooksLike(found, wanted) && IsNear(found.Centre(), wanted.Centre()) &&
           std::abs(found.WidthOfBox() - wanted.WidthOfBox()) < 2 * kToleranceMm &&
           std::abs(found.HeightOfBox() - wanted.HeightOfBox()) < 2 * kToleranceMm;
}

std::string Describe(const Shape& shape) {
    const MmPoint from = shape.points.front();
    const MmPoint to = shape.points.back();
    return "(" + std::to_string(from.x) + ", " + std::to_string(from.y) + ") to (" +
           std::to_string(to.x) + ", " + std::to_string(to.y) + "), width " +
           std::to_string(shape.widthMm) + " mm, colour " + std::to_string(shape.rgb);
}

// Each wanted shape stands there once, and no other.
template <typename Match>
void ExpectSame(const std::vector<Shape>& all, const std::vector<Shape>& wanted, Match match) {
    std::list<Shape> found(all.begin(), all.end());
    for (const Shape& shape : wanted) {
        const auto hit = std::find_if(found.begin(), found.end(),
                                      [&](const Shape& other) { return match(other, shape); });
        if (hit == found.end()) {
            ADD_FAILURE() << "missing: " << Describe(shape);
        } else {
            found.erase(hit);
        }
    }
    for (const Shape& shape : found) {
        ADD_FAILURE() << "not wanted: " << Describe(shape);
    }
}

// The strokes of a sheet by what they can be.
struct Sorted {
    explicit Sorted(const SvgPicture& picture) {
        for (const Shape& shape : picture.shapes) {
            if (!shape.stroked) {
                fills.push_back(shape);
            } else if (shape.curved) {
                rings.push_back(shape);
            } else if (shape.points.size() == 2) {
                lines.push_back(shape);
            } else {
                polylines.push_back(shape);
            }
        }
    }

    std::vector<Shape> fills, rings, lines, polylines;
};

double DistanceToChord(MmPoint point, MmPoint from, MmPoint to) {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double along = ((point.x - from.x) * dx + (point.y - from.y) * dy) / (dx * dx + dy * dy);
    const double held = std::clamp(along, 0.0, 1.0);
    return std::hypot(from.x + held * dx - point.x, from.y + held * dy - point.y);
}

// The arc runs through the wanted points in their order and turns nowhere else. Some may be missing
// where it goes straight on: the converter joins chords that have the same slope.
void ExpectArc(const std::vector<Shape>& polylines, const Shape& wanted) {
    ASSERT_EQ(polylines.size(), 1U);
    const Shape& arc = polylines.front();
    EXPECT_TRUE(LooksLike(arc, wanted)) << Describe(arc);
    EXPECT_EQ(arc.join, "round"); // no notches where two chords of a broad arc meet
    EXPECT_TRUE(IsNear(arc.points.front(), wanted.points.front())) << Describe(arc);
    EXPECT_TRUE(IsNear(arc.points.back(), wanted.points.back())) << Describe(arc);
    std::size_t next = 1; // of the found points
    for (const MmPoint& point : wanted.points) {
        ASSERT_LE(DistanceToChord(point, arc.points[next - 1], arc.points[next]), kToleranceMm)
            << "at " << point.x << ", " << point.y;
        if (next + 1 < arc.points.size() && IsNear(arc.points[next], point)) {
            ++next;
        }
    }
    EXPECT_EQ(next + 1, arc.points.size()) << "more corners than the geometry has";
    EXPECT_GT(arc.points.size(), wanted.points.size() * 3 / 4);
}

// What lies wholly beside the sheet is not told by a reader of its page.
std::vector<Shape> OnPaper(std::vector<Shape> shapes, const SvgPicture& picture) {
    std::erase_if(shapes, [&picture](const Shape& shape) {
        return std::all_of(shape.points.begin(), shape.points.end(), [&picture](MmPoint p) {
            return p.x < 0 || p.y < 0 || p.x > picture.widthMm || p.y > picture.heightMm;
        });
    });
    return shapes;
}

void ExpectSheet(const SvgPicture& picture, const SheetGeometry& geometry, const Plate& plate,
                 const std::vector<int>& deletedTics) {
    const Sorted found(picture);
    ExpectSame(OnPaper(found.lines, picture), OnPaper(geometry.Lines(deletedTics), picture),
               IsLine);
    ExpectSame(found.rings, geometry.Rings(), IsRing);
    if (plate.arcs) {
        ExpectArc(found.polylines, geometry.Arc());
    } else {
        EXPECT_EQ(found.polylines.size(), 0U);
    }
    EXPECT_TRUE(std::all_of(found.lines.begin(), found.lines.end(),
                            [](const Shape& line) { return line.cap == "butt"; }));
    ASSERT_FALSE(picture.shapes.empty());
    const Shape& background = picture.shapes.front(); // under all else
    EXPECT_FALSE(background.stroked);
    EXPECT_EQ(background.rgb, geometry.Background().rgb);
    EXPECT_TRUE(IsNear(background.Centre(), geometry.Background().Centre()));
    EXPECT_NEAR(background.WidthOfBox(), geometry.Background().WidthOfBox(), kToleranceMm);
    EXPECT_NEAR(background.HeightOfBox(), geometry.Background().HeightOfBox(), kToleranceMm);
}

class SheetTest : public ExportTest, public ::testing::WithParamInterface<SheetCase> {};

constexpr Calibration kWide{1.1, 0.9};

Edit High(const char* millimetres) {
    return {"Plate height: ", millimetres};
}

const SheetCase kSheetCases[] = {
    {"flattened_arc_on_A4", "MILLIAMPERES-0-1", kA4},
    {"flattened_arc_on_Letter", "MILLIAMPERES-0-1", kLetter},
    {"flattened_arc_calibrated_on_A4", "MILLIAMPERES-0-1", kA4, {}, kWide},
    {"flattened_arc_calibrated_on_Letter", "MILLIAMPERES-0-1", kLetter, {}, kWide},
    {"plain_arc_on_A4", "GALVANOMETER-30-0-30", kA4},
    {"plain_arc_calibrated_on_Letter", "GALVANOMETER-30-0-30", kLetter, {}, {0.97, 1.03}},
    {"dense_on_A4", "DEGREES-0-360", kA4},
    {"dense_on_Letter", "DEGREES-0-360", kLetter},
    {"turned_labels_on_A4", "PERCENT", kA4},
    {"small_plate_on_Letter", "VOLTS-0-15", kLetter},
    {"falling_scale_on_A4", "ATTENUATION-40-0", kA4, {}, kWide},
    {"wide_plate_on_A4", "HERTZ-45-55", kA4},
    {"calibration_held_to_its_limits", "VOLTS-0-15", kA4, {}, {0.2, 9}, Calibration{0.5, 2}},
    {"calibration_of_nothing_prints_at_half_size",
     "VOLTS-0-15",
     kA4,
     {},
     {0, 0},
     Calibration{0.5, 0.5}},
    {"deleted_tics", "AMPERES-0-30", kA4, {DeletedTics({0, 7, 30})}, {}, {}, {0, 7, 30}},
    {"a_plate_that_ends_between_millimetres",
     "VOLTS-0-15",
     kA4,
     {{"Plate width: ", "60.5"}, {"Hole separation: ", "41.3"}}},
    {"tics_of_the_utmost_widths",
     "VOLTS-0-15",
     kA4,
     {{"Minor ticmark width: ", ".3"}, {"Major ticmark width: ", "25"}, {"Arc width: ", "4.3"}}},
    {"a_scale_of_relative_size", "VOLTS-0-15", kLetter, {{"Scale 1: ", "1.5"}}, kWide},
    {"a_high_plate_on_A4", "PERCENT", kA4, {High("180")}},
    {"a_high_plate_on_Letter", "PERCENT", kLetter, {High("180")}},
    {"a_plate_that_is_high_by_its_calibration", "VOLTS-0-15", kLetter, {High("110")}, {1, 1.5}},
    {"the_highest_plate_that_stays_on_A4", "VOLTS-0-15", kA4, {High("150")}},
    {"the_highest_plate_that_stays_on_Letter", "VOLTS-0-15", kLetter, {High("133")}},
    {"a_plate_that_just_moves_on_A4", "VOLTS-0-15", kA4, {High("151")}},
    {"a_plate_that_just_moves_on_Letter", "VOLTS-0-15", kLetter, {High("134")}},
    {"a_plate_too_high_for_the_sheet", "VOLTS-0-15", kLetter, {High("300")}},
    {"no_arc", "VOLTS-0-15", kA4, {{"Draw arcs Y/N:", "N"}}},
    {"bearing_below_the_plate", "VOLTS-0-15", kA4, {{"Bottom to bearing: ", "-6"}}},
};

TEST_P(SheetTest, PdfAndSvgShowThePlateTrueToSize) {
    const SheetCase& sheet = GetParam();
    const std::string design = EditedExample(sheet.example, sheet.edits);
    Words options = {"--paper", sheet.paper.name};
    if (sheet.calibration.across != 1 || sheet.calibration.up != 1) {
        options.insert(
            options.end(),
            {"--calibration", WriteFile("printer.txt", CalibrationFile(sheet.calibration))});
    }
    ExportQuietly(design, {Path("plate.pdf"), Path("plate.svg")}, options);
    const Plate plate = ReadPlate(ReadFile(std::string(sheet.example) + "-edited.VRN"));
    const SheetGeometry geometry(plate, sheet.paper, sheet.effective.value_or(sheet.calibration));
    {
        SCOPED_TRACE("PDF");
        const SvgPicture picture = ReadPdf(Path("plate.pdf"));
        EXPECT_NE(ReadFile("plate.pdf").find("/PrintScaling /None"), std::string::npos);
        EXPECT_NEAR(picture.widthMm, sheet.paper.widthMm, 0.36); // whole points
        EXPECT_NEAR(picture.heightMm, sheet.paper.heightMm, 0.36);
        ExpectSheet(picture, geometry, plate, sheet.deletedTics);
    }
    {
        SCOPED_TRACE("SVG");
        const SvgPicture picture = ReadSvg(ReadFile("plate.svg"));
        EXPECT_TRUE(picture.width.ends_with("mm"));
        EXPECT_TRUE(picture.height.ends_with("mm"));
        EXPECT_EQ(picture.widthMm, sheet.paper.widthMm);
        EXPECT_EQ(picture.heightMm, sheet.paper.heightMm);
        ExpectSheet(picture, geometry, plate, sheet.deletedTics);
    }
}

INSTANTIATE_TEST_SUITE_P(Plates, SheetTest, ::testing::ValuesIn(kSheetCases),
                         [](const auto& test) { return std::string(test.param.name); });

} // namespace

} // namespace vernacle::test
