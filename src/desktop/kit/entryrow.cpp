#include "desktop/kit/entryrow.h"

#include <QGridLayout>
#include <QHBoxLayout>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/steppedentry.h"

namespace vernacle {

namespace {

constexpr int kColumns = 3; // caption, box, illustration

EntryBox* MakePartner(const EntryRow& entry, QWidget& page) {
    if (!entry.partner) {
        return nullptr;
    }
    auto* partner = new EntryBox(entry.partner, QString::fromUtf8(entry.caption), &page);
    partner->hide();
    return partner;
}

std::string RangeOf(const EntryRow& entry) {
    if (std::string limits = RangeText(entry.limits, entry.unit);
        !limits.empty() || !entry.arrows) {
        return limits;
    }
    const EntryLimits arrows{entry.range.lowest * entry.partnerUnit,
                             entry.range.highest * entry.partnerUnit};
    return RangeText(arrows, entry.unit) + " by the arrows";
}

EntryBox* MakeBox(const EntryRow& entry) {
    auto* box = new EntryBox(entry.box, QString::fromUtf8(entry.caption));
    box->SetReading(entry.reading);
    box->SetRewriting(entry.rewriting);
    box->TellRange(RangeOf(entry));
    return box;
}

QLabel* MakeCaption(const EntryRow& entry, EntryBox& box) {
    QLabel* label = MakeLabel(entry.label, QString::fromUtf8(entry.caption));
    label->setBuddy(&box);
    return label;
}

} // namespace

EntryControls AddTextRow(const EntryRow& entry, QGridLayout& grid, int row) {
    EntryBox* box = MakeBox(entry);
    auto* line = new QHBoxLayout;
    line->addWidget(MakeCaption(entry, *box));
    line->addWidget(box, 1);
    grid.addLayout(line, row, 0, 1, kColumns);
    return {*box, nullptr};
}

EntryControls AddEntryRow(const EntryRow& entry, QGridLayout& grid, int row, QWidget& page) {
    EntryBox* box = MakeBox(entry); // its layout places it in the order of Tab
    EntryBox* partner = MakePartner(entry, page);
    grid.addWidget(MakeCaption(entry, *box), row, 0);
    if (!entry.arrows) {
        grid.addWidget(new SteppedEntry(*box), row, 1);
        return {*box, partner};
    }
    auto* arrows = new UpDown(entry.arrows, box->accessibleName());
    grid.addWidget(new SteppedEntry(*box, arrows), row, 1);
    arrows->AttachTo(partner ? *partner : *box, entry.range);
    box->SetArrows(arrows); // its Up and Down keys step a partner too
    return {*box, partner};
}

} // namespace vernacle
