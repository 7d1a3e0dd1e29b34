// The help book "Vernacle.CHM": a window with its topics that stays beside the page.
#pragma once

#include <string>

class QWidget;

namespace vernacle {

// Opens the book at a topic ("vplate.htm"), above the page and not modal. A topic that is not there
// is not reported.
void ShowHelp(const QWidget& page, const std::string& topic);

} // namespace vernacle
