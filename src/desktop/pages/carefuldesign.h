// The design and its file where nothing may be lost: what stands in no file is asked about before
// another design takes its place, and a dialog that is cancelled does nothing.
#pragma once

#include <string>

class QWidget;

namespace vernacle {

// Whether another design may take the place of this one: a file holds it, or its user has saved it
// now or gives it up.
bool MayGiveUpDesign(QWidget* parent);

// The defaults, as a new design.
void StartFromDefaults();

// Reads the file and makes it the open design; false, with the design as it was, if that failed.
bool OpenDesignFile(const std::string& name);

// The same by a dialog, and by the newest session, which keeps the name of its design.
bool OpenDesignByDialog(QWidget* parent, const char* title);
bool OpenSession(const std::string& session);

// Saves by a dialog; false if that failed or was cancelled.
bool SaveDesignByDialog(QWidget* parent);

} // namespace vernacle
