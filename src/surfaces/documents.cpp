#include "surfaces/documents.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include <QImage>
#include <QPageLayout>
#include <QSvgGenerator>

#include "engine/base/runtimeerror.h"

namespace vernacle {

namespace {

constexpr int kSvgPerInch = 2540; // hundredths of a millimetre

std::string BytesOf(const QBuffer& buffer) {
    return buffer.data().toStdString();
}

QPageSize PageSizeOf(const Sheet& sheet) {
    return QPageSize(QSizeF(sheet.widthMm, sheet.heightMm), QPageSize::Millimeter,
                     QLatin1String(sheet.name));
}

// The writer always puts the present time: "/CreationDate (D:YYYYMMDDhhmmss" and the time zone.
void SetCreationDate(std::string& pdf, const std::string& createdAt) {
    constexpr std::string_view kStart = "/CreationDate (D:";
    std::size_t at = pdf.find(kStart);
    if (at == pdf.npos) {
        throw RunTimeError("The PDF has no creation date");
    }
    at += kStart.size();
    for (const char c : createdAt) {
        if (c >= '0' && c <= '9') {
            pdf.at(at++) = c;
        }
    }
}

// Adds to a number that stands in the bytes, in as many digits; the reference table's have ten.
void RaiseNumber(std::string& pdf, std::size_t at, std::size_t digits, std::size_t by) {
    const std::string raised = std::to_string(std::stoul(pdf.substr(at, digits)) + by);
    pdf.replace(at, digits, std::string(digits - std::min(digits, raised.size()), '0') + raised);
}

std::size_t FindOrThrow(const std::string& pdf, const std::string& what, std::size_t from) {
    const std::size_t at = pdf.find(what, from);
    if (at == pdf.npos) {
        throw RunTimeError("The PDF has no " + what);
    }
    return at;
}

// A viewer scales a page to its paper unless the document's catalog asks it not to. The writer has
// no word for that: it is put in, and the places of all that stands behind it are counted anew.
void AskForTrueSize(std::string& pdf) {
    constexpr const char* kCatalog = "/Type /Catalog\n";
    constexpr const char* kWish = "/ViewerPreferences << /PrintScaling /None >>\n";
    constexpr std::size_t kRowLength = 20; // "nnnnnnnnnn ggggg n" and two characters of line end
    constexpr std::size_t kPlaceDigits = 10;
    const std::size_t wish = FindOrThrow(pdf, kCatalog, 0) + std::strlen(kCatalog);
    const std::size_t length = std::strlen(kWish);
    pdf.insert(wish, kWish);
    const std::size_t start = pdf.rfind("startxref\n");
    if (start == pdf.npos) {
        throw RunTimeError("The PDF has no reference table");
    }
    const std::size_t table = std::stoul(pdf.substr(start + std::strlen("startxref\n"))) + length;
    // "xref", then the first number and the count, then the rows.
    std::size_t row = FindOrThrow(pdf, "\n", FindOrThrow(pdf, "\n", table) + 1) + 1;
    for (; pdf.compare(row, std::strlen("trailer"), "trailer") != 0; row += kRowLength) {
        if (std::stoul(pdf.substr(row, kPlaceDigits)) >= wish) {
            RaiseNumber(pdf, row, kPlaceDigits, length);
        }
    }
    const std::size_t number = start + std::strlen("startxref\n");
    pdf.replace(number, FindOrThrow(pdf, "\n", number) - number, std::to_string(table));
}

} // namespace

PdfInMemory::PdfInMemory(const Sheet& sheet, const std::string& title) : writer(&buffer) {
    buffer.open(QIODevice::WriteOnly);
    QPageLayout layout(PageSizeOf(sheet), QPageLayout::Portrait, QMarginsF());
    layout.setMode(QPageLayout::FullPageMode);
    writer.setPageLayout(layout);
    writer.setResolution(static_cast<int>(kPrinterDpi));
    writer.setTitle(ShownText(title));
    writer.setCreator(QStringLiteral("Vernacle"));
}

std::string PdfInMemory::Bytes() const {
    std::string bytes = BytesOf(buffer);
    AskForTrueSize(bytes);
    return bytes;
}

std::string MakePdf(const Sheet& sheet, const std::string& title, const std::string& createdAt,
                    const PrintOn& print) {
    PdfInMemory pdf(sheet, title);
    {
        PaperSurface paper(pdf.writer, kPrinterDpi, sheet);
        print(paper);
    }
    std::string bytes = pdf.Bytes();
    if (!createdAt.empty()) {
        SetCreationDate(bytes, createdAt);
    }
    return bytes;
}

std::string MakeSvg(const Sheet& sheet, const std::string& title, const PrintOn& print) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        const double perMm = kSvgPerInch / kMmPerInch;
        const QSize size(static_cast<int>(std::lround(sheet.widthMm * perMm)),
                         static_cast<int>(std::lround(sheet.heightMm * perMm)));
        QSvgGenerator generator;
        generator.setOutputDevice(&buffer);
        generator.setResolution(kSvgPerInch);
        generator.setSize(size);
        generator.setViewBox(QRect(QPoint(), size));
        generator.setTitle(ShownText(title).toHtmlEscaped()); // it does not itself
        PaperSurface paper(generator, kSvgPerInch, sheet);
        print(paper);
    }
    return BytesOf(buffer);
}

std::string MakePng(int widthPixels, int heightPixels, const DrawOn& draw) {
    return MakePng(widthPixels, heightPixels, DeviceMap::OfScreen(widthPixels, heightPixels), draw);
}

std::string MakePng(int widthPixels, int heightPixels, const DeviceMap& map, const DrawOn& draw) {
    QImage image(widthPixels, heightPixels, QImage::Format_RGB32);
    if (image.isNull()) {
        throw RunTimeError("A picture of that size cannot be made");
    }
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        PainterSurface surface(painter, map);
        draw(surface);
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG")) {
        throw RunTimeError("The picture could not be made");
    }
    return BytesOf(buffer);
}

} // namespace vernacle
