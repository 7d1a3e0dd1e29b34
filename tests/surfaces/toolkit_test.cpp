// Facts about the toolkit and its fonts that the surfaces rely on: the day one of them changes,
// this file says so.
#include <regex>

#include <QBuffer>
#include <QFile>
#include <QFontInfo>
#include <QImageReader>
#include <QPageLayout>
#include <QPdfWriter>
#include <QSvgGenerator>

#include "support/process.h"
#include "surfaces/surfacetest.h"

namespace vernacle::test {

namespace {

class ToolkitTest : public SurfaceTest {
protected:
    // A PDF of one sheet as big as that, full page, 600 dpi.
    static void Write(QIODevice& device, QSizeF sizeMm,
                      const std::function<void(QPainter& painter)>& draw) {
        QPdfWriter writer(&device);
        QPageLayout layout(QPageSize(sizeMm, QPageSize::Millimeter), QPageLayout::Portrait,
                           QMarginsF());
        layout.setMode(QPageLayout::FullPageMode);
        writer.setPageLayout(layout);
        writer.setResolution(600);
        QPainter painter(&writer);
        draw(painter);
        painter.end();
    }
};

TEST_F(ToolkitTest, ArialHasItsMeasures) {
    const Typeface face("Arial");
    EXPECT_NEAR(face.AverageWidth(), arial::kAverage, 0.5);
    EXPECT_NEAR(face.Ascent(), arial::kAscent, 0.5);
    EXPECT_NEAR(face.CellHeight(), arial::kCell, 0.5);
    EXPECT_NEAR(face.Advance(QStringLiteral("0")), arial::kAdvanceDigit, 0.01);
    EXPECT_NEAR(face.Advance(QStringLiteral("H")), arial::kAdvanceH, 0.01);
    EXPECT_EQ(face.Advance(QString()), 0);
}

TEST_F(ToolkitTest, ArialIsLiberationSans) {
    EXPECT_EQ(QFontInfo(Typeface("Arial").ReferenceFont()).family().toStdString(),
              "Liberation Sans");
}

// The toolkit's own average is of all letters of the font, which would make labels too narrow.
TEST_F(ToolkitTest, TheAverageWidthIsNotTheToolkits) {
    const QFontMetricsF metrics(Typeface("Arial").ReferenceFont());
    EXPECT_GT(metrics.averageCharWidth(), arial::kAverage + 200);
}

// At a size where nothing is rounded, and without kerning, a text is as wide as its letters.
TEST_F(ToolkitTest, ATextIsAsWideAsItsLetters) {
    const Typeface face("Arial");
    for (const char* text : {"AVAVAV", "10.5", "MILLIAMPERES", "To fi ffl"}) {
        double sum = 0;
        for (const char* letter = text; *letter; ++letter) {
            sum += face.Advance(QString(QLatin1Char(*letter)));
        }
        EXPECT_NEAR(face.Advance(QLatin1String(text)), sum, 0.01) << text;
    }
}

// The origin is the sheet's corner and a unit a 600th of an inch, though the page's box is of whole
// points.
TEST_F(ToolkitTest, AFullPagePdfIsExact) {
    for (const QSizeF size : {QSizeF(210, 297), QSizeF(215.9, 279.4), QSizeF(148.3, 201.7)}) {
        QFile file(QString::fromStdString(Path("page.pdf")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        Write(file, size, [](QPainter& painter) {
            painter.setPen(QPen(Qt::black, 6, Qt::SolidLine, Qt::FlatCap));
            painter.drawLine(QPointF(0, 0), QPointF(3000, 600));
            painter.drawLine(QPointF(1200.25, 4200.5), QPointF(600, 6000));
        });
        file.close();
        const SvgPicture page = ReadPdf(Path("page.pdf"));
        EXPECT_NEAR(page.widthMm, size.width(), 0.36);
        EXPECT_NEAR(page.heightMm, size.height(), 0.36);
        ASSERT_EQ(page.shapes.size(), 2U);
        const double mm = 25.4 / 600;
        const MmPoint wanted[2][2] = {{{0, 0}, {3000 * mm, 600 * mm}},
                                      {{1200.25 * mm, 4200.5 * mm}, {600 * mm, 6000 * mm}}};
        for (std::size_t line = 0; line < 2; ++line) {
            for (std::size_t end = 0; end < 2; ++end) {
                const MmPoint point = page.shapes[line].points.at(end);
                EXPECT_NEAR(point.x, wanted[line][end].x, 0.001);
                EXPECT_NEAR(point.y, wanted[line][end].y, 0.001);
            }
            EXPECT_NEAR(page.shapes[line].widthMm, 6 * mm, 1e-6);
            EXPECT_EQ(page.shapes[line].cap, "butt");
        }
    }
}

// This is why documents are made in memory and written by the checked writer.
TEST_F(ToolkitTest, AFullDiskIsNotNoticedByThePdfWriter) {
    QFile full(QStringLiteral("/dev/full"));
    ASSERT_TRUE(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    QPdfWriter writer(&full);
    QPainter painter;
    EXPECT_TRUE(painter.begin(&writer));
    painter.drawText(100, 100, QStringLiteral("text"));
    EXPECT_TRUE(painter.end());
}

// So one date makes equal input equal bytes.
TEST_F(ToolkitTest, APdfDiffersFromRunToRunOnlyInItsDate) {
    const PrintOn draw = OneSheet([](PrinterSurface& printer) {
        printer.Line(0, 0, 1000, 500, kBlackInk);
        printer.PrintText("text");
    });
    const std::string first = MakePdf(kSheets[0], "title", "2026-01-02 03:04:05", draw);
    const std::string other = MakePdf(kSheets[0], "title", "1999-12-31 23:59:58", draw);
    ASSERT_EQ(first.size(), other.size());
    const std::size_t date = first.find("/CreationDate (D:20260102030405");
    ASSERT_NE(date, std::string::npos);
    for (std::size_t i = 0; i < first.size(); ++i) {
        const bool inDate = i >= date && i < date + sizeof "/CreationDate (D:20260102030405";
        ASSERT_TRUE(inDate || first[i] == other[i]) << i;
    }
}

TEST_F(ToolkitTest, FontsAreEmbedded) {
    ReadSheet(kSheets[0], OneSheet([](PrinterSurface& printer) { printer.PrintText("text"); }));
    const ProcessResult fonts = RunProgram("pdffonts", {Path("sheet.pdf")});
    const std::regex embedded("LiberationSans +CID TrueType +Identity-H +yes ");
    EXPECT_TRUE(std::regex_search(fonts.out, embedded)) << fonts.out;
}

TEST_F(ToolkitTest, AnSvgOfHundredthsIsInMillimetres) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(2540);
    generator.setSize(QSize(21000, 29700));
    generator.setViewBox(QRect(0, 0, 21000, 29700));
    QPainter painter(&generator);
    painter.drawLine(0, 0, 1000, 2000);
    painter.end();
    const std::string svg = buffer.data().toStdString();
    EXPECT_NE(svg.find("width=\"210mm\" height=\"297mm\""), std::string::npos) << svg;
    EXPECT_NE(svg.find("viewBox=\"0 0 21000 29700\""), std::string::npos) << svg;
}

TEST_F(ToolkitTest, PicturesAreReadByTheirContent) {
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const char* format : {"BMP", "GIF", "ICO", "JPEG"}) {
        EXPECT_TRUE(formats.contains(QByteArray(format).toLower())) << format;
        for (const char* name : {"picture", "picture.PNG", "picture.bmp", "picture.Gif"}) {
            const std::string path = WriteFile(name, PictureBytes(format));
            QImageReader reader(QString::fromStdString(path));
            reader.setDecideFormatFromContent(true);
            const QImage picture = reader.read();
            EXPECT_EQ(picture.width(), 2 * picture.height()) << format << " as " << name;
        }
    }
}

} // namespace

} // namespace vernacle::test
