// The dialogs for design files.
#pragma once

#include <string>

class QWidget;

namespace vernacle {

// The design file to read; empty after a cancel.
std::string AskForVernacleFile(QWidget* parent, const char* title);

// The name to save under, ending in ".VRN" unless another ending was typed; the name that was given
// after a cancel.
std::string AskForNewVernacleFile(QWidget* parent, const char* title, const std::string& name);

// The same, empty after a cancel.
std::string AskForNewDesignFile(QWidget* parent, const char* title, const std::string& name);

} // namespace vernacle
