// A font family made once at a large size, and the measures by which it is brought to any other:
// small sizes would quantise the advances of its letters.
#pragma once

#include <string>
#include <unordered_map>

#include <QFont>
#include <QFontMetricsF>
#include <QString>

namespace vernacle {

// Whether there is any font that can write a number: without one texts are drawn as nothing at all.
bool HasFonts();

class Typeface {
public:
    // Size of the reference font in pixels; all measures below are in these.
    static constexpr int kReferenceSize = 2048;

    explicit Typeface(const std::string& family);

    const QFont& ReferenceFont() const { return font_; }
    double Ascent() const { return metrics_.ascent(); }
    double CapHeight() const { return metrics_.capHeight(); } // of a letter without a curve
    double CellHeight() const { return metrics_.ascent() + metrics_.descent(); }
    double Advance(const QString& text) const;

    // Whether the letters of a text stand side by side as they are, none shaping its neighbours.
    static bool IsPlain(const QString& text);
    double AdvanceOf(QChar letter) const;

    // The mean width of a character in running text: the measure by which a font's width is asked
    // for.
    double AverageWidth() const { return averageWidth_; }

private:
    double MeasureAverage() const;

    QFont font_;
    QFontMetricsF metrics_;
    mutable std::unordered_map<char16_t, double> advances_; // of the letters measured so far
    double averageWidth_;
};

} // namespace vernacle
