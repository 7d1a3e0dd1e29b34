#include "support/samerecord.h"

#include <gtest/gtest.h>

namespace vernacle::test {

void ExpectSame(const DesignRecord& design, const DesignRecord& expected, FieldRole role) {
    int told = 0;
    for (const RecordField& field : RecordFields()) {
        ForEachEntry(field, [&](int outer, int inner) {
            const ConstFieldPointer value = field.place.In(design, outer, inner);
            const ConstFieldPointer wanted = field.place.In(expected, outer, inner);
            if (field.role == role && !SameValue(value, wanted) && ++told < 10) {
                ADD_FAILURE() << EntryName(field, outer, inner) << " is " << PlainText(value)
                              << ", not " << PlainText(wanted);
            }
        });
    }
}

} // namespace vernacle::test
