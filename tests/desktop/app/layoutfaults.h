// What is wrong with how a form is laid out: each fault is a line that names its control.
#pragma once

#include <string>
#include <vector>

class QWidget;

namespace vernacle::test {

using Faults = std::vector<std::string>;

// Visible controls that are smaller than what they show, and containers too small for their layout.
Faults CutOffControls(const QWidget& form);

// Visible controls that stand over one of their siblings.
Faults OverlappingControls(const QWidget& form);

// Visible controls that reach over the edge of what they stand in.
Faults ControlsOutsideTheirParent(const QWidget& form);

// Scroll bars that are shown.
Faults ScrollBarsShown(const QWidget& form);

// Controls, hidden ones too, that take the focus or show text and have no name, or that of another.
Faults BadlyNamedControls(const QWidget& form);

// Controls, hidden ones too, that take the focus and have nothing that a screen reader could say.
Faults SilentControls(const QWidget& form);

// The names of the controls that the Tab key reaches, in the order in which one reads them: a
// toolbar from left to right, blocks side by side one after the other, a grid row by row.
std::vector<std::string> ReadingOrder(const QWidget& form);

// The same in the order in which the Tab key reaches them, from the form's first.
std::vector<std::string> TabOrder(const QWidget& form);

} // namespace vernacle::test
