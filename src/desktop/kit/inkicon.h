// An icon drawn in the desktop's text colour, so that it reads on light and on dark.
#pragma once

#include <QIcon>

namespace vernacle {

// The icon of that name among the program's own.
QIcon InkIcon(const char* name);

} // namespace vernacle
