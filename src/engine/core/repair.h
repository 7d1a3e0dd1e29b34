// Repairs of a design before a page or a drawing works with it: rows that say which field becomes
// what, and when.
#pragma once

#include <span>

#include "engine/core/fieldplace.h"
#include "engine/core/service.h"

namespace vernacle {

// How the field compares with the bound; NotAbove and From include equality. Empty is of a text.
enum class When { Always, Empty, Equal, Below, NotAbove, Above, From };

// A number of the row has that of a field added where one is named.
struct Repair {
    FieldPlace place;
    When when = When::Always;
    double bound = 0;
    double becomes = 0;
    FieldPlace boundField = {};
    FieldPlace becomesField = {};
    const char* text = nullptr;  // that a text becomes
    LiftedBy liftedBy = nullptr; // what is forced only where this is not in service
};

// In the order of the rows, each upon those before it; of tables, the entry of the index.
void RepairFields(DesignRecord& design, std::span<const Repair> rows, int index = 0);

} // namespace vernacle
