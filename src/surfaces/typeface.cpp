#include "surfaces/typeface.h"

#include <algorithm>

namespace vernacle {

namespace {

struct LetterShare {
    char letter;
    int perThousand;
};

// How often each letter stands in English text: the weights of a font's average character width.
constexpr LetterShare kLetters[] = {
    {'a', 64}, {'b', 14}, {'c', 27}, {'d', 35}, {'e', 100}, {'f', 20},  {'g', 14},
    {'h', 42}, {'i', 63}, {'j', 3},  {'k', 6},  {'l', 35},  {'m', 20},  {'n', 56},
    {'o', 56}, {'p', 17}, {'q', 4},  {'r', 49}, {'s', 56},  {'t', 71},  {'u', 31},
    {'v', 10}, {'w', 18}, {'x', 3},  {'y', 18}, {'z', 2},   {' ', 166},
};

QFont MakeFont(const std::string& family) {
    QFont font(QString::fromStdString(family));
    font.setPixelSize(Typeface::kReferenceSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setKerning(false);
    return font;
}

// Below this, letters stand side by side as they are; beyond, neighbours may shape each other.
constexpr char16_t kFirstCombining = 0x0300;

} // namespace

// The toolkit then puts boxes in place of all letters, which have a width but no shape on paper.
bool HasFonts() {
    return QFontMetricsF(MakeFont("Arial")).inFont(QLatin1Char('0'));
}

Typeface::Typeface(const std::string& family)
    : font_(MakeFont(family)), metrics_(font_), averageWidth_(MeasureAverage()) {}

// The metrics shape a text anew at each call, which for a plate's labels costs as much as painting.
double Typeface::AdvanceOf(QChar letter) const {
    const auto [entry, isNew] = advances_.try_emplace(letter.unicode());
    if (isNew) {
        entry->second = metrics_.horizontalAdvance(letter);
    }
    return entry->second;
}

bool Typeface::IsPlain(const QString& text) {
    return std::all_of(text.begin(), text.end(),
                       [](QChar letter) { return letter.unicode() < kFirstCombining; });
}

double Typeface::Advance(const QString& text) const {
    if (!IsPlain(text)) {
        return metrics_.horizontalAdvance(text);
    }
    double advance = 0;
    for (const QChar letter : text) {
        advance += AdvanceOf(letter);
    }
    return advance;
}

double Typeface::MeasureAverage() const {
    double sum = 0;
    for (const LetterShare& share : kLetters) {
        sum += share.perThousand * AdvanceOf(QLatin1Char(share.letter));
    }
    return sum / 1000;
}

} // namespace vernacle
