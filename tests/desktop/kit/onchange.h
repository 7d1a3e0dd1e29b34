// What the kit's tests do at a change of a box.
#pragma once

#include "desktop/kit/entrybox.h"

namespace vernacle::test {

// The one handler of the box from then on.
template <typename Handler>
void OnChange(EntryBox& box, const Handler& handler) {
    QObject::disconnect(&box, &EntryBox::Changed, nullptr, nullptr);
    QObject::connect(&box, &EntryBox::Changed, &box, handler);
}

} // namespace vernacle::test
