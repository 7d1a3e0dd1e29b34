// Message boxes, and the beep.
#pragma once

#include <string>

#include "engine/base/hostservices.h"

namespace vernacle {

// The reason stands apart, below the text.
void ShowFailure(const FailureReport& report);
void ShowInformation(const std::string& text);

// A box that can be cancelled; whether it was not.
bool AskToGoOn(const std::string& text);

// The box of a failure that no routine traps: the program ends behind it.
void ShowRunTimeError(const std::string& text);

enum class Leaving { Save, Discard, Stay };

// Asks what becomes of the changes that no file holds; a box that is closed stays.
Leaving AskAboutChanges(const std::string& text);

void Beep();

} // namespace vernacle
