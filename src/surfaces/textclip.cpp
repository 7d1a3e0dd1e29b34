#include "surfaces/textclip.h"

#include <algorithm>

#include "surfaces/typeface.h"

namespace vernacle {

namespace {

constexpr int kLongestUncut = 1024; // letters; a plate has none that is longer
constexpr int kLongestLayout = 16384;
constexpr double kEm = Typeface::kReferenceSize;

// Letters reach a little out of their cells.
bool Meets(double low, double high, double viewLow, double viewHigh) {
    return high + kEm >= viewLow && low - kEm <= viewHigh;
}

// Whether it stands in a row like a Latin one, though the layout may fit it to its neighbours.
bool IsOneAfterTheOther(QChar letter) {
    return !letter.isSurrogate() && !letter.isMark() && letter.direction() != QChar::DirR &&
           letter.direction() != QChar::DirAL;
}

// Side by side, in parts of a length that the toolkit's layout can count.
std::vector<TextPart> LettersWithin(const QString& text, const Typeface& face, const QRectF& view) {
    std::vector<TextPart> parts;
    double offset = 0;
    bool goesOn = false;
    for (const QChar letter : text) {
        const double advance = face.AdvanceOf(letter);
        const bool isIn = Meets(offset, offset + advance, view.left(), view.right());
        if (isIn) {
            if (!goesOn || parts.back().text.size() == kLongestUncut) {
                parts.push_back({QString(), offset});
            }
            parts.back().text += letter;
        }
        goesOn = isIn;
        offset += advance;
    }
    return parts;
}

} // namespace

std::vector<TextPart> PartsInView(const QString& text, const Typeface& face, const TextView& view) {
    if (!Meets(0, face.CellHeight(), view.painted.top(), view.painted.bottom())) {
        return {};
    }
    if (text.size() > kLongestUncut) {
        return std::all_of(text.begin(), text.end(), IsOneAfterTheOther)
                   ? LettersWithin(text, face, view.seen)
                   : std::vector<TextPart>{{text.left(kLongestLayout), 0}};
    }
    if (!Typeface::IsPlain(text)) {
        return {{text, 0}};
    }
    const double width = face.Advance(text);
    const bool isWithin = view.painted.left() <= -kEm && width + kEm <= view.painted.right();
    return isWithin ? std::vector<TextPart>{{text, 0}} : LettersWithin(text, face, view.painted);
}

} // namespace vernacle
