// Sees what the user does on the pages, and makes steps of it that can be undone.
#pragma once

namespace vernacle {

// From now on. A visit to a box, by keys or by its arrows, is one step; so is a click elsewhere,
// and all that is done on a form above the page or on a page that takes no steps. Needs the
// application object.
void WatchChanges();

} // namespace vernacle
