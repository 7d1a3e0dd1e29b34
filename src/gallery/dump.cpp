#include "gallery/dump.h"

#include <cmath>
#include <variant>

#include "engine/base/numbertext.h"
#include "engine/core/recordfields.h"

namespace vernacle::gallery {

namespace {

std::string Escaped(char c) {
    constexpr const char* kDigits = "0123456789ABCDEF";
    switch (c) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    default:
        break;
    }
    const auto code = static_cast<unsigned char>(c);
    if (code >= 0x20 && code != 0x7F) {
        return {c};
    }
    return {'\\', 'x', kDigits[code / 16], kDigits[code % 16]};
}

std::string ValueText(float value) {
    if (std::isnan(value)) {
        return "nan";
    }
    if (std::isinf(value)) {
        return value < 0 ? "-inf" : "inf";
    }
    return PlainNumber(value);
}

std::string ValueText(std::int32_t value) {
    return PlainNumber(value);
}

std::string ValueText(const std::string& value) {
    std::string text = "\"";
    for (const char c : value) {
        text += Escaped(c);
    }
    return text + "\"";
}

std::string ValueText(const DynamicValue& value) {
    return std::visit([](const auto& held) { return ValueText(held); }, value);
}

std::string TextOf(const ConstFieldPointer& field) {
    const auto textOf = [](auto pointer) -> std::string {
        if constexpr (std::is_pointer_v<decltype(pointer)>) {
            return ValueText(*pointer);
        }
        return {};
    };
    return std::visit(textOf, field);
}

// "NAME", "NAME[3]" or "NAME[1][17]".
std::string DumpedName(const RecordField& field, int outer, int inner) {
    const std::string name = field.name;
    return name + (field.indices > 0 ? "[" + PlainNumber(outer) + "]" : "") +
           (field.indices > 1 ? "[" + PlainNumber(inner) + "]" : "");
}

} // namespace

std::string DumpDesign(const DesignRecord& design, const DesignRecord& atStart) {
    std::string lines;
    for (const RecordField& field : RecordFields()) {
        ForEachEntry(field, [&](int outer, int inner) {
            const ConstFieldPointer value = field.place.In(design, outer, inner);
            if (field.indices == 0 || !SameValue(value, field.place.In(atStart, outer, inner))) {
                lines += DumpedName(field, outer, inner) + " = " + TextOf(value) + "\n";
            }
        });
    }
    return lines;
}

} // namespace vernacle::gallery
