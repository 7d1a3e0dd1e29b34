// Values of the design as short texts, so that tests can compare fields of every type in one table.
#pragma once

#include <cstdint>
#include <locale>
#include <sstream>
#include <string>
#include <type_traits>
#include <variant>

#include "engine/core/design.h"

namespace vernacle::test {

template <typename T>
std::string Show(const T& value) {
    if constexpr (std::is_convertible_v<T, std::string>) {
        return value;
    } else {
        std::ostringstream text;
        text.imbue(std::locale::classic());
        text.precision(7);
        text << value;
        return text.str();
    }
}

// A field of the design that stands for itself, of whatever type.
using Member = std::variant<float DesignRecord::*, std::int16_t DesignRecord::*,
                            std::int32_t DesignRecord::*, std::string DesignRecord::*>;

inline std::string Show(Member member) {
    return std::visit([](auto field) { return Show(Design.*field); }, member);
}

// Gives the field a value that no default has: 77, or "?".
constexpr const char* kPoisonNumber = "77";
constexpr const char* kPoisonText = "?";

inline void Poison(float& field) {
    field = 77;
}
inline void Poison(std::int16_t& field) {
    field = 77;
}
inline void Poison(std::int32_t& field) {
    field = 77;
}
inline void Poison(std::string& field) {
    field = kPoisonText;
}
inline void Poison(Member member) {
    std::visit([](auto field) { Poison(Design.*field); }, member);
}

} // namespace vernacle::test
