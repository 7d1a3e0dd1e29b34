// Where a field of the design stands, so that tables of fields can be written: one row, one place.
#pragma once

#include <cstdint>
#include <string>
#include <type_traits>
#include <variant>

#include "engine/core/design.h"

namespace vernacle {

using Slot = std::variant<std::monostate, float*, std::int16_t*, std::int32_t*, std::string*>;

// The slot of a row for an outer index (a scale, a text) and an inner one (a tic, a list entry).
using Place = Slot (*)(int outer, int inner);

// The place of a member of Design: a plain field whatever the indices, an entry of a table by the
// outer index, an entry of a table of tables by both.
template <auto Member>
Slot At(int outer, int inner) {
    auto& field = Design.*Member;
    using Field = std::remove_reference_t<decltype(field)>;
    if constexpr (std::is_constructible_v<Slot, Field*>) {
        return &field;
    } else if constexpr (requires { Slot(&field[outer]); }) {
        return &field[outer];
    } else {
        return &field[outer][inner];
    }
}

// A place for rows that keep nothing.
Slot Nowhere(int outer, int inner);

// Stores the number as the slot's type; a failed conversion is a run-time error.
void StoreInSlot(double value, const Slot& slot);

double NumberInSlot(const Slot& slot);

} // namespace vernacle
