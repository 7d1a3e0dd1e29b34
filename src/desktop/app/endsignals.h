// The system asks the program to end: by a signal, or by its session manager.
#pragma once

namespace vernacle {

// From now on SIGTERM, SIGINT, SIGHUP and the desktop's wish to quit keep the session as the close
// box of the page would, and end the process at once: with success, or with failure where the
// session could not be kept. A signal that whoever started the program has told it to ignore stays
// ignored. A session manager that asks for the work to be kept gets it kept, and the program goes
// on: its checkpoints ask so too. Needs the application object.
void KeepSessionAtTheSystemsEnd();

} // namespace vernacle
