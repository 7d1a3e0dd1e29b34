// Lines, boxes, circles and dots on real pixels.
#include <cmath>
#include <numbers>

#include "surfaces/surfacetest.h"

namespace vernacle::test {

namespace {

class PainterSurfaceTest : public SurfaceTest {};

constexpr QSize kScreens[] = {{1600, 900}, {1200, 900},  {1024, 768}, {800, 600},
                              {600, 1000}, {3840, 2160}, {240, 180}};

TEST_F(PainterSurfaceTest, TheWholeAreaFillsThePictureAtAnySize) {
    for (const QSize size : kScreens) {
        SCOPED_TRACE(std::to_string(size.width()) + "x" + std::to_string(size.height()));
        const QImage part = Draw(size, [](DrawingSurface& surface) {
            surface.FilledBox(3000, 2250, 6000, 4500, kBlackInk);
        });
        EXPECT_EQ(InkOf(part),
                  QRect(size.width() / 4, size.height() / 4, size.width() / 4, size.height() / 4));
        const QImage whole = Draw(
            size, [](DrawingSurface& surface) { surface.FilledBox(0, 0, 12000, 9000, kBlackInk); });
        EXPECT_EQ(InkOf(whole), QRect(QPoint(), size));
    }
}

// Also where a unit is not as wide as it is high. Those of a large screen are magnified.
TEST_F(PainterSurfaceTest, ALineIsSoManyPixelsWide) {
    for (const QSize size : kScreens) {
        const int pixel = size.width() > 1920 ? size.width() / 1920 : 1;
        for (const int width : {1, 2, 3, 5, 14}) {
            const QImage upright = DrawLine(size, width, {6000, 1000, 6000, 8000});
            EXPECT_EQ(InkAcross(upright, size.height() / 2), width * pixel);
            const QImage level = DrawLine(size, width, {1000, 4500, 11000, 4500});
            EXPECT_EQ(InkDown(level, size.width() / 2), width * pixel);
        }
    }
}

TEST_F(PainterSurfaceTest, ASlantedLineIsAsWide) {
    const auto inkOf = [](int width) {
        return InkAcross(DrawLine(kSquareUnits, width, {3000, 1000, 9000, 7000}), 400);
    };
    EXPECT_NEAR(inkOf(1), 1.2, 0.25); // the toolkit's hairline
    EXPECT_NEAR(inkOf(3), 3 * std::numbers::sqrt2, 0.1);
    EXPECT_NEAR(inkOf(9), 9 * std::numbers::sqrt2, 0.1);
}

TEST_F(PainterSurfaceTest, AWidthBelowOneIsOne) {
    for (const int width : {0, -7}) {
        EXPECT_EQ(InkAcross(DrawLine(kSquareUnits, width, {6000, 1000, 6000, 8000}), 450), 1);
    }
}

TEST_F(PainterSurfaceTest, LinesEndFlat) {
    const QImage picture = DrawLine(kSquareUnits, 20, {2000, 3000, 7000, 3000});
    EXPECT_EQ(InkOf(picture), QRect(200, 290, 500, 20));
    EXPECT_EQ(InkAcross(picture, 291), 500); // at the edge as in the middle
    EXPECT_EQ(InkAcross(picture, 300), 500);
}

// A broad polyline must show no notch on the outside of its corners.
TEST_F(PainterSurfaceTest, LinesThatContinueEachOtherAreJoined) {
    constexpr int kWidth = 30;
    const QImage picture = Draw([](DrawingSurface& surface) {
        surface.SetLineWidth(kWidth);
        float x = 0;
        float y = 0;
        for (int chord = 0; chord <= 6; ++chord) {
            const double angle = chord * std::numbers::pi / 6;
            const auto nextX = static_cast<float>(6000 - 3000 * std::cos(angle));
            const auto nextY = static_cast<float>(6000 - 3000 * std::sin(angle));
            if (chord == 0) {
                surface.Line(nextX, nextY, nextX, nextY, kBlackInk);
            } else {
                surface.Line(x, y, nextX, nextY, kBlackInk);
            }
            x = nextX;
            y = nextY;
        }
    });
    for (int joint = 1; joint <= 5; ++joint) {
        const double angle = joint * std::numbers::pi / 6;
        for (const double out : {-0.4, 0.0, 0.2, 0.4}) {
            const double radius = 300 + out * kWidth;
            EXPECT_TRUE(IsDark(picture, static_cast<int>(600 - radius * std::cos(angle)),
                               static_cast<int>(600 - radius * std::sin(angle))))
                << "joint " << joint << ", " << out << " of the width outward";
        }
    }
    EXPECT_FALSE(IsDark(picture, 600 - 345, 600)); // and no round cap at the ends
    EXPECT_FALSE(IsDark(picture, 300, 605));
}

TEST_F(PainterSurfaceTest, LinesOfAnotherColourOrWidthAreNotJoined) {
    const QImage picture = Draw([](DrawingSurface& surface) {
        surface.SetLineWidth(20);
        surface.Line(2000, 2000, 5000, 2000, 0x0000FF);
        surface.Line(5000, 2000, 5000, 6000, kBlueInk);
        surface.SetLineWidth(6);
        surface.Line(5000, 6000, 9000, 6000, kBlueInk);
    });
    EXPECT_EQ(picture.pixelColor(300, 200), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(500, 400), QColor(Qt::blue));
    EXPECT_EQ(picture.pixelColor(800, 600), QColor(Qt::blue));
    EXPECT_NEAR(InkDown(picture, 300) * 2, 20, 0.1); // pure red is half as light as white
    EXPECT_NEAR(InkDown(picture, 800) * 2, 6, 0.1);
}

TEST_F(PainterSurfaceTest, WhatIsDrawnLaterCoversWhatWasDrawnBefore) {
    const QImage picture = Draw([](DrawingSurface& surface) {
        surface.SetLineWidth(10);
        surface.Line(1000, 3000, 8000, 3000, kBlackInk);
        surface.FilledBox(2000, 2000, 3000, 4000, kBlueInk);
        surface.Line(1000, 3000, 8000, 3000, kWhiteInk);
    });
    EXPECT_EQ(picture.pixelColor(600, 300), QColor(Qt::white));
    EXPECT_EQ(picture.pixelColor(250, 300), QColor(Qt::white));
    EXPECT_EQ(picture.pixelColor(250, 250), QColor(Qt::blue));
    EXPECT_EQ(InkAcross(picture, 300), 0); // none of the black shines through
}

TEST_F(PainterSurfaceTest, ADotIsAsWideAsALine) {
    using Call = void (*)(DrawingSurface&);
    const Call calls[] = {
        [](DrawingSurface& surface) { surface.Dot(5000, 3000, kBlackInk); },
        [](DrawingSurface& surface) { surface.Line(5000, 3000, 5000, 3000, kBlackInk); },
    };
    for (const Call call : calls) {
        for (const int width : {1, 4, 10}) {
            const QImage picture = Draw([call, width](DrawingSurface& surface) {
                surface.SetLineWidth(width);
                call(surface);
            });
            const QRect ink = InkOf(picture);
            EXPECT_NEAR(ink.width(), width, 1);
            EXPECT_NEAR(ink.height(), width, 1);
            EXPECT_NEAR(ink.center().x(), 500, 1);
            EXPECT_NEAR(ink.center().y(), 300, 1);
        }
    }
}

TEST_F(PainterSurfaceTest, ThePositionFollowsLinesAndDots) {
    Draw([](DrawingSurface& surface) {
        surface.Line(1, 2, 30, 40, kBlackInk);
        EXPECT_EQ(surface.GetCurrentX(), 30);
        EXPECT_EQ(surface.GetCurrentY(), 40);
        surface.Dot(500, 600, kBlackInk);
        EXPECT_EQ(surface.GetCurrentX(), 500);
        EXPECT_EQ(surface.GetCurrentY(), 600);
        surface.SetCurrentX(7);
        EXPECT_EQ(surface.GetCurrentX(), 7);
        EXPECT_EQ(surface.GetCurrentY(), 600);
        surface.SetCurrentY(8);
        EXPECT_EQ(surface.GetCurrentX(), 7);
        EXPECT_EQ(surface.GetCurrentY(), 8);
    });
}

TEST_F(PainterSurfaceTest, ABoxIsAnOutlineAndAFilledBoxIsNot) {
    const QImage outline = Draw([](DrawingSurface& surface) {
        surface.SetLineWidth(4);
        surface.Box(2000, 3000, 8000, 6000, kBlackInk);
    });
    EXPECT_EQ(InkOf(outline), QRect(QPoint(198, 298), QPoint(801, 601)));
    EXPECT_NEAR(InkAcross(outline, 450), 8, 0.01);
    EXPECT_NEAR(InkDown(outline, 500), 8, 0.01);
    EXPECT_TRUE(IsDark(outline, 199, 299)); // a full corner
    EXPECT_EQ(outline.pixelColor(500, 450), QColor(Qt::white));
    const QImage filled = Draw([](DrawingSurface& surface) {
        surface.SetLineWidth(4);
        surface.FilledBox(8000, 6000, 2000, 3000, 0x00FF00); // from any corner
    });
    EXPECT_EQ(InkOf(filled), QRect(200, 300, 600, 300));
    EXPECT_EQ(filled.pixelColor(500, 450), QColor(Qt::green));
}

TEST_F(PainterSurfaceTest, ACircleIsRoundWhateverTheUnits) {
    for (const QSize size : kScreens) {
        const QImage picture = Draw(
            size, [](DrawingSurface& surface) { surface.Circle(6000, 4500, 1200, kBlackInk); });
        const double radius = 1200.0 * size.width() / 12000;
        const QRect ink = InkOf(picture);
        EXPECT_NEAR(ink.width(), 2 * radius + 1, 1.01);
        EXPECT_NEAR(ink.height(), 2 * radius + 1, 1.01);
        EXPECT_NEAR(ink.center().x(), size.width() / 2.0, 1);
        EXPECT_NEAR(ink.center().y(), size.height() / 2.0, 1);
        EXPECT_EQ(picture.pixelColor(size.width() / 2, size.height() / 2), QColor(Qt::white));
    }
}

TEST_F(PainterSurfaceTest, ColoursHaveRedInTheirLowestByte) {
    const std::pair<Colour, QColor> rows[] = {
        {0x0000FF, QColor(255, 0, 0)},   {0x00FF00, QColor(0, 255, 0)},
        {0xFF0000, QColor(0, 0, 255)},   {0x123456, QColor(0x56, 0x34, 0x12)},
        {0x000000, QColor(0, 0, 0)},     {1, QColor(1, 0, 0)},
        {0x7F00FF00, QColor(0, 255, 0)}, // whatever stands above the three bytes
    };
    for (const auto& [colour, shown] : rows) {
        const QImage picture = Draw([ink = colour](DrawingSurface& surface) {
            surface.SetLineWidth(20);
            surface.Line(1000, 1000, 3000, 1000, ink);
            surface.FilledBox(4000, 500, 6000, 1500, ink);
            surface.Box(7000, 1000, 9000, 3000, ink);
            surface.Circle(2000, 5000, 1000, ink);
            surface.SetForeColor(ink);
            surface.BeginFont(300, 0, 0, "Arial");
            WriteAt(surface, 4000, 4000, "I");
            surface.EndFont();
        });
        EXPECT_EQ(picture.pixelColor(200, 100), shown);
        EXPECT_EQ(picture.pixelColor(500, 100), shown);
        EXPECT_EQ(picture.pixelColor(700, 200), shown);
        EXPECT_EQ(picture.pixelColor(100, 500), shown);
        EXPECT_TRUE(HasColour(picture.copy(400, 400, 300, 300), shown)) << "text";
    }
}

TEST_F(PainterSurfaceTest, ClearErasesEverything) {
    const QImage picture = Draw([](DrawingSurface& surface) {
        surface.FilledBox(0, 0, 12000, 9000, kBlueInk);
        surface.Line(1000, 1000, 9000, 8000, kBlackInk);
        surface.Clear();
    });
    EXPECT_TRUE(InkOf(picture).isEmpty());
}

} // namespace

} // namespace vernacle::test
