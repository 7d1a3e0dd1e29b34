#include "platform/session.h"

#include "core/readwrite.h"
#include "platform/form.h"
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

bool KeepSession() {
    const auto* page = qobject_cast<const Page*>(CurrentPage());
    return !page || !page->KeepsSession() || KeepLastSession();
}

} // namespace vernacle
