// Where a field stands in any design, so that tables of fields can be written: one row, one place.
#pragma once

#include <cstdint>
#include <string>
#include <type_traits>
#include <variant>

#include "engine/core/design.h"

namespace vernacle {

using FieldPointer =
    std::variant<std::monostate, float*, std::int16_t*, std::int32_t*, std::string*, DynamicValue*>;
using ConstFieldPointer =
    std::variant<std::monostate, const float*, const std::int16_t*, const std::int32_t*,
                 const std::string*, const DynamicValue*>;

ConstFieldPointer AsConst(const FieldPointer& field);

// The place of a row, in any design: of an outer index (a scale, a text) and an inner one (a tic, a
// list entry). One without a function is no place at all.
struct FieldPlace {
    FieldPointer (*find)(DesignRecord& design, int outer, int inner) = nullptr;

    explicit operator bool() const { return find != nullptr; }

    FieldPointer In(DesignRecord& design, int outer = 0, int inner = 0) const {
        return find(design, outer, inner);
    }
    ConstFieldPointer In(const DesignRecord& design, int outer = 0, int inner = 0) const {
        return AsConst(find(const_cast<DesignRecord&>(design), outer, inner)); // to be read only
    }
};

// The place of a member of the design: a plain field whatever the indices, an entry of a table by
// the outer index, an entry of a table of tables by both.
template <auto Member>
constexpr FieldPlace At = {[](DesignRecord& design, int outer, int inner) -> FieldPointer {
    auto& field = design.*Member;
    using Kept = std::remove_reference_t<decltype(field)>;
    if constexpr (std::is_constructible_v<FieldPointer, Kept*>) {
        return &field;
    } else if constexpr (requires { FieldPointer(&field[outer]); }) {
        return &field[outer];
    } else {
        return &field[outer][inner];
    }
}};

// A place for rows that keep nothing.
constexpr FieldPlace Nowhere = {
    [](DesignRecord& /*design*/, int /*outer*/, int /*inner*/) { return FieldPointer(); }};

// Stores the number as the field's type, in a DynamicValue as a number; a failed conversion is a
// run-time error.
void StoreIn(const FieldPointer& field, double value);

// Stores what is typed, by the rules of ParseEntry; a text takes no number, as in StoreIn.
void ParseInto(std::string& text, const FieldPointer& field);

double NumberIn(const ConstFieldPointer& field);
inline double NumberIn(const FieldPointer& field) {
    return NumberIn(AsConst(field));
}

// Whether both hold the same, floats bit for bit; fields of different types never do.
bool SameValue(const ConstFieldPointer& a, const ConstFieldPointer& b);

// The field as a box shows it: a number in its plain form, a text as it stands.
std::string PlainText(const ConstFieldPointer& field);
inline std::string PlainText(const FieldPointer& field) {
    return PlainText(AsConst(field));
}

} // namespace vernacle
