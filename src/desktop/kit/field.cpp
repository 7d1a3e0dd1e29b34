#include "desktop/kit/field.h"

#include <algorithm>

#include <QGridLayout>
#include <QHBoxLayout>

#include "desktop/kit/formkit.h"
#include "desktop/kit/steppedentry.h"
#include "engine/base/text.h"
#include "engine/core/design.h"

namespace vernacle {

namespace {

constexpr int kColumns = 3; // caption, box, H button

// "txtPlateWidth" with another control's prefix.
std::string Sibling(const char* prefix, const char* box) {
    return prefix + std::string(box).substr(3);
}

std::string RangeOf(const FieldRow& row) {
    if (std::string limits = RangeText(row.limits, row.unit); !limits.empty() || !row.arrows.name) {
        return limits;
    }
    const auto& [name, range, partner, unit] = row.arrows;
    return RangeText({range.lowest * unit, range.highest * unit}, row.unit) + " by the arrows";
}

EntryBox* MakeBox(const FieldRow& row) {
    auto* box = new EntryBox(row.box, QString::fromUtf8(row.caption));
    box->SetReading(row.reading);
    box->SetRewriting(row.showing == Showing::HeldAtOnce ? Rewriting::AtOnce : Rewriting::WhenLeft);
    box->TellRange(RangeOf(row));
    box->setText(QString::fromUtf8(row.text));
    return box;
}

QLabel* MakeCaption(const FieldRow& row, EntryBox& box) {
    const std::string name = row.label ? row.label : Sibling("lbl", row.box);
    QLabel* label = MakeLabel(name.c_str(), box.accessibleName());
    label->setBuddy(&box);
    return label;
}

EntryBox* MakePartner(const FieldRow& row, QWidget& page) {
    if (!row.arrows.partner) {
        return nullptr;
    }
    auto* partner = new EntryBox(row.arrows.partner, QString::fromUtf8(row.caption), &page);
    partner->hide();
    return partner;
}

// They step the box, or its partner; the box's Up and Down keys do the same.
UpDown* MakeArrows(const FieldArrows& arrows, EntryBox& box, EntryBox* partner) {
    if (!arrows.name) {
        return nullptr;
    }
    auto* made = new UpDown(arrows.name, box.accessibleName());
    if (arrows.range.lowest < arrows.range.highest) {
        made->AttachTo(partner ? *partner : box, arrows.range);
    }
    box.SetArrows(made);
    return made;
}

QPushButton* MakeHelp(const FieldRow& row) {
    if (row.topic == 0) {
        return nullptr;
    }
    QPushButton* help =
        MakeHelpButton(Sibling("cmd", row.box).c_str(), QString::fromUtf8(row.caption));
    help->setToolTip(QString::fromUtf8(row.topicTip));
    return help;
}

} // namespace

Field::Field(const FieldRow& of, QWidget& page)
    : QObject(&page), row(of), box(MakeBox(of)), partner(MakePartner(of, page)) {
    label = MakeCaption(row, *box);
    arrows = MakeArrows(row.arrows, *box, partner);
    help = MakeHelp(row);
}

void Field::AddTo(QGridLayout& grid, int gridRow) {
    if (IsText()) {
        auto* line = new QHBoxLayout;
        line->addWidget(label);
        line->addWidget(box, 1);
        grid.addLayout(line, gridRow, 0, 1, kColumns);
        return;
    }
    grid.addWidget(label, gridRow, 0);
    grid.addWidget(new SteppedEntry(*box, arrows), gridRow, 1);
    if (help) {
        grid.addWidget(help, gridRow, 2);
    }
}

void Field::AddBoxTo(QGridLayout& grid, int gridRow) {
    grid.addWidget(label, gridRow, 0);
    grid.addWidget(box, gridRow, 1);
}

void Field::Take(const FieldPointer& place) const {
    Read(place);
    if (IsText() || row.holding == Holding::ByPage) {
        return;
    }
    const auto entered = static_cast<float>(NumberIn(place));
    Hold(place);
    if (row.showing != Showing::Typed) {
        box->ShowHeld(entered, static_cast<float>(NumberIn(place)));
    }
}

void Field::Read(const FieldPointer& place) const {
    std::string text = box->Text();
    switch (row.reading) {
    case Reading::Entry:
        ParseInto(text, place);
        return;
    case Reading::Plain:
        StoreIn(place, double{box->Number()});
        return;
    case Reading::Text:
        *std::get<std::string*>(place) = Leftmost(text, row.longest);
        return;
    case Reading::Trimmed:
        *std::get<std::string*>(place) = Trimmed(text);
        return;
    }
}

void Field::Hold(const FieldPointer& place) const {
    StoreIn(place, row.limits.Held(NumberIn(place)));
}

void Field::Fill(const FieldPointer& place) const {
    box->Write(PlainText(place));
}

bool Field::IsText() const {
    return row.reading == Reading::Text || row.reading == Reading::Trimmed;
}

void Field::Enable() const {
    SetEnabled(true);
}

void Field::Disable() const {
    SetEnabled(false);
}

void Field::Hide() const {
    for (QWidget* part : std::initializer_list<QWidget*>{label, box, arrows, partner, help}) {
        if (part) {
            part->hide();
        }
    }
}

void Field::SetEnabled(bool enabled) const {
    for (QWidget* part : std::initializer_list<QWidget*>{label, box, arrows, partner}) {
        if (part) {
            part->setEnabled(enabled);
        }
    }
}

Field& FieldOf(const std::vector<Field*>& fields, FieldPlace place) {
    const FieldPointer wanted = place.In(Design);
    return **std::ranges::find_if(
        fields, [&](const Field* field) { return field->row.place.In(Design) == wanted; });
}

} // namespace vernacle
