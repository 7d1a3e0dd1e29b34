// The plain parts of forms, each with its own name.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace vernacle {

QLabel* MakeLabel(const char* name, const QString& text);

QPushButton* MakeButton(const char* name, const QString& caption, const QString& tip = {});

// The narrow button beside an entry that illustrates it.
QPushButton* MakeHelpButton(const char* name, const QString& illustrates);

QGroupBox* MakeFrame(const char* name, const QString& title);

// Space between the rows and columns of entries, pixels.
constexpr int kEntrySpacing = 6;

// The page's heading, in a larger font.
QLabel* MakeHeading(const char* name, const QString& text);

} // namespace vernacle
