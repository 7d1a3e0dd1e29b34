// A field of a page: its caption, its box with arrows, and the way between what is typed and the
// design. A page has a table of rows; each row gives the widgets of its field, and one routine
// reads them all.
#pragma once

#include <vector>

#include <QObject>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/updown.h"
#include "engine/core/entry.h"
#include "engine/core/fieldplace.h"
#include "engine/core/service.h"

class QGridLayout;
class QLabel;
class QPushButton;

namespace vernacle {

// What the box shows of a number that was typed and held to its limits.
enum class Showing {
    Typed,      // what was typed, whatever is kept
    Held,       // what is kept, once the box is left
    HeldAtOnce, // where no number that is accepted is typed through one that is not
};

// When what is typed is held to its limits.
enum class Holding {
    AtOnce,
    ByPage, // at a moment of the page's own
};

struct FieldArrows {
    const char* name = nullptr;    // none if null
    StepRange range = {};          // none if empty: the page steps by itself
    const char* partner = nullptr; // a box that is not shown, which they step instead
    double unit = 1;               // of the partner, in the box's own
};

// What a row takes instead where that is in service.
struct WiderLimits {
    LiftedBy liftedBy = nullptr;
    EntryLimits limits = {};
    StepRange steps = {};
};

// The label and the H button are named after the box, "lblPlateWidth" and "cmdPlateWidth" beside
// "txtPlateWidth", where the row gives no other name. The box tells the limits of what is typed;
// where there are none, the range of its arrows.
struct FieldRow {
    const char* box = nullptr;
    const char* caption = nullptr;
    FieldPlace place = Nowhere;
    EntryLimits limits = {};
    const char* unit = "";
    FieldArrows arrows = {};
    std::int16_t topic = 0; // that its H button illustrates; no button if 0
    const char* topicTip = "";
    const char* label = nullptr;
    const char* text = ""; // in the box before it is filled
    Reading reading = Reading::Entry;
    Showing showing = Showing::Typed;
    Holding holding = Holding::AtOnce;
    std::size_t longest = std::string::npos; // characters kept of a text
    WiderLimits wider = {};
    const char* unset = nullptr; // what an empty box stands for, which is kept as -1
    LiftedBy liftedBy = nullptr; // a page without it in service has no such field
};

class Field : public QObject {
    Q_OBJECT

public:
    // Makes the widgets, which stand nowhere yet. Lives as long as the page.
    Field(const FieldRow& of, QWidget& page);

    const FieldRow row;
    QLabel* label = nullptr;
    EntryBox* box = nullptr;
    UpDown* arrows = nullptr; // null where the row has none, as the next ones
    EntryBox* partner = nullptr;
    QPushButton* help = nullptr;

    // Places it in that row of the grid, in the columns of caption, box and H button. A text's box
    // is as wide as the grid leaves room beside the caption.
    void AddTo(QGridLayout& grid, int gridRow);

    // The same where no row has arrows: no place is kept free for them.
    void AddBoxTo(QGridLayout& grid, int gridRow);

    // Takes what the box says into the place, held to the row's limits, and shows what the row
    // wants shown of that. Where files are careful a number that is shown already stays as it is,
    // to the last bit.
    void Take(const FieldPointer& place) const;

    // The same, but neither held nor shown.
    void Read(const FieldPointer& place) const;

    // Where files are careful: shows what is kept there, if the box shows another number.
    void ShowKept(const FieldPointer& place) const;

    // Holds the number there to the row's limits.
    void Hold(const FieldPointer& place) const;

    // Whether an empty box stands for the value of the place.
    bool IsUnset(const FieldPointer& place) const;

    // Writes the value of the place into the box.
    void Fill(const FieldPointer& place) const;

    // All but the H button.
    void Enable() const;
    void Disable() const;

    void Hide() const; // all of it, from then on

private:
    bool IsText() const;
    bool IsShown(const FieldPointer& place) const;
    void SetEnabled(bool enabled) const;
};

// The field of that place.
Field& FieldOf(const std::vector<Field*>& fields, FieldPlace place);

} // namespace vernacle
