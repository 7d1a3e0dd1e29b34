#include "engine/core/repair.h"

namespace vernacle {

namespace {

bool Applies(When when, double number, double bound) {
    switch (when) {
    case When::Equal:
        return number == bound;
    case When::Below:
        return number < bound;
    case When::NotAbove:
        return number <= bound;
    case When::Above:
        return number > bound;
    case When::From:
        return number >= bound;
    case When::Always:
        return true;
    case When::Empty: // is of a text
        break;
    }
    return false;
}

bool Applies(When when, const std::string& text) {
    return when == When::Always || (when == When::Empty && text.empty());
}

} // namespace

void RepairFields(DesignRecord& design, std::span<const Repair> rows, int index) {
    const auto sum = [&](double number, FieldPlace added) {
        return added ? number + NumberIn(added.In(design, index)) : number;
    };
    for (const Repair& row : rows) {
        if (IsLifted(row.liftedBy)) {
            continue;
        }
        const FieldPointer field = row.place.In(design, index);
        if (auto* const* text = std::get_if<std::string*>(&field)) {
            if (Applies(row.when, **text)) {
                **text = row.text;
            }
        } else if (Applies(row.when, NumberIn(field), sum(row.bound, row.boundField))) {
            StoreIn(field, sum(row.becomes, row.becomesField));
        }
    }
}

} // namespace vernacle
