#include "support/pixels.h"

#include <algorithm>
#include <cstdlib>

namespace vernacle::test {

namespace {

constexpr int kDark = 96;
constexpr int kBlack = 100; // lightness
constexpr int kGrey = 180;

int Lightness(QRgb pixel) {
    const int lightest = std::max(std::max(qRed(pixel), qGreen(pixel)), qBlue(pixel));
    const int darkest = std::min(std::min(qRed(pixel), qGreen(pixel)), qBlue(pixel));
    return (lightest + darkest) / 2;
}

// Of a picture of 32 bits a pixel.
const QRgb* Row(const QImage& picture, int y) {
    return reinterpret_cast<const QRgb*>(picture.constScanLine(y));
}

QImage Plain(const QImage& picture) {
    return picture.convertToFormat(QImage::Format_RGB32);
}

bool IsGreyNear(const QImage& plain, int x, int y, int reach) {
    for (int up = -reach; up <= reach; ++up) {
        const QRgb* middle = Row(plain, y + up) + x;
        if (std::any_of(middle - reach, middle + reach + 1,
                        [](QRgb pixel) { return Lightness(pixel) < kGrey; })) {
            return true;
        }
    }
    return false;
}

} // namespace

QRect InkOf(const QImage& picture, int lightness) {
    const QImage plain = Plain(picture);
    int left = plain.width();
    int right = -1;
    int top = -1;
    int bottom = -1;
    for (int y = 0; y < plain.height(); ++y) {
        const QRgb* row = Row(plain, y);
        for (int x = 0; x < plain.width(); ++x) {
            if (Lightness(row[x]) < lightness) {
                left = std::min(left, x);
                right = std::max(right, x);
                top = top < 0 ? y : top;
                bottom = y;
            }
        }
    }
    return right < 0 ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom));
}

double InkAcross(const QImage& picture, int row) {
    double sum = 0;
    for (int x = 0; x < picture.width(); ++x) {
        sum += 1 - Lightness(picture.pixel(x, row)) / 255.0;
    }
    return sum;
}

double InkDown(const QImage& picture, int column) {
    double sum = 0;
    for (int y = 0; y < picture.height(); ++y) {
        sum += 1 - Lightness(picture.pixel(column, y)) / 255.0;
    }
    return sum;
}

int CountPixels(const QImage& picture, int darkest, int lightest) {
    const QImage plain = Plain(picture);
    std::ptrdiff_t count = 0;
    for (int y = 0; y < plain.height(); ++y) {
        const QRgb* row = Row(plain, y);
        count += std::count_if(row, row + plain.width(), [&](QRgb pixel) {
            const int lightness = Lightness(pixel);
            return lightness >= darkest && lightness <= lightest;
        });
    }
    return static_cast<int>(count);
}

bool IsDark(const QImage& picture, int x, int y) {
    return Lightness(picture.pixel(x, y)) < kDark;
}

bool HasColour(const QImage& picture, QColor colour) {
    const QImage plain = Plain(picture);
    for (int y = 0; y < plain.height(); ++y) {
        const QRgb* row = Row(plain, y);
        if (std::find(row, row + plain.width(), colour.rgb()) != row + plain.width()) {
            return true;
        }
    }
    return false;
}

int InkApart(const QImage& a, const QImage& b, int reach) {
    const QImage left = Plain(a);
    const QImage right = Plain(b);
    const auto isAlone = [reach](const QImage& plain, const QImage& other, int x, int y) {
        return Lightness(Row(plain, y)[x]) < kBlack && !IsGreyNear(other, x, y, reach);
    };
    int apart = 0;
    for (int y = reach; y < left.height() - reach; ++y) {
        for (int x = reach; x < left.width() - reach; ++x) {
            apart += isAlone(left, right, x, y) || isAlone(right, left, x, y) ? 1 : 0;
        }
    }
    return apart;
}

int Difference(const QImage& a, const QImage& b) {
    const QImage left = Plain(a);
    const QImage right = Plain(b);
    int most = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            const QRgb one = Row(left, y)[x];
            const QRgb other = Row(right, y)[x];
            most = std::max({most, std::abs(qRed(one) - qRed(other)),
                             std::abs(qGreen(one) - qGreen(other)),
                             std::abs(qBlue(one) - qBlue(other))});
        }
    }
    return most;
}

} // namespace vernacle::test
