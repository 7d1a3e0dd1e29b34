// The end of a session from a page's close box.
#pragma once

namespace vernacle {

// Saves the last session, unloads the page and ends the process.
void SaveSessionAndEnd();

// Ends it without saving.
void JustEnd();

} // namespace vernacle
