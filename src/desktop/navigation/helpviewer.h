// The help book "Vernacle.CHM": a window with its topics that stays beside the page.
#pragma once

#include <string>

class QWidget;

namespace vernacle {

// Opens the book at a topic ("vplate.htm"), above the page and not modal, where it covers least of
// the page. A topic that is not there is not reported.
void ShowHelp(const QWidget& page, const std::string& topic);

// The page with that topic is shown now: a book that is open turns to it, unless that was its last
// page too, and stands where it covers least of the page, unless its user has moved it.
void TurnHelpTo(const QWidget& page, const std::string& topic);

} // namespace vernacle
