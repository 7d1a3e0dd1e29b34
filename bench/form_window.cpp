// One page of the program up to its first paint: "form_window FORM [DESIGN]". For frmOpening this
// is the program's own start.
#include "desktop/app/application.h"
#include "desktop/app/forms.h"
#include "desktop/system/desktophost.h"
#include "engine/core/design.h"
#include "engine/designfile/readwrite.h"
#include "firstpaint.h"
#include "screen.h"

namespace {

using namespace vernacle;

void OpenDesign(const char* path) {
    SetVersionAndScreenScale(Design);
    SetOpeningValues(Design);
    Design.DesignFileName = path;
    ReadDesign(Design, path);
    Design.ActiveScale = 1;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        return EXIT_FAILURE;
    }
    const bench::FullHdScreen screen;
    Application application(argc, argv);
    bench::EndAtFirstPaint end;
    application.installEventFilter(&end);
    Host = DesktopHost();
    SetForms(ProgramForms());
    if (argc > 2) {
        OpenDesign(argv[2]);
    }
    QMetaObject::invokeMethod(
        &application, [argv] { GoToPage(argv[1]); }, Qt::QueuedConnection);
    return QApplication::exec();
}
