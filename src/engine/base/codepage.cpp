#include "engine/base/codepage.h"

#include <algorithm>
#include <array>
#include <optional>

namespace vernacle {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kFirstSpecial = 0x80;

// Windows-1252 from 0x80 to 0x9F; the five bytes that it leaves open stand for themselves.
constexpr std::array<char32_t, 32> kSpecials = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char32_t FromByte(unsigned char byte) {
    const std::size_t special = byte - std::size_t{kFirstSpecial};
    return byte >= kFirstSpecial && special < kSpecials.size() ? kSpecials[special] : byte;
}

std::optional<char> ToByte(char32_t character) {
    if (character < kFirstSpecial || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<char>(character);
    }
    const auto* special = std::find(kSpecials.begin(), kSpecials.end(), character);
    if (special == kSpecials.end()) {
        return std::nullopt;
    }
    return static_cast<char>(kFirstSpecial + static_cast<char32_t>(special - kSpecials.begin()));
}

void AppendUtf8(char32_t character, std::string& text) {
    const auto byte = [&text](char32_t value) { text += static_cast<char>(value); };
    if (character < 0x80) {
        byte(character);
    } else if (character < 0x800) {
        byte(0xC0 | character >> 6U);
        byte(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        byte(0xE0 | character >> 12U);
        byte(0x80 | (character >> 6U & 0x3F));
        byte(0x80 | (character & 0x3F));
    } else {
        byte(0xF0 | character >> 18U);
        byte(0x80 | (character >> 12U & 0x3F));
        byte(0x80 | (character >> 6U & 0x3F));
        byte(0x80 | (character & 0x3F));
    }
}

struct LeadByte {
    unsigned char mask;
    unsigned char value;
    int continuations;
    char32_t smallest; // a smaller character in this form is over-long, and no UTF-8
};

constexpr LeadByte kLeadBytes[] = {
    {0x80, 0x00, 0, 0},       //
    {0xE0, 0xC0, 1, 0x80},    //
    {0xF0, 0xE0, 2, 0x800},   //
    {0xF8, 0xF0, 3, 0x10000}, //
};

bool IsCharacter(char32_t character) {
    return character <= 0x10FFFF && (character < 0xD800 || character > 0xDFFF);
}

// Takes one character from the start of a UTF-8 text that is not empty; a byte that starts none is
// taken alone as U+FFFD.
char32_t TakeCharacter(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text[0]);
    const auto* form =
        std::find_if(std::begin(kLeadBytes), std::end(kLeadBytes),
                     [lead](const LeadByte& f) { return (lead & f.mask) == f.value; });
    text.remove_prefix(1);
    if (form == std::end(kLeadBytes)) {
        return kReplacement;
    }
    char32_t character = static_cast<unsigned char>(lead & ~form->mask);
    std::string_view rest = text;
    for (int i = 0; i < form->continuations; ++i) {
        if (rest.empty() || (static_cast<unsigned char>(rest[0]) & 0xC0U) != 0x80) {
            return kReplacement;
        }
        character = character << 6U | (static_cast<unsigned char>(rest[0]) & 0x3FU);
        rest.remove_prefix(1);
    }
    if (character < form->smallest || !IsCharacter(character)) {
        return kReplacement;
    }
    text = rest;
    return character;
}

std::string ToUtf8(std::string_view text) {
    std::string repaired;
    while (!text.empty()) {
        AppendUtf8(TakeCharacter(text), repaired);
    }
    return repaired;
}

} // namespace

std::string ToFileBytes(std::string_view text) {
    std::string bytes;
    std::string_view rest = text;
    while (!rest.empty()) {
        const auto byte = ToByte(TakeCharacter(rest));
        if (!byte) {
            return std::string(kByteOrderMark) + ToUtf8(text);
        }
        bytes += *byte;
    }
    return bytes;
}

std::string FromFileBytes(std::string_view bytes) {
    if (bytes.starts_with(kByteOrderMark)) {
        return ToUtf8(bytes.substr(kByteOrderMark.size()));
    }
    std::string text;
    for (const char byte : bytes) {
        AppendUtf8(FromByte(static_cast<unsigned char>(byte)), text);
    }
    return text;
}

std::string ToPlotterBytes(std::string_view text) {
    std::string bytes;
    while (!text.empty()) {
        bytes += ToByte(TakeCharacter(text)).value_or('?');
    }
    return bytes;
}

} // namespace vernacle
