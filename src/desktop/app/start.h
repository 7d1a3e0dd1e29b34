// What every program with pages does from its first line to its last.
#pragma once

#include <string>

#include "engine/core/service.h"

namespace vernacle {

// Runs the program with that state in service; gives the status that the process ends with. Where
// files are careful, a file among the arguments is opened.
int RunProgram(int argc, char** argv, Program program);

// The first page: the preview of that file's design, or the opening page where there is none or it
// cannot be read.
void ShowFirstPage(const std::string& file);

} // namespace vernacle
