// Documents made in memory: their frame, their date, and the plate and the test square on them.
#include "surfaces/documents.h"

#include <limits>

#include <QXmlStreamReader>

#include "engine/base/runtimeerror.h"
#include "engine/core/design.h"
#include "engine/designfile/readwrite.h"
#include "engine/output/calibrate.h"
#include "engine/output/print.h"
#include "engine/scale/scale.h"
#include "support/process.h"
#include "support/sourcetree.h"
#include "surfaces/surfacetest.h"

namespace vernacle::test {

namespace {

constexpr const char* kAt = "2026-01-02 03:04:05";

class DocumentsTest : public SurfaceTest {
protected:
    static void ReadExample(const std::string& name) {
        SetOpeningValues(Design);
        Design.CalibrationX = Design.CalibrationY = 1;
        Design.DesignFileName = name;
        ReadDesign(Design, SourcePath("examples/" + name));
        NormalizeDesign(Design);
        ComputeTicDeflections(Design);
        ComputeTicLabels(Design);
    }
};

void PrintPlate(PrinterSurface& printer) {
    EXPECT_TRUE(PrintPlate(Design, printer));
}

void PrintSquare(PrinterSurface& printer) {
    EXPECT_TRUE(PrintTestSquare(Design, printer));
}

const PrintOn kPrintNothing = OneSheet([](PrinterSurface&) {});

bool IsWellFormed(const std::string& xml) {
    QXmlStreamReader reader(QByteArray::fromStdString(xml));
    while (!reader.atEnd()) {
        reader.readNext();
    }
    return !reader.hasError();
}

void FailToPrint(PrinterSurface& printer) {
    printer.StartSheet();
    throw RunTimeError("out of paper");
}

TEST_F(DocumentsTest, APdfIsOneSheetWithATitle) {
    const std::pair<const Sheet&, const char*> rows[] = {
        {kSheets[0], "(A4)"},
        {kSheets[1], "(letter)"},
    };
    for (const auto& [sheet, name] : rows) {
        WriteFile("sheet.pdf", MakePdf(sheet,
                                       "C:/plates/\xC2\xB5"
                                       "A.VRN",
                                       kAt, kPrintNothing));
        const std::string about = RunProgram("pdfinfo", {"-rawdates", Path("sheet.pdf")}).out;
        EXPECT_NE(about.find(name), std::string::npos) << about;
        EXPECT_NE(about.find("C:/plates/\xC2\xB5"
                             "A.VRN"),
                  std::string::npos)
            << about;
        EXPECT_NE(about.find("Creator:         Vernacle"), std::string::npos) << about;
        EXPECT_NE(about.find("D:20260102030405"), std::string::npos) << about;
        EXPECT_NE(about.find("Pages:           1"), std::string::npos) << about;
    }
}

// A viewer that fits pages to its paper makes a wrong plate of a true one.
TEST_F(DocumentsTest, APdfAsksToBePrintedAtItsOwnSize) {
    ReadExample("PERCENT.VRN");
    for (const Sheet& sheet : kSheets) {
        WriteFile("plate.pdf", MakePdf(sheet, "/Type /Catalog\n startxref\n", kAt, PrintPlate));
        const ProcessResult check = RunProgram("qpdf", {"--check", Path("plate.pdf")});
        EXPECT_EQ(check.status, 0) << check.err;
        EXPECT_EQ(check.err, "") << "a reference table that is not true is mended with a warning";
        const std::string json =
            RunProgram("qpdf", {"--json", "--json-key=qpdf", Path("plate.pdf")}).out;
        const std::size_t catalog = json.find("\"/Type\": \"/Catalog\"");
        const std::size_t wish = json.find("\"/ViewerPreferences\"");
        ASSERT_NE(catalog, std::string::npos);
        ASSERT_NE(wish, std::string::npos);
        EXPECT_NE(json.find("\"/PrintScaling\": \"/None\"", wish), std::string::npos);
        EXPECT_LT(catalog < wish ? wish - catalog : catalog - wish, 200U) << "in the catalog";
    }
}

constexpr double kWhiteMm = 12 * 25.4 / 72; // what printers leave at each edge

// The strokes of the trim marks and of the ruler, and nothing else, are blue.
std::vector<Shape> BlueStrokes(const SvgPicture& page) {
    std::vector<Shape> strokes;
    for (const Shape& shape : page.shapes) {
        if (shape.stroked && shape.rgb == 0x0000FF) {
            strokes.push_back(shape);
        }
    }
    return strokes;
}

double TopOf(const std::vector<Shape>& shapes) {
    double top = std::numeric_limits<double>::max();
    for (const Shape& shape : shapes) {
        for (const MmPoint& point : shape.points) {
            top = std::min(top, point.y);
        }
    }
    return top;
}

struct HighRow {
    double heightMm;
    bool movesOnA4;
    bool movesOnLetter;
};

constexpr HighRow kHighRows[] = {
    {20, false, false}, {133, false, false}, {134, false, true}, {140, false, true},
    {150, false, true}, {151, true, true},   {165, true, true},  {180, true, true},
};

TEST_F(DocumentsTest, APlateOfAnyHeightKeepsItsMarksRulerAndFooterOnTheSheet) {
    ReadExample("VOLTS-0-15.VRN");
    Design.PlateWidth = 180;
    for (const HighRow& row : kHighRows) {
        for (const Sheet& sheet : kSheets) {
            SCOPED_TRACE(std::to_string(row.heightMm) + " on " + sheet.name);
            Design.PlateHeight = static_cast<float>(row.heightMm);
            const std::vector<Shape> strokes = BlueStrokes(ReadSheet(sheet, PrintPlate));
            EXPECT_EQ(strokes.size(), 8U + 181 + 19 + 1);
            for (const Shape& stroke : strokes) {
                for (const MmPoint& point : stroke.points) {
                    EXPECT_GE(point.y, kWhiteMm - 0.001);
                    EXPECT_LE(point.y, sheet.heightMm - kWhiteMm);
                    EXPECT_GE(point.x, kWhiteMm);
                    EXPECT_LE(point.x, sheet.widthMm - kWhiteMm);
                }
            }
            const double usual =
                sheet.heightMm / 2 - 3900 / 56.578 - row.heightMm / 2; // to the marks' ends
            const bool moves = sheet.widthMm == 210 ? row.movesOnA4 : row.movesOnLetter;
            EXPECT_NEAR(TopOf(strokes), moves ? kWhiteMm : usual, 0.001);
            for (const Word& word : ReadPdfWords(Path("sheet.pdf"))) {
                EXPECT_LE(word.bottomRight.y, sheet.heightMm - kWhiteMm) << word.text;
            }
        }
    }
}

// On one that lies across, where the plate's own middle stands in the sheet's, it need not move.
TEST_F(DocumentsTest, AHighPlateStaysInTheMiddleOfALandscapeSheet) {
    ReadExample("VOLTS-0-15.VRN");
    Design.PlateHeight = 180;
    for (const Sheet& sheet : {Sheet{"", 297, 210}, Sheet{"", 279.4, 215.9}}) {
        const double top = TopOf(BlueStrokes(ReadSheet(sheet, PrintPlate)));
        EXPECT_NEAR(top, sheet.heightMm / 2 - 90 - 300 / 56.578, 0.001);
    }
}

// Its outline is as high as the plate is wide.
TEST_F(DocumentsTest, AWideCircularPlateKeepsItsOutlineOnTheSheet) {
    ReadExample("DEGREES-0-360.VRN");
    Design.PlateOutlineCircular = 1;
    Design.PlateWidth = 180;
    Design.PlateHeight = 60;
    Design.DrawArcs = "N";
    std::vector<Shape> shapes = ReadSheet(kSheets[1], PrintPlate).shapes;
    std::erase_if(shapes, [](const Shape& shape) { return shape.points.size() <= 50; });
    // The corners of its chords miss the uppermost point.
    EXPECT_NEAR(TopOf(shapes), kWhiteMm, 0.06);
}

TEST_F(DocumentsTest, ATestSquareOfLargeFactorsStaysOnTheSheet) {
    Design.CalibrationX = Design.CalibrationY = 1.9F;
    const SvgPicture page = ReadSheet(kSheets[1], PrintSquare);
    ASSERT_EQ(page.shapes.size(), 1U);
    EXPECT_NEAR(page.shapes[0].HeightOfBox(), 190, 0.02);
    EXPECT_NEAR(page.shapes[0].Centre().y, kWhiteMm + 95, 0.02);
}

TEST_F(DocumentsTest, EqualInputGivesEqualBytes) {
    ReadExample("VOLTS-0-15.VRN");
    const std::string pdf = MakePdf(kSheets[0], "title", kAt, PrintPlate);
    EXPECT_TRUE(MakePdf(kSheets[0], "title", kAt, PrintPlate) == pdf);
    const std::string svg = MakeSvg(kSheets[0], "title", PrintPlate);
    EXPECT_TRUE(MakeSvg(kSheets[0], "title", PrintPlate) == svg);
    EXPECT_GT(pdf.size(), 5000U);
    EXPECT_GT(svg.size(), 5000U);
    EXPECT_TRUE(said.empty());
}

TEST_F(DocumentsTest, WithoutADateAPdfHasThePresentOne) {
    const std::string pdf = MakePdf(kSheets[0], "", "", kPrintNothing);
    const std::size_t date = pdf.find("/CreationDate (D:20");
    ASSERT_NE(date, std::string::npos);
    EXPECT_EQ(pdf.find("/CreationDate (D:20260102030405"), std::string::npos);
}

TEST_F(DocumentsTest, AnSvgIsASheetInMillimetres) {
    const std::pair<const Sheet&, const char*> rows[] = {
        {kSheets[0], "width=\"210mm\" height=\"297mm\""},
        {kSheets[1], "width=\"215.9mm\" height=\"279.4mm\""},
    };
    for (const auto& [sheet, size] : rows) {
        const std::string svg = MakeSvg(sheet, "a < b & c", kPrintNothing);
        EXPECT_NE(svg.find(size), std::string::npos) << svg.substr(0, 300);
        EXPECT_TRUE(IsWellFormed(svg)) << svg.substr(0, 400);
        EXPECT_EQ(ReadSvg(svg).shapes.size(), 0U);
    }
}

TEST_F(DocumentsTest, ControlCharactersDoNotSpoilAnSvg) {
    const PrintOn print =
        OneSheet([](PrinterSurface& printer) { printer.PrintText("1\x01\x1B 2"); });
    const std::string svg = MakeSvg(kSheets[0], "a\x02 b", print);
    EXPECT_TRUE(IsWellFormed(svg));
    EXPECT_NE(svg.find("<title>a b</title>"), std::string::npos);
    EXPECT_NE(svg.find(">1 2</text>"), std::string::npos);
}

TEST_F(DocumentsTest, APngHasTheSizeThatIsAskedFor) {
    for (const QSize size : {QSize(16, 16), QSize(1600, 900), QSize(3000, 17)}) {
        const std::string png = MakePng(size.width(), size.height(), [](DrawingSurface& surface) {
            surface.FilledBox(0, 0, 6000, 9000, kBlueInk);
        });
        const QImage picture = QImage::fromData(QByteArray::fromStdString(png), "PNG");
        EXPECT_EQ(picture.size(), size);
        EXPECT_EQ(InkOf(picture), QRect(0, 0, size.width() / 2, size.height()));
    }
}

TEST_F(DocumentsTest, APngThatCannotBeIsARunTimeError) {
    const auto draw = [](DrawingSurface&) { ADD_FAILURE() << "nothing to draw on"; };
    EXPECT_THROW(MakePng(0, 0, draw), RunTimeError);
    EXPECT_THROW(MakePng(-5, 100, draw), RunTimeError);
    EXPECT_THROW(MakePng(2000000000, 2000000000, draw), RunTimeError);
}

TEST_F(DocumentsTest, AFailureOfThePrintComesThrough) {
    EXPECT_THROW(MakePdf(kSheets[0], "", "", FailToPrint), RunTimeError);
    EXPECT_THROW(MakeSvg(kSheets[0], "", FailToPrint), RunTimeError);
    EXPECT_THROW(MakePng(100, 100, [](DrawingSurface&) { throw RunTimeError("no"); }),
                 RunTimeError);
}

struct Factors {
    const char* name;
    float x, y;               // as they stand
    double widthMm, heightMm; // of the square
};

// The square by which a user measures the printer.
TEST_F(DocumentsTest, TheTestSquareIsTrueToSize) {
    const Factors rows[] = {
        {"a true printer", 1, 1, 100, 100},
        {"one that stretches down", 1.1F, 0.9F, 110, 90},
        {"one that was never measured", 0, 0, 100, 100},
        {"the utmost factors", 0.5F, 1.25F, 50, 125},
    };
    for (const Factors& row : rows) {
        for (const Sheet& sheet : kSheets) {
            SCOPED_TRACE(std::string(row.name) + " on " + sheet.name);
            Design.CalibrationX = row.x;
            Design.CalibrationY = row.y;
            for (const SvgPicture& page :
                 {ReadSheet(sheet, PrintSquare), ReadSvg(MakeSvg(sheet, "", PrintSquare))}) {
                ASSERT_EQ(page.shapes.size(), 1U);
                const Shape& square = page.shapes[0];
                EXPECT_TRUE(square.stroked);
                EXPECT_FALSE(square.curved);
                EXPECT_EQ(square.rgb, 0U);
                EXPECT_NEAR(square.widthMm, 25.4 / 600, 1e-4);
                EXPECT_NEAR(square.WidthOfBox(), row.widthMm, 0.02);
                EXPECT_NEAR(square.HeightOfBox(), row.heightMm, 0.02);
                EXPECT_NEAR(square.Centre().x, sheet.widthMm / 2 + (6000 - 5750) / 56.578, 0.02);
                EXPECT_NEAR(square.Centre().y, sheet.heightMm / 2 + (4000 - 7600) / 56.578, 0.02);
            }
        }
    }
    EXPECT_TRUE(said.empty());
}

// Measuring the square and printing again must bring it to 100 mm.
TEST_F(DocumentsTest, AMeasuredPrinterPrintsTheSquareInItsSize) {
    constexpr double kStretch = 0.96; // of a printer that prints everything too small
    Design.CalibrationX = 1;
    Recalibrate(Design.CalibrationX, 100 * kStretch);
    Design.CalibrationY = 1;
    const SvgPicture page = ReadSheet(kSheets[0], PrintSquare);
    ASSERT_EQ(page.shapes.size(), 1U);
    EXPECT_NEAR(page.shapes[0].WidthOfBox() * kStretch, 100, 0.02);
    EXPECT_NEAR(page.shapes[0].HeightOfBox(), 100, 0.02);
}

// A round plate has its outline, of 100 chords that leave a tiny gap, and no circle else.
TEST_F(DocumentsTest, ACircularPlateHasItsOutline) {
    ReadExample("DEGREES-0-360.VRN");
    Design.PlateOutlineCircular = 1;
    Design.DrawArcs = "N";
    std::vector<Shape> outlines;
    for (const Shape& shape : ReadSheet(kSheets[0], PrintPlate).shapes) {
        if (shape.stroked && !shape.curved && shape.points.size() > 2) {
            outlines.push_back(shape);
        }
    }
    ASSERT_EQ(outlines.size(), 1U);
    const double width = double{Design.PlateWidth};
    EXPECT_NEAR(outlines[0].WidthOfBox(), width, 0.05);
    EXPECT_NEAR(outlines[0].HeightOfBox(), width, 0.1);
    const double gap = outlines[0].points.back().y - outlines[0].points.front().y;
    EXPECT_NEAR(gap, -width / 2 * 0.0031853, 0.02); // of 6.28 for a whole turn
}

} // namespace

} // namespace vernacle::test
