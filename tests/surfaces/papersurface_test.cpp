// The printer's page: its units, its place on the sheet and its texts, read back from a PDF.
#include "surfaces/papersurface.h"

#include <QPicture>

#include "engine/base/runtimeerror.h"
#include "surfaces/surfacetest.h"

namespace vernacle::test {

namespace {

constexpr double kUnitMm = 1 / 56.578;
constexpr double kPixelMm = 25.4 / 600;
constexpr double kToleranceMm = 0.002;

class PaperSurfaceTest : public SurfaceTest {
protected:
    // What the print leaves on the sheet, as a PDF and as an SVG.
    SvgPicture Pdf(const Sheet& sheet, const PrintOn& print) const {
        return ReadSheet(sheet, OneSheet(print));
    }

    static SvgPicture Svg(const Sheet& sheet, const PrintOn& print) {
        return ReadSvg(MakeSvg(sheet, "", OneSheet(print)));
    }

    static MmPoint OnSheet(const Sheet& sheet, double x, double y) {
        return {sheet.widthMm / 2 + (x - 5750) * kUnitMm,
                sheet.heightMm / 2 + (y - 7600) * kUnitMm};
    }
};

void ExpectNear(MmPoint found, MmPoint wanted, double tolerance = kToleranceMm) {
    EXPECT_NEAR(found.x, wanted.x, tolerance);
    EXPECT_NEAR(found.y, wanted.y, tolerance);
}

TEST_F(PaperSurfaceTest, TheSheetsAreTrueToTheirNames) {
    ASSERT_EQ(std::size(kSheets), 2U);
    EXPECT_STREQ(kSheets[0].name, "A4");
    EXPECT_EQ(kSheets[0].widthMm, 210);
    EXPECT_EQ(kSheets[0].heightMm, 297);
    EXPECT_STREQ(kSheets[1].name, "Letter");
    EXPECT_EQ(kSheets[1].widthMm, 215.9);
    EXPECT_EQ(kSheets[1].heightMm, 279.4);
}

// 11500 x 15200 units of 1/56.578 mm in the middle of the sheet.
TEST_F(PaperSurfaceTest, TheLogicalAreaIsCentredOnTheSheet) {
    for (const Sheet& sheet : kSheets) {
        SCOPED_TRACE(sheet.name);
        const auto print = [](PrinterSurface& printer) {
            printer.Line(0, 0, 11500, 15200, kBlackInk);
            printer.Line(2000, 3000, 2000 + 5657.8F, 3000, kBlackInk);
        };
        for (const SvgPicture& page : {Pdf(sheet, print), Svg(sheet, print)}) {
            ASSERT_EQ(page.shapes.size(), 2U);
            ExpectNear(page.shapes[0].points.front(), OnSheet(sheet, 0, 0));
            ExpectNear(page.shapes[0].points.back(), OnSheet(sheet, 11500, 15200));
            ExpectNear(page.shapes[1].points.front(), OnSheet(sheet, 2000, 3000));
            EXPECT_NEAR(page.shapes[1].WidthOfBox(), 100, kToleranceMm);
        }
    }
}

TEST_F(PaperSurfaceTest, LinesCountPixelsOfThePrinter) {
    const auto print = [](PrinterSurface& printer) {
        for (const int pixels : {1, 3, 16}) {
            printer.SetLineWidth(pixels);
            printer.Line(1000, 1000, 3000, 2000, kBlueInk);
        }
    };
    for (const SvgPicture& page : {Pdf(kSheets[0], print), Svg(kSheets[0], print)}) {
        ASSERT_EQ(page.shapes.size(), 3U);
        EXPECT_NEAR(page.shapes[0].widthMm, 1 * kPixelMm, 1e-4);
        EXPECT_NEAR(page.shapes[1].widthMm, 3 * kPixelMm, 1e-4);
        EXPECT_NEAR(page.shapes[2].widthMm, 16 * kPixelMm, 1e-4);
        EXPECT_EQ(page.shapes[2].rgb, 0x0000FFU);
        EXPECT_EQ(page.shapes[2].cap, "butt");
    }
}

TEST_F(PaperSurfaceTest, CirclesAreRound) {
    const auto print = [](PrinterSurface& printer) {
        printer.Circle(5750, 7600, 565.78F, kBlackInk);
    };
    for (const SvgPicture& page : {Pdf(kSheets[1], print), Svg(kSheets[1], print)}) {
        ASSERT_EQ(page.shapes.size(), 1U);
        const Shape& ring = page.shapes[0];
        ExpectNear(ring.Centre(), {kSheets[1].widthMm / 2, kSheets[1].heightMm / 2});
        EXPECT_NEAR(ring.WidthOfBox(), 20, 0.005);
        EXPECT_NEAR(ring.HeightOfBox(), 20, 0.005);
    }
}

TEST_F(PaperSurfaceTest, APixelIsTwoPointFourTwips) {
    Pdf(kSheets[0], [](PrinterSurface& printer) {
        EXPECT_FLOAT_EQ(printer.TwipsPerPixelX(), 2.4F);
        EXPECT_FLOAT_EQ(printer.TwipsPerPixelY(), 2.4F);
    });
}

TEST_F(PaperSurfaceTest, TextsMeasureInPageUnits) {
    Pdf(kSheets[0], [](PrinterSurface& printer) {
        const std::pair<double, double> rows[] = {{6, 50}, {72, 600}, {8, 67}, {1.6, 13}};
        for (const auto& [points, pixels] : rows) { // whole pixels of the printer
            printer.SetFontSize(points);
            const double em = pixels * kPixelMm / kUnitMm;
            EXPECT_NEAR(double{printer.TextWidth("00")}, 2 * arial::kAdvanceDigit / arial::kEm * em,
                        0.01);
            EXPECT_NEAR(double{printer.TextHeight("00")}, arial::kCell / arial::kEm * em, 0.01);
        }
    });
}

TEST_F(PaperSurfaceTest, TextStandsBelowAndRightOfItsPosition) {
    for (const Sheet& sheet : kSheets) {
        const SvgPicture page = Pdf(sheet, [](PrinterSurface& printer) {
            printer.SetFontSize(72); // 600 pixels
            WriteAt(printer, 2000, 3000, "H");
        });
        ASSERT_EQ(page.glyphs.size(), 1U);
        const MmPoint corner = OnSheet(sheet, 2000, 3000);
        ExpectNear(page.glyphs[0],
                   {corner.x, corner.y + 600 * kPixelMm * arial::kAscent / arial::kEm}, 0.01);
    }
}

// Counted from the logical area's corner, not from the sheet's.
TEST_F(PaperSurfaceTest, TextOutIsPlacedInPixels) {
    for (const Sheet& sheet : kSheets) {
        const SvgPicture page = Pdf(sheet, [](PrinterSurface& printer) {
            printer.BeginFont(-600, 0, 0, "Arial");
            printer.TextOutA(0, 0, "H");
            printer.TextOutA(2500, 1675, "H");
            printer.EndFont();
            printer.BeginFont(-600, 0, 900, "Arial");
            printer.TextOutA(2500, 1675, "H");
            printer.EndFont();
        });
        ASSERT_EQ(page.glyphs.size(), 3U);
        const MmPoint corner = OnSheet(sheet, 0, 0);
        const MmPoint middle = {corner.x + 2500 * kPixelMm, corner.y + 1675 * kPixelMm};
        const double ascent = 600 * kPixelMm * arial::kAscent / arial::kEm;
        ExpectNear(page.glyphs[0], {corner.x, corner.y + ascent}, 0.01);
        ExpectNear(page.glyphs[1], {middle.x, middle.y + ascent}, 0.01);
        ExpectNear(page.glyphs[2], {middle.x + ascent, middle.y}, 0.01); // reads upward
    }
}

TEST_F(PaperSurfaceTest, TextOutDoesNotMoveThePosition) {
    Pdf(kSheets[0], [](PrinterSurface& printer) {
        printer.SetCurrentX(10);
        printer.SetCurrentY(20);
        printer.TextOutA(500, 600, "H");
        EXPECT_EQ(printer.GetCurrentX(), 10);
        EXPECT_EQ(printer.GetCurrentY(), 20);
    });
}

// The area moves as a whole, for one document, and never off the lower end of the sheet.
TEST_F(PaperSurfaceTest, TheAreaMovesDownByWhatIsWantedAndByTheRoomThereIs) {
    struct Row {
        float top;
        float bottom;
        double movedMm;
    };
    constexpr double kAreaTopMm = (297 - 15200 * kUnitMm) / 2;
    constexpr double kEdgeMm = 12 * 25.4 / 72;
    const Row rows[] = {
        {0, 15200, 0},
        {-500, 9000, 0},
        {-1000, 9000, kEdgeMm - kAreaTopMm + 1000 * kUnitMm},
        {-1000, 15200, kEdgeMm - kAreaTopMm + 1000 * kUnitMm},
        {-1000, 15700, 297 - kEdgeMm - kAreaTopMm - 15700 * kUnitMm},
        {-1000, 16700, 0},
        {0, 0, 0}, // and the next stands as usual
    };
    for (const Row& row : rows) {
        const auto print = [&row](PrinterSurface& printer) {
            printer.KeepOnSheet(-3000, 9000);
            printer.KeepOnSheet(row.top, row.bottom); // the last word counts
            printer.StartSheet();
            printer.Line(1000, 2000, 3000, 2000, kBlackInk);
            printer.EndDoc();
        };
        WriteFile("moved.pdf", MakePdf(kSheets[0], "", "", print));
        const SvgPicture page = ReadPdf(Path("moved.pdf"));
        ASSERT_EQ(page.shapes.size(), 1U);
        EXPECT_NEAR(page.shapes[0].Centre().y, kAreaTopMm + 2000 * kUnitMm + row.movedMm, 0.001);
    }
}

TEST_F(PaperSurfaceTest, ADeviceThatDoesNotBeginIsARunTimeError) {
    QImage none; // which nothing can be painted on
    PaperSurface paper(none, kPrinterDpi, kSheets[0]);
    EXPECT_THROW(paper.StartSheet(), RunTimeError);
    EXPECT_THROW(paper.EndDoc(), RunTimeError);
}

TEST_F(PaperSurfaceTest, ADocumentEndsOnce) {
    QPicture page;
    PaperSurface paper(page, kPrinterDpi, kSheets[0]);
    EXPECT_THROW(paper.EndDoc(), RunTimeError); // before it has begun
    paper.StartSheet();
    EXPECT_NO_THROW(paper.EndDoc());
    EXPECT_THROW(paper.EndDoc(), RunTimeError);
    EXPECT_NO_THROW(paper.StartSheet()); // and the next may begin
    EXPECT_NO_THROW(paper.EndDoc());
}

TEST_F(PaperSurfaceTest, ASurfaceMayGoBeforeItsDocumentIsEnded) {
    QPicture page;
    {
        PaperSurface paper(page, kPrinterDpi, kSheets[0]);
        paper.StartSheet();
        paper.Line(100, 100, 2000, 2000, kBlackInk);
    }
    EXPECT_FALSE(page.paintingActive());
    EXPECT_GT(page.size(), 0U); // the line that was held back is there
    EXPECT_FALSE(page.boundingRect().isEmpty());
}

} // namespace

} // namespace vernacle::test
