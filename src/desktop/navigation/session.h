// The end of a session from a page's close box, or without one.
#pragma once

namespace vernacle {

// Saves the last session, unloads the page and ends the process. Where files are careful, a design
// that no file holds is asked about first.
void SaveSessionAndEnd();

// Ends it without saving.
void JustEnd();

// Keeps the session where the close box of the page that is shown would keep it, without a word and
// with nothing changed: nobody may be there to answer. False if that failed.
bool KeepSession();

} // namespace vernacle
