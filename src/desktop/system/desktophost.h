// What this desktop does for the engine: its host services.
#pragma once

#include "engine/base/hostservices.h"

namespace vernacle {

// Real files, the printer's port, message boxes, the beep, the sounds, and the primary screen.
// Where the program's own files stand is decided once for each host.
HostServices DesktopHost();

} // namespace vernacle
