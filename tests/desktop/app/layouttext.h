// How a form is laid out, as a text: its controls in their rows, columns and grids, what stretches,
// what a caption names. Relations alone, no sizes that a font or a screen decides, so that the text
// is the same on every machine.
#pragma once

#include <string>

class QWidget;

namespace vernacle::test {

// A line for each control and layout, indented below what it stands in. The form has to be shown.
std::string LayoutText(const QWidget& form);

} // namespace vernacle::test
