// The engine's seam to this desktop.
#pragma once

#include "core/seam.h"

namespace vernacle {

// Real files, the printer's port, message boxes, the beep, the sounds, and the primary screen.
HostSeam DesktopHost();

} // namespace vernacle
