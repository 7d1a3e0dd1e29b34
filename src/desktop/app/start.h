// What every program with pages does from its first line to its last.
#pragma once

#include "engine/core/service.h"

namespace vernacle {

// Runs the program with that state in service; gives the status that the process ends with.
int RunProgram(int argc, char** argv, Program program);

} // namespace vernacle
