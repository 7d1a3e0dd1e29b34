#include "desktop/kit/field.h"

#include <algorithm>

#include <QGridLayout>
#include <QHBoxLayout>

#include "desktop/kit/formkit.h"
#include "desktop/kit/steppedentry.h"
#include "engine/base/numbertext.h"
#include "engine/base/text.h"
#include "engine/core/design.h"

namespace vernacle {

namespace {

constexpr int kColumns = 3; // caption, box, H button
constexpr double kUnset = -1;

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

FieldRow InService(const FieldRow& row) {
    FieldRow wider = row;
    if (IsLifted(row.wider.liftedBy)) {
        wider.limits = row.wider.limits;
        wider.arrows.range = row.wider.steps;
    }
    if (Service.carefulFiles && row.reading == Reading::Plain) {
        wider.reading = Reading::Entry; // a decimal comma is one in every box
    }
    return wider;
}

EntryBox* MakeBox(const FieldRow& row) {
    auto* box = new EntryBox(row.box, QString::fromUtf8(row.caption));
    box->SetReading(row.reading);
    box->SetRewriting(row.showing == Showing::HeldAtOnce ? Rewriting::AtOnce : Rewriting::WhenLeft);
    box->TellRange(RangeOf(row));
    if (Service.carefulFiles && row.longest != std::string::npos) {
        box->setMaxLength(static_cast<int>(row.longest)); // nothing is cut off unseen
    }
    box->setText(QString::fromUtf8(row.text));
    box->setPlaceholderText(QString::fromUtf8(row.unset));
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
    : QObject(&page), row(InService(of)), box(MakeBox(row)), partner(MakePartner(row, page)) {
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
    if (row.unset && Trimmed(box->Text()).empty()) {
        StoreIn(place, kUnset);
        box->ShowKept({});
        return;
    }
    if (!Service.carefulFiles || !IsShown(place)) {
        Read(place);
    }
    if (IsText()) {
        return;
    }
    if (row.holding == Holding::AtOnce) {
        const auto entered = static_cast<float>(NumberIn(place));
        Hold(place);
        if (row.showing != Showing::Typed) {
            box->ShowHeld(entered, static_cast<float>(NumberIn(place)));
        }
    }
    ShowKept(place);
}

bool Field::IsShown(const FieldPointer& place) const {
    return !IsText() && Trimmed(box->Text()) == PlainText(place);
}

// By their texts: seven digits are shown of what may have more.
void Field::ShowKept(const FieldPointer& place) const {
    if (!Service.carefulFiles || IsUnset(place)) {
        return;
    }
    float shown = box->Number();
    if (std::string text = box->Text(); row.reading == Reading::Entry && !IsTooLongForEntry(text)) {
        ParseEntry(text, shown);
    }
    const std::string kept = PlainText(place);
    const bool isNumber = box->Text().find_first_of("0123456789") != std::string::npos;
    box->ShowKept(isNumber && PlainNumber(shown) == kept ? std::string() : kept);
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
    box->Write(IsUnset(place) ? std::string() : PlainText(place));
}

bool Field::IsUnset(const FieldPointer& place) const {
    return row.unset && NumberIn(place) < 0;
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
