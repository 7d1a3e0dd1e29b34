// The system asks the program to end: by a signal, or by its session manager.
#pragma once

namespace vernacle {

// From now on SIGTERM, SIGINT and SIGHUP keep the session as the close box of the page would, and
// end the process at once: with success, or with failure where the session could not be kept. One
// that whoever started the program has told it to ignore stays ignored. A session manager that asks
// for the work to be kept gets it kept. Needs the application object.
void KeepSessionAtTheSystemsEnd();

} // namespace vernacle
