#include "platform/session.h"

#include "core/readwrite.h"
#include "platform/walk.h"

namespace vernacle {

void SaveSessionAndEnd() {
    SaveLastSession();
    JustEnd();
}

void JustEnd() {
    UnloadPage();
    EndProcess();
}

} // namespace vernacle
