#include "engine/core/freetexts.h"

namespace vernacle {

namespace {

template <typename From, typename To>
void CopyEntries(const From& from, To& to) {
    for (int text = 1; text <= kTexts; ++text) {
        to.TextString[text] = from.TextString[text];
        to.LeftToText[text] = from.LeftToText[text];
        to.BottomToText[text] = from.BottomToText[text];
        to.TextRelativeSize[text] = from.TextRelativeSize[text];
        to.TextColor[text] = from.TextColor[text];
    }
}

} // namespace

FreeTexts CopyOfTexts(const DesignRecord& design) {
    FreeTexts texts;
    CopyEntries(design, texts);
    return texts;
}

void StoreTexts(DesignRecord& design, const FreeTexts& texts) {
    CopyEntries(texts, design);
    design.NumberOfTexts = CountTexts(texts);
}

std::int16_t CountTexts(const FreeTexts& texts) {
    std::int16_t count = 0;
    for (int text = 1; text <= kTexts; ++text) {
        count = static_cast<std::int16_t>(count + (texts.TextString[text].empty() ? 0 : 1));
    }
    return count;
}

} // namespace vernacle
