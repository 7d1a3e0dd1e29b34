// The sounds that travel inside the program.
#pragma once

#include <string>

namespace vernacle {

// Starts the sound of that file name ("warningprinter.wav") and returns at once. Without the
// toolkit's multimedia module, or for a sound that is not there, nothing is heard.
void PlaySound(const std::string& file);

} // namespace vernacle
