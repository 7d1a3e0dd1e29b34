#include "surfaces/surfacetest.h"

#include <QBuffer>

namespace vernacle::test {

namespace {

// The toolkit reads GIF but does not write it: 4 x 2 pixels, a palette of red and blue.
constexpr unsigned char kGif[] = {
    'G', 'I', 'F', '8', '9', 'a', 4, 0, 2, 0, 0x80, 0, 0,    0xFF, 0x00, 0x00, 0x00, 0x00, 0xFF,
    ',', 0,   0,   0,   0,   4,   0, 2, 0, 0, 2,    4, 0x04, 0x12, 0x86, 0x05, 0,    ';',
};

} // namespace

QImage SurfaceTest::Draw(QSize size, const Drawing& draw) {
    return Painted(size, [&](QPainter& painter) {
        PainterSurface surface(painter, DeviceMap::OfScreen(size.width(), size.height()));
        draw(surface);
        surface.Flush();
    });
}

QImage SurfaceTest::DrawLine(QSize size, int width, QLineF line) {
    return Draw(size, [&](DrawingSurface& surface) {
        surface.SetLineWidth(width);
        surface.Line(static_cast<float>(line.x1()), static_cast<float>(line.y1()),
                     static_cast<float>(line.x2()), static_cast<float>(line.y2()), kBlackInk);
    });
}

SvgPicture SurfaceTest::ReadSheet(const Sheet& sheet, const PrintOn& print) const {
    return ReadPdf(WriteFile("sheet.pdf", MakePdf(sheet, "", "", print)));
}

QImage Painted(QSize size, const std::function<void(QPainter& painter)>& paint) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter);
    return picture;
}

void WriteAt(DrawingSurface& surface, float x, float y, const std::string& text) {
    surface.SetCurrentX(x);
    surface.SetCurrentY(y);
    surface.PrintText(text);
}

PrintOn OneSheet(const PrintOn& print) {
    return [print](PrinterSurface& printer) {
        printer.StartSheet();
        print(printer);
        printer.EndDoc();
    };
}

std::string PictureBytes(const std::string& format) {
    if (format == "GIF") {
        return {std::begin(kGif), std::end(kGif)};
    }
    const int scale = format == "JPEG" ? 8 : 1; // whose blocks are 8 pixels wide
    QImage picture(4 * scale, 2 * scale, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            picture.setPixelColor(x, y, x < picture.width() / 2 ? Qt::red : Qt::blue);
        }
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(picture.save(&buffer, format.c_str())) << format;
    return buffer.data().toStdString();
}

} // namespace vernacle::test
