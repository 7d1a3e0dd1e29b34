#include "surfaces/surfacetest.h"

#include <QBuffer>
#include <QColor>

namespace vernacle::test {

namespace {

constexpr int kNotWhite = 250; // a lightness below it is ink
constexpr int kDark = 96;

// The toolkit reads GIF but does not write it: 4 x 2 pixels, a palette of red and blue.
constexpr unsigned char kGif[] = {
    'G', 'I', 'F', '8', '9', 'a', 4, 0, 2, 0, 0x80, 0, 0,    0xFF, 0x00, 0x00, 0x00, 0x00, 0xFF,
    ',', 0,   0,   0,   0,   4,   0, 2, 0, 0, 2,    4, 0x04, 0x12, 0x86, 0x05, 0,    ';',
};

int LightnessAt(const QImage& picture, int x, int y) {
    return picture.pixelColor(x, y).lightness();
}

} // namespace

QImage SurfaceTest::Draw(QSize size, const Drawing& draw) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    PainterSurface surface(painter, DeviceMap::OfScreen(size.width(), size.height()));
    draw(surface);
    surface.Flush();
    return picture;
}

QRect InkOf(const QImage& picture) {
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (LightnessAt(picture, x, y) < kNotWhite) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

double InkAcross(const QImage& picture, int row) {
    double sum = 0;
    for (int x = 0; x < picture.width(); ++x) {
        sum += 1 - LightnessAt(picture, x, row) / 255.0;
    }
    return sum;
}

double InkDown(const QImage& picture, int column) {
    double sum = 0;
    for (int y = 0; y < picture.height(); ++y) {
        sum += 1 - LightnessAt(picture, column, y) / 255.0;
    }
    return sum;
}

bool IsDark(const QImage& picture, int x, int y) {
    return LightnessAt(picture, x, y) < kDark;
}

bool HasColour(const QImage& picture, QColor colour) {
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == colour) {
                return true;
            }
        }
    }
    return false;
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
