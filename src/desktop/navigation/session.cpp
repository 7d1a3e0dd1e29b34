#include "desktop/navigation/session.h"

#include "desktop/kit/form.h"
#include "desktop/navigation/navigator.h"
#include "engine/designfile/readwrite.h"

namespace vernacle {

void SaveSessionAndEnd() {
    SaveLastSession(Design);
    JustEnd();
}

void JustEnd() {
    UnloadPage();
    EndProcess();
}

bool KeepSession() {
    const auto* page = qobject_cast<const Page*>(CurrentPage());
    return !page || !page->KeepsSession() || KeepLastSession(Design);
}

} // namespace vernacle
