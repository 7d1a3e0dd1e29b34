// Picture files on a surface, and what no plate has but a damaged design may ask for.
#include <limits>

#include "engine/base/runtimeerror.h"
#include "surfaces/surfacetest.h"

namespace vernacle::test {

namespace {

class PicturesTest : public SurfaceTest {};

bool IsReddish(QColor colour) { // a JPEG's red is not quite red
    return colour.red() > 200 && colour.green() < 60 && colour.blue() < 60;
}

bool IsBluish(QColor colour) {
    return colour.blue() > 200 && colour.green() < 60 && colour.red() < 60;
}

TEST_F(PicturesTest, EveryKindIsStretchedIntoItsBox) {
    for (const char* kind : {"BMP", "GIF", "ICO", "JPEG"}) {
        for (const char* name : {"picture.bmp", "PICTURE.GIF", "picture.Ico", "picture.jpg", "x"}) {
            SCOPED_TRACE(std::string(kind) + " as " + name);
            const std::string file = WriteFile(name, PictureBytes(kind));
            const QImage picture = Draw([&file](DrawingSurface& surface) {
                surface.PaintPicture(file, 2000, 1000, 6000, 5000);
            });
            EXPECT_EQ(InkOf(picture), QRect(200, 100, 600, 500));
            for (const int y : {105, 350, 595}) {
                EXPECT_TRUE(IsReddish(picture.pixelColor(205, y)));
                EXPECT_TRUE(IsReddish(picture.pixelColor(400, y)));
                EXPECT_TRUE(IsBluish(picture.pixelColor(600, y)));
                EXPECT_TRUE(IsBluish(picture.pixelColor(795, y)));
            }
        }
    }
}

TEST_F(PicturesTest, WhatDoesNotLoadIsARunTimeErrorAndTheSurfaceGoesOn) {
    const std::string broken[] = {
        Path("missing.bmp"),
        Path(""),
        "",
        WriteFile("empty.bmp", ""),
        WriteFile("text.gif", "this is no picture"),
        WriteFile("cut.bmp", PictureBytes("BMP").substr(0, 20)),
        WriteFile("cut.jpg", PictureBytes("JPEG").substr(0, 30)),
        WriteFile("cut.gif", PictureBytes("GIF").substr(0, 12)),
    };
    for (const std::string& file : broken) {
        const QImage picture = Draw([&file](DrawingSurface& surface) {
            EXPECT_THROW(surface.PaintPicture(file, 2000, 1000, 6000, 5000), RunTimeError) << file;
            surface.FilledBox(100, 100, 200, 200, kBlackInk);
        });
        EXPECT_EQ(InkOf(picture), QRect(10, 10, 10, 10)) << file;
    }
}

constexpr float kNoEnd = std::numeric_limits<float>::infinity();
constexpr float kNoNumber = std::numeric_limits<float>::quiet_NaN();
constexpr float kAbsurd[] = {1e12F,  -1e12F,  1e30F,     -1e30F, 3e38F, -3e38F,
                             kNoEnd, -kNoEnd, kNoNumber, 1e-40F, 2.2e9F};

void DrawEverythingAt(DrawingSurface& surface, float far, int width) {
    surface.SetLineWidth(width);
    surface.Line(0, 0, far, far, kBlackInk);
    surface.Line(far, far, 100, far, kBlackInk);
    surface.Line(100, far, far, 100, kBlackInk);
    surface.Line(6000, 4500, far, 4500, kBlackInk);
    surface.Line(far, far, far, far, kBlackInk);
    surface.Box(0, 0, far, far, kBlackInk);
    surface.Box(-far, -far, far, far, kBlackInk);
    surface.FilledBox(far, far, far, far, kBlackInk);
    surface.Circle(far, far, 100, kBlackInk);
    surface.Circle(6000, 4500, far, kBlackInk);
    surface.Dot(far, -far, kBlackInk);
    WriteAt(surface, far, far, "far away");
    surface.BeginFont(50, 20, 450, "Arial");
    surface.PrintText("far away");
    surface.EndFont();
}

void ExpectGoesOn(DrawingSurface& surface) {
    surface.FilledBox(0, 0, 12000, 9000, kWhiteInk);
    surface.FilledBox(100, 100, 200, 200, kBlackInk);
}

TEST_F(PicturesTest, AbsurdCoordinatesDoNoHarm) {
    for (const float far : kAbsurd) {
        for (const int width : {1, 20}) {
            const QImage picture = Draw([far, width](DrawingSurface& surface) {
                DrawEverythingAt(surface, far, width);
                ExpectGoesOn(surface);
            });
            EXPECT_EQ(InkOf(picture), QRect(10, 10, 10, 10)) << far;
        }
    }
}

TEST_F(PicturesTest, AbsurdCoordinatesDoNoHarmOnPaper) {
    for (const float far : kAbsurd) {
        const PrintOn print = OneSheet([far](PrinterSurface& printer) {
            DrawEverythingAt(printer, far, 3);
            printer.BeginFont(-50, 0, 450, "Arial");
            printer.TextOutA(std::numeric_limits<int>::max(), std::numeric_limits<int>::min(), "x");
            printer.EndFont();
        });
        EXPECT_TRUE(MakePdf(kSheets[0], "", "", print).ends_with("%%EOF\n")) << far;
        EXPECT_TRUE(MakeSvg(kSheets[0], "", print).ends_with("</svg>\n")) << far;
    }
}

TEST_F(PicturesTest, AbsurdPictureBoxesDoNoHarm) {
    const std::string file = WriteFile("picture.bmp", PictureBytes("BMP"));
    for (const float far : kAbsurd) {
        const QImage picture = Draw([far, &file](DrawingSurface& surface) {
            surface.PaintPicture(file, far, far, 100, 100);
            surface.PaintPicture(file, 0, 0, far, far);
            surface.PaintPicture(file, -4e6F, -4e6F, 8e6F, 8e6F); // at the edge of what is drawn
            ExpectGoesOn(surface);
        });
        EXPECT_EQ(InkOf(picture), QRect(10, 10, 10, 10)) << far;
    }
}

TEST_F(PicturesTest, SizesOfNothingShowNothing) {
    const std::string file = WriteFile("picture.bmp", PictureBytes("BMP"));
    const QImage picture = Draw([&file](DrawingSurface& surface) {
        surface.FilledBox(3000, 3000, 3000, 6000, kBlackInk);
        surface.PaintPicture(file, 2000, 1000, 0, 0);
        surface.BeginFont(0, 0, 0, "Arial");
        surface.PrintText("nothing");
        surface.EndFont();
    });
    EXPECT_TRUE(InkOf(picture).isEmpty());
}

TEST_F(PicturesTest, HugeFontsAndLinesDoNoHarm) {
    constexpr int kHuge = std::numeric_limits<int>::max();
    constexpr int kLeast = std::numeric_limits<int>::min();
    for (const int size : {100000, 1 << 28, kHuge, kLeast}) {
        const QImage picture = Draw([size](DrawingSurface& surface) {
            surface.BeginFont(size, size, size, "Arial");
            surface.PrintText("huge");
            surface.EndFont();
            EXPECT_THROW(surface.SetFontSize(1e30), RunTimeError);
            surface.SetFontSize(size / 2.0);
            EXPECT_GT(surface.TextHeight("huge"), 0);
            surface.PrintText("huge");
            surface.SetLineWidth(size);
            surface.Line(100, 100, 5000, 3000, kBlackInk);
            surface.Box(100, 100, 5000, 3000, kBlackInk);
            surface.Circle(100, 100, 50, kBlackInk);
            ExpectGoesOn(surface);
        });
        EXPECT_EQ(InkOf(picture), QRect(10, 10, 10, 10)) << size;
    }
}

} // namespace

} // namespace vernacle::test
