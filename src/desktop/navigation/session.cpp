#include "desktop/navigation/session.h"

#include "desktop/kit/form.h"
#include "desktop/navigation/navigator.h"
#include "desktop/navigation/opendocument.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/designfile/readwrite.h"

namespace vernacle {

namespace {

// What a page keeps apart belongs to the session too.
void StoreEntriesOfPage() {
    if (auto* page = qobject_cast<Page*>(CurrentPage())) {
        page->StoreEntries();
    }
}

} // namespace

void SaveSessionAndEnd() {
    if (Service.carefulFiles) {
        StoreEntriesOfPage();
        Document().Commit();
        if (!Document().IsKept()) {
            ShowModal("frmExit");
            return;
        }
    }
    SaveLastSession(Design);
    JustEnd();
}

void JustEnd() {
    UnloadPage();
    EndProcess();
}

bool KeepSession() {
    if (Service.carefulFiles) {
        StoreEntriesOfPage();
        Document().Commit();
        const bool isEmpty = !Document().Steps().CanUndo() && Document().IsKept() &&
                             Design.DesignFileName.empty(); // as the program starts
        return isEmpty || KeepLastSession(Design);
    }
    const auto* page = qobject_cast<const Page*>(CurrentPage());
    return !page || !page->KeepsSession() || KeepLastSession(Design);
}

} // namespace vernacle
