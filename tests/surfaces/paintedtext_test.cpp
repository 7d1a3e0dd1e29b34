// Texts on real pixels: their corner, their size, and how a made font stretches and turns them.
#include <cmath>
#include <numbers>

#include "surfaces/surfacetest.h"

namespace vernacle::test {

namespace {

class PaintedTextTest : public SurfaceTest {
protected:
    // Where the ink of a text is that is written at (x, y) in a made font.
    static QRect InkOfMade(QSize size, int height, int width, int escapement, float x, float y,
                           const std::string& text = "HHHH",
                           const std::string& face = std::string("Arial\0", 6)) {
        return InkOf(Draw(size, [&](DrawingSurface& surface) {
            surface.SetCurrentX(x);
            surface.SetCurrentY(y);
            surface.BeginFont(height, width, escapement, face);
            surface.PrintText(text);
            surface.EndFont();
        }));
    }
};

constexpr QSize kWide{1600, 900};

TEST_F(PaintedTextTest, TheCornerIsTheTopLeftOfTheCell) {
    for (const QSize size : {kWide, kSquareUnits}) {
        const QRect ink = InkOf(Draw(size, [](DrawingSurface& surface) {
            surface.SetFontSize(60);
            WriteAt(surface, 3000, 4500, "H");
        }));
        const double em = 80; // pixels, of 60 points
        EXPECT_NEAR(ink.left(), size.width() / 4.0 + em * 168 / 2048, 1);
        EXPECT_NEAR(ink.top(),
                    size.height() / 2.0 + em * (arial::kAscent - arial::kCapital) / arial::kEm, 1);
        EXPECT_NEAR(ink.height(), em * arial::kCapital / arial::kEm, 1.01);
    }
}

TEST_F(PaintedTextTest, TheOrdinaryFontMeasuresInUnits) {
    for (const QSize size : {kWide, kSquareUnits}) {
        Draw(size, [size](DrawingSurface& surface) {
            const double unitsX = 12000.0 / size.width(); // of a pixel
            const double unitsY = 9000.0 / size.height();
            const std::pair<double, double> rows[] = {
                {72, 96}, {8, 11}, {10, 13}, {6, 8}, {0.1, 1}, {0, 1}, // points, whole pixels
            };
            for (const auto& [points, pixels] : rows) {
                surface.SetFontSize(points);
                EXPECT_NEAR(double{surface.TextWidth("0000")},
                            4 * arial::kAdvanceDigit / arial::kEm * pixels * unitsX, 0.01)
                    << points;
                EXPECT_NEAR(double{surface.TextHeight("0000")},
                            arial::kCell / arial::kEm * pixels * unitsY, 0.01)
                    << points;
            }
            EXPECT_EQ(surface.TextWidth(""), 0);
        });
    }
}

// The ink of more letters is wider by what they measure.
TEST_F(PaintedTextTest, WhatIsMeasuredIsWhatIsDrawn) {
    double measured = 0;
    const auto inkOf = [&measured](const std::string& text) {
        return InkOf(Draw(kWide, [&](DrawingSurface& surface) {
            surface.SetFontSize(30);
            WriteAt(surface, 1000, 4000, text);
            measured = double{surface.TextWidth("HHHHH")} - double{surface.TextWidth("H")};
        }));
    };
    const int drawn = inkOf("HHHHH").width() - inkOf("H").width();
    EXPECT_NEAR(drawn, measured * 1600 / 12000, 1.01);
}

TEST_F(PaintedTextTest, AMadeFontDoesNotMeasure) {
    Draw([](DrawingSurface& surface) {
        surface.SetFontSize(10);
        const float width = surface.TextWidth("text");
        const float height = surface.TextHeight("text");
        surface.BeginFont(200, 100, 300, "Arial");
        EXPECT_EQ(surface.TextWidth("text"), width);
        EXPECT_EQ(surface.TextHeight("text"), height);
        surface.EndFont();
        EXPECT_EQ(surface.TextWidth("text"), width);
    });
}

// Positive, the height is that of the cell; negative, that of the em.
TEST_F(PaintedTextTest, TheHeightIsOfTheCellOrOfTheCharacter) {
    const std::pair<int, double> rows[] = {
        {100, 100 * arial::kEm / arial::kCell},
        {33, 33 * arial::kEm / arial::kCell},
        {-100, 100},
        {-33, 33},
    };
    for (const QSize size : {kWide, kSquareUnits}) {
        for (const auto& [height, em] : rows) {
            const QRect ink = InkOfMade(size, height, 0, 0, 1000, 1000);
            EXPECT_NEAR(ink.height(), em * arial::kCapital / arial::kEm, 1.5) << height;
            EXPECT_NEAR(ink.top(),
                        size.height() / 9.0 + em * (arial::kAscent - arial::kCapital) / arial::kEm,
                        1.01)
                << height;
        }
    }
}

// Width 0 is the natural one; any other is that of an average letter, whatever the height.
TEST_F(PaintedTextTest, TheWidthIsOfTheAverageLetter) {
    struct Row {
        int height;
        int width;
        double advance; // of an H, pixels
    };
    const Row rows[] = {
        {-100, 0, arial::kAdvanceH / arial::kEm * 100},
        {100, 0, arial::kAdvanceH / arial::kCell * 100},
        {100, 40, arial::kAdvanceH / arial::kAverage * 40},
        {50, 40, arial::kAdvanceH / arial::kAverage * 40},
        {-50, 10, arial::kAdvanceH / arial::kAverage * 10},
        {100, -40, arial::kAdvanceH / arial::kAverage * 40}, // the sign of a width says nothing
    };
    for (const QSize size : {kWide, kSquareUnits}) {
        for (const Row& row : rows) {
            const int more = InkOfMade(size, row.height, row.width, 0, 500, 1000, "HHHHH").width();
            const int less = InkOfMade(size, row.height, row.width, 0, 500, 1000, "H").width();
            EXPECT_NEAR(more - less, 4 * row.advance, 1.5) << row.height << " x " << row.width;
        }
    }
}

QPointF Turned(QPointF point, double degrees) { // counter-clockwise, y downward
    const double angle = degrees * std::numbers::pi / 180;
    return {point.x() * std::cos(angle) + point.y() * std::sin(angle),
            point.y() * std::cos(angle) - point.x() * std::sin(angle)};
}

// A text turns as a whole about its corner: the frame of its ink is that of the turned frame of the
// level text.
TEST_F(PaintedTextTest, TheEscapementTurnsAboutTheCorner) {
    for (const QSize size : {kWide, kSquareUnits}) {
        const QPointF corner(size.width() / 2.0, size.height() / 2.0);
        for (const int width : {0, 40}) {
            const QRectF level =
                QRectF(InkOfMade(size, 60, width, 0, 6000, 4500)).translated(-corner);
            for (const int tenths : {900, -450, 450, 300, 1800, -900, 3600, 2705, 7}) {
                QPolygonF turned;
                for (const QPointF point :
                     {level.topLeft(), level.topRight(), level.bottomRight(), level.bottomLeft()}) {
                    turned << Turned(point, tenths / 10.0) + corner;
                }
                const QRectF wanted = turned.boundingRect();
                const QRectF ink = InkOfMade(size, 60, width, tenths, 6000, 4500);
                EXPECT_NEAR(ink.left(), wanted.left(), 2) << tenths;
                EXPECT_NEAR(ink.right(), wanted.right(), 2) << tenths;
                EXPECT_NEAR(ink.top(), wanted.top(), 2) << tenths;
                EXPECT_NEAR(ink.bottom(), wanted.bottom(), 2) << tenths;
            }
        }
    }
}

TEST_F(PaintedTextTest, AQuarterTurnReadsUpward) {
    const QRect ink = InkOfMade(kSquareUnits, 60, 0, 900, 6000, 4500);
    EXPECT_LE(ink.bottom(), 450);
    EXPECT_GE(ink.left(), 600);
    EXPECT_GT(ink.height(), 2 * ink.width());
}

TEST_F(PaintedTextTest, TheFaceEndsAtItsNul) {
    const QRect plain = InkOfMade(kWide, 60, 0, 0, 1000, 1000, "Plate", "Arial");
    EXPECT_EQ(InkOfMade(kWide, 60, 0, 0, 1000, 1000, "Plate", std::string("Arial\0", 6)), plain);
    EXPECT_EQ(InkOfMade(kWide, 60, 0, 0, 1000, 1000, "Plate", std::string("Arial\0tail", 10)),
              plain);
    EXPECT_FALSE(plain.isEmpty());
}

TEST_F(PaintedTextTest, AFaceThatIsNotThereIsReplaced) {
    EXPECT_FALSE(InkOfMade(kWide, 60, 0, 0, 1000, 1000, "Plate", "No Such Face").isEmpty());
    EXPECT_FALSE(InkOfMade(kWide, 60, 0, 0, 1000, 1000, "Plate", "").isEmpty());
}

TEST_F(PaintedTextTest, EndFontGivesTheOrdinaryFontBack) {
    const auto draw = [](bool between) {
        return Draw([between](DrawingSurface& surface) {
            surface.SetFontSize(20);
            if (between) {
                surface.BeginFont(100, 10, 450, "Liberation Mono");
                surface.EndFont();
            }
            WriteAt(surface, 2000, 2000, "Plate");
        });
    };
    EXPECT_TRUE(draw(true) == draw(false));
}

TEST_F(PaintedTextTest, TextIsUtf8) {
    const auto widthOf = [](const std::string& text) {
        float width = 0;
        Draw([&](DrawingSurface& surface) { width = surface.TextWidth(text); });
        return width;
    };
    EXPECT_EQ(widthOf("\xC2\xB5"), widthOf("\xC2\xB5\xC2\xB5") / 2); // micro
    EXPECT_LT(widthOf("\xC3\xA9"), widthOf("ee"));
}

TEST_F(PaintedTextTest, AnEmptyTextShowsNothing) {
    const QImage picture = Draw([](DrawingSurface& surface) {
        surface.PrintText("");
        surface.PrintText(" ");
        surface.BeginFont(60, 0, 0, "Arial");
        surface.PrintText("");
        surface.EndFont();
    });
    EXPECT_TRUE(InkOf(picture).isEmpty());
}

} // namespace

} // namespace vernacle::test
