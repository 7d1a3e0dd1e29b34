#include "surfaces/documents.h"

#include <cmath>

#include <QImage>
#include <QPageLayout>
#include <QSvgGenerator>

#include "core/runtimeerror.h"

namespace vernacle {

namespace {

constexpr double kMmPerInch = 25.4;
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
    QImage image(widthPixels, heightPixels, QImage::Format_RGB32);
    if (image.isNull()) {
        throw RunTimeError("A picture of that size cannot be made");
    }
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        PainterSurface surface(painter, DeviceMap::OfScreen(widthPixels, heightPixels));
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
