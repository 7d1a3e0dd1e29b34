// The platform's dialogs, named by what they are for. Each returns what it then holds: a cancelled
// one gives back what it was opened with. Those for files open beside the design, else where a file
// was chosen before, else among the documents, with the examples one click away.
#pragma once

#include <string>

#include "engine/geometry/drawingsurface.h"

class QWidget;

namespace vernacle {

// A filter is a description and its patterns: "Vernacle files (*.VRN)|*.VRN",
// "Pictures|*.GIF;*.BMP".
struct FileQuestion {
    const char* title;
    const char* filter;
    const char* ending; // of a name that is typed without one
};

// Opens without a name, so that a cancelled dialog gives an empty one.
std::string AskForFileToOpen(QWidget* parent, const FileQuestion& question);

// Asks before it takes the name of a file that exists.
std::string AskForFileToSave(QWidget* parent, const FileQuestion& question,
                             const std::string& name);

// The same, but a cancelled one gives no name.
std::string AskForNewFile(QWidget* parent, const FileQuestion& question, const std::string& name);

// A question whose "Stay" is what a key pressed without reading it gives.
bool AskWhetherToContinue(QWidget* parent, const std::string& question);

std::string AskForFont(QWidget* parent, const char* title, const std::string& family);

Colour AskForColour(QWidget* parent, const char* title, Colour start);

} // namespace vernacle
