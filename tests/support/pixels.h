// The pixels of a picture, measured. Apart from the tests, which are compiled without optimisation:
// a picture has millions of them.
#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

namespace vernacle::test {

constexpr int kNotWhite = 250; // a lightness below it is ink

// The pixels that are darker than that, as the rectangle around them; empty if there are none.
QRect InkOf(const QImage& picture, int lightness = kNotWhite);

// How dark a row or column is in sum, in whole black pixels.
double InkAcross(const QImage& picture, int row);
double InkDown(const QImage& picture, int column);

// How many pixels have a lightness from that one to this one.
int CountPixels(const QImage& picture, int darkest, int lightest);

bool IsDark(const QImage& picture, int x, int y);
bool HasColour(const QImage& picture, QColor colour);

// How many pixels of one picture are black where the other has not even grey within that reach; the
// edge of that width apart.
int InkApart(const QImage& a, const QImage& b, int reach);

// The largest difference between two pixels of the same place, of 255.
int Difference(const QImage& a, const QImage& b);

} // namespace vernacle::test
