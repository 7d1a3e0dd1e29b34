// A table of real controls: headings that stay in view above rows that scroll. A control of row 3
// is named with the number behind: "PrintTicYes3".
#pragma once

#include <functional>
#include <initializer_list>
#include <span>
#include <string>
#include <vector>

#include <QFrame>

#include "engine/setups/setup.h"

class QGridLayout;
class QHeaderView;
class QLabel;

namespace vernacle {

class OptionButton;

// "Tic3".
std::string RowName(const char* control, int row);

// One of a row's options, in words.
struct RowOption {
    const char* name;
    const char* caption;
};

// A frame with two options, of which a row has one or none. The first is the answer Yes.
struct RowChoice {
    QWidget* frame = nullptr;
    OptionButton* first = nullptr;
    OptionButton* second = nullptr;

    void Show(Answer answer) const;
    Answer Chosen() const; // No also for none
};

// The question is told to a screen reader.
RowChoice MakeRowChoice(const char* frame, const char* question, const RowOption& first,
                        const RowOption& second, int row);

// A label of a row, wide enough for any number.
QLabel* MakeRowLabel(const char* name, int row);

class RowTable : public QFrame {
    Q_OBJECT

public:
    RowTable(const char* name, std::span<const char* const> headings);

    // Adds the next row, a control for each heading.
    void AddRow(std::initializer_list<QWidget*> controls);

    // For what shows or hides many controls: the rows are laid out once behind it, not at each.
    void ChangeRows(const std::function<void()>& change);

    // Once all rows stand: the headings stand above their columns.
    void AlignHeadings();

private:
    QHeaderView* headings_;
    QGridLayout* rows_;
    int count_ = 0;
};

} // namespace vernacle
