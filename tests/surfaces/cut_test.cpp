// What reaches out of sight is cut, and nothing that is seen tells of it: each drawing is compared
// with the toolkit's own of the whole of it.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <ostream>

#include <QPainterPath>

#include "engine/core/design.h"
#include "engine/render/drawing.h"
#include "engine/scale/scale.h"
#include "surfaces/documents.h"
#include "surfaces/surfacetest.h"

namespace vernacle::test {

namespace {

constexpr QSize kSize(1200, 900); // ten units to the pixel

class CutTest : public SurfaceTest {
protected:
    // Points in pixels.
    static void DrawPolyline(DrawingSurface& surface, const std::vector<QPointF>& points) {
        const auto units = [](double pixels) { return static_cast<float>(pixels * 10); };
        for (std::size_t i = 1; i < points.size(); ++i) {
            surface.Line(units(points[i - 1].x()), units(points[i - 1].y()), units(points[i].x()),
                         units(points[i].y()), kBlackInk);
        }
    }
};

struct LineCase {
    const char* name;
    std::vector<QPointF> points;
    int width;
    int tolerance; // 0 for what is neither far enough out to be cut nor very long
};

void PrintTo(const LineCase& line, std::ostream* out) {
    *out << line.name;
}

class CutLineTest : public CutTest, public ::testing::WithParamInterface<LineCase> {};

constexpr int kSmoothing = 10; // of 255, by which two ways of smoothing an edge may differ

const LineCase kLines[] = {
    {"a_little_out", {{100, 100}, {1300, 950}}, 3, 0},
    {"out_by_thousands", {{100, 100}, {3300, 2600}}, 3, 0},
    {"out_on_both_sides", {{-1200, -600}, {2400, 1200}}, 14, 0},
    {"long", {{100, 100}, {7300, 6150}}, 3, kSmoothing},
    {"far_out", {{100, 100}, {30000, 26000}}, 3, kSmoothing},
    {"far_out_on_both_sides", {{-60000, -31000}, {70000, 37000}}, 14, kSmoothing},
    {"as_far_as_paper_wide_rivers", {{600, 450}, {900000, 210000}}, 5, kSmoothing},
    {"upright", {{600, 300}, {600, 50000}}, 3, 0},
    {"level", {{-90000, 301}, {50000, 301}}, 5, 0},
    {"a_corner_in_sight", {{20000, 3000}, {500, 450}, {26000, -700}}, 60, 2},
    {"a_corner_just_out_of_sight", {{1000, 30000}, {1225, 450}, {900, -40000}}, 80, 2},
    {"out_and_back", {{100, 100}, {12000, 500}, {12000, 900}, {100, 700}}, 9, 2},
    {"two_parts_that_cross", {{100, 100}, {12000, 10000}, {-12000, 10000}, {1100, 100}}, 40, 2},
    {"beside_sight_with_a_wide_pen", {{-900, -5000}, {-900, 6000}}, 2000, 0},
    {"a_pen_wider_than_sight", {{-3000, -2000}, {-2500, 3000}}, 6600, kSmoothing},
    {"a_pen_as_wide_as_a_street", {{-24000, 100}, {-24100, 20000}}, 49000, 3},
    {"all_out", {{20000, 20000}, {30000, 20000}}, 3, 0},
};

TEST_P(CutLineTest, ShowsNothingOfIt) {
    const LineCase& line = GetParam();
    const QImage cut = Draw(kSize, [&](DrawingSurface& surface) {
        surface.SetLineWidth(line.width);
        DrawPolyline(surface, line.points);
    });
    const QImage whole = Painted(kSize, [&](QPainter& painter) {
        painter.setPen(QPen(Qt::black, line.width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
        const bool isCrisp = line.points.size() == 2 && (line.points[0].x() == line.points[1].x() ||
                                                         line.points[0].y() == line.points[1].y());
        painter.setRenderHint(QPainter::Antialiasing, !isCrisp);
        painter.drawPolyline(line.points.data(), static_cast<int>(line.points.size()));
    });
    EXPECT_LE(Difference(cut, whole), line.tolerance);
    EXPECT_EQ(InkOf(cut).isEmpty(), line.name == std::string("all_out"));
}

INSTANTIATE_TEST_SUITE_P(Lines, CutLineTest, ::testing::ValuesIn(kLines),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(CutTest, BoxesAreCutOutOfSight) {
    const QRectF boxes[] = {{100, 100, 2000, 5000},     {-5000, -3000, 5600, 3450},
                            {-90000, 300, 200000, 200}, {-2e6, -2e6, 4e6, 4e6},
                            {300, -70000, 0, 140000},   {50000, 50000, 10, 10}};
    for (const QRectF& box : boxes) {
        for (const int width : {1, 7, 300}) {
            const auto draw = [&](bool filled) {
                return Draw(kSize, [&](DrawingSurface& surface) {
                    const auto units = [](double pixels) {
                        return static_cast<float>(pixels * 10);
                    };
                    surface.SetLineWidth(width);
                    const auto call = filled ? &DrawingSurface::FilledBox : &DrawingSurface::Box;
                    (surface.*call)(units(box.left()), units(box.top()), units(box.right()),
                                    units(box.bottom()), kBlueInk);
                });
            };
            const QImage outline = Painted(kSize, [&](QPainter& painter) {
                painter.setRenderHint(QPainter::Antialiasing, false);
                painter.setPen(QPen(Qt::blue, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
                painter.drawRect(box);
            });
            const QImage filled =
                Painted(kSize, [&](QPainter& painter) { painter.fillRect(box, Qt::blue); });
            EXPECT_EQ(draw(false), outline) << box.left() << " " << width;
            EXPECT_EQ(draw(true), filled) << box.left();
        }
    }
}

// The toolkit's own large circles are bent curves; a true one is a polyline of many points.
TEST_F(CutTest, CirclesAreCutOutOfSight) {
    const auto draw = [](QPointF centre, double radius, int width) {
        return Draw(kSize, [=](DrawingSurface& surface) {
            surface.SetLineWidth(width);
            surface.Circle(static_cast<float>(centre.x() * 10), static_cast<float>(centre.y() * 10),
                           static_cast<float>(radius * 10), kBlackInk);
        });
    };
    const QImage ordinary = Painted(kSize, [](QPainter& painter) {
        painter.setPen(QPen(Qt::black, 3, Qt::SolidLine, Qt::FlatCap));
        painter.drawEllipse(QPointF(-1000, 450), 1500, 1500);
    });
    EXPECT_EQ(draw({-1000, 450}, 1500, 3), ordinary);
    for (const double radius : {20000., 100000., 3e6, -20000.}) { // seen from the left, at last
        const QPointF centre(600 - radius, 450);
        const QImage whole = Painted(kSize, [&](QPainter& painter) {
            QPolygonF points;
            for (int step = -4000; step <= 4000; ++step) {
                const double angle = step * 0.25 / radius;
                points << centre + QPointF(radius * std::cos(angle), radius * std::sin(angle));
            }
            painter.setPen(QPen(Qt::black, 5, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
            painter.drawPolyline(points);
        });
        EXPECT_LE(Difference(draw(centre, std::fabs(radius), 5), whole), 8) << radius;
        EXPECT_FALSE(InkOf(whole).isEmpty());
    }
    EXPECT_TRUE(InkOf(draw({600, 450}, 5000, 5)).isEmpty()); // all around what is seen
    EXPECT_TRUE(InkOf(draw({600, 450}, 5e8, 5)).isEmpty());
}

// Text of that many letters M, its middle in the middle of the picture.
QImage DrawLongText(QSize size, int letters, int escapement) {
    DeviceMap map; // a pixel is a unit
    map.originX = size.width() / 2.0;
    map.originY = size.height() / 2.0;
    const double pixelsPerLetter = 1706 / 2048.0 * 40; // its advance at 40 pixels to the em
    const double start = -letters / 2.0 * pixelsPerLetter;
    const double turn = escapement / 10.0 * 3.14159265358979 / 180;
    return Painted(size, [&](QPainter& painter) {
        PainterSurface surface(painter, map);
        surface.BeginFont(-40, 0, escapement, "Arial");
        WriteAt(surface, static_cast<float>(start * std::cos(turn)),
                static_cast<float>(-start * std::sin(turn)),
                std::string(static_cast<std::size_t>(letters), 'M'));
        surface.EndFont();
    });
}

// In a picture that is large enough to show all of it nothing is cut.
TEST_F(CutTest, TextsAreCutOutOfSight) {
    for (const int escapement : {0, 317, 1800}) {
        const QImage part = DrawLongText(QSize(600, 400), 900, escapement);
        const QImage whole =
            DrawLongText(QSize(14000, 400), 900, escapement).copy(6700, 0, 600, 400);
        EXPECT_FALSE(InkOf(part).isEmpty());
        EXPECT_LE(Difference(part, whole), 1) << escapement;
    }
}

TEST_F(CutTest, OfATextWithoutEndTheMiddleShowsWhereItIs) {
    // An even number of letters has a gap in the middle, whatever the number.
    const QImage few = DrawLongText(QSize(600, 400), 60, 0);
    EXPECT_LE(Difference(DrawLongText(QSize(600, 400), 19000, 0), few), 1);
}

enum class Sight { OfThePicture, OfAll };

// A design with tics of that length. A painter whose window is larger than its picture takes more
// for seen than it shows, and nothing is cut.
QImage DrawDesignWith(float ticMm, const char* rotation, Sight sight) {
    ResetDesign(Design);
    NormalizeDesign(Design);
    Design.MajorTicLength = ticMm;
    Design.MinorTicLength = ticMm / 2;
    Design.LabelSpacing = ticMm / 3;
    Design.LabelRotation = rotation;
    Design.BottomToTitle[1] = -10;
    ComputeTicDeflections(Design);
    ComputeTicLabels(Design);
    return Painted(QSize(800, 450), [&](QPainter& painter) {
        if (sight == Sight::OfAll) {
            const QRect all(-400000000, -400000000, 800000000, 800000000);
            painter.setWindow(all);
            painter.setViewport(all);
        }
        PainterSurface surface(painter, DeviceMap::OfScreen(800, 450));
        DrawPage(Design, surface, PreviewTraits(), {Design.FontSize, Design.LabelSpacing}, Drawing);
        surface.Flush();
    });
}

TEST_F(CutTest, ADesignThatReachesOutOfSightLooksAsIfItWereAllSeen) {
    SetVersionAndScreenScale(Design);
    SetOpeningValues(Design);
    for (const char* rotation : {"H", "B"}) {
        for (const float ticMm : {6.F, 25.F, 100.F, 500.F, 1000.F}) {
            EXPECT_EQ(DrawDesignWith(ticMm, rotation, Sight::OfThePicture),
                      DrawDesignWith(ticMm, rotation, Sight::OfAll))
                << ticMm << rotation;
        }
        EXPECT_LE(Difference(DrawDesignWith(20000, rotation, Sight::OfThePicture),
                             DrawDesignWith(20000, rotation, Sight::OfAll)),
                  kSmoothing);
    }
}

// Numbers of a document stay near its sheet, and so do those that a screen's raster works on.
TEST_F(CutTest, NothingIsPaintedFarAway) {
    const PrintOn print = OneSheet([](PrinterSurface& printer) {
        for (const float far : {1e5F, 1e7F, 1e10F, 1e30F}) {
            for (const int width : {1, 30, 1000000}) {
                printer.SetLineWidth(width);
                printer.Line(0, 0, far, far / 3, kBlackInk);
                printer.Line(far, far / 3, 5000, 5000, kBlackInk);
                printer.Dot(far, far, kBlackInk);
                printer.Box(-far, 100, far, far, kBlackInk);
                printer.FilledBox(-far, -far, far, far, kBlackInk);
                printer.Circle(far, 0, far, kBlackInk);
            }
        }
    });
    const std::string svg = MakeSvg(kSheets[0], "", print);
    int count = 0;
    for (const char* name : {" points=\"", " d=\"", " x=\"", " width=\"", " height=\"", " r=\""}) {
        for (auto at = svg.find(name); at != svg.npos; at = svg.find(name, at)) {
            at += std::string(name).size();
            const char* end = svg.data() + svg.find('"', at);
            for (const char* next = svg.data() + at; next < end;) {
                double number = 0;
                const char* behind = std::from_chars(next, end, number).ptr;
                ASSERT_LE(std::fabs(number), 60000) << std::string(next, end).substr(0, 100);
                count += behind == next ? 0 : 1;
                next = behind == next ? next + 1 : behind;
            }
        }
    }
    EXPECT_GT(count, 20);
}

TEST_F(CutTest, LettersOutOfSightAreNotPainted) {
    const PrintOn print = OneSheet([](PrinterSurface& printer) {
        WriteAt(printer, -50000, 5000, std::string(1U << 20U, 'M'));
        printer.SetCurrentY(-1e6);
        printer.PrintText("Ohm");
        WriteAt(printer, 1e6, 5000, "Ohm");
    });
    const std::string svg = MakeSvg(kSheets[0], "", print);
    EXPECT_LT(std::count(svg.begin(), svg.end(), 'M'), 20000);
    EXPECT_GT(std::count(svg.begin(), svg.end(), 'M'), 20);
    EXPECT_EQ(svg.find("Ohm"), svg.npos);
}

} // namespace

} // namespace vernacle::test
