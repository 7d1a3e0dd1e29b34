#include "desktop/kit/steppedentry.h"

#include <QHBoxLayout>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/updown.h"

namespace vernacle {

SteppedEntry::SteppedEntry(EntryBox& box, UpDown* arrows) {
    box.setMinimumWidth(box.fontMetrics().horizontalAdvance(QStringLiteral("-100000.5")));
    auto* pair = new QHBoxLayout(this);
    pair->setContentsMargins({});
    pair->setSpacing(0);
    pair->addWidget(&box);
    if (arrows) {
        pair->addWidget(arrows);
    } else {
        pair->addSpacing(UpDown::kWidth);
    }
}

} // namespace vernacle
