// One page of a program up to its first paint: "form_window [--workshop] FORM [DESIGN]". For
// frmOpening this is the program's own start.
#include <string_view>

#include "desktop/app/application.h"
#include "desktop/app/forms.h"
#include "desktop/navigation/changewatch.h"
#include "desktop/system/desktophost.h"
#include "desktop/system/onecopy.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
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
    if (argc > 1 && std::string_view(argv[1]) == "--workshop") {
        StoreService(Program::Workshop);
        ++argv;
        --argc;
    }
    if (argc < 2) {
        return EXIT_FAILURE;
    }
    const bench::FullHdScreen screen;
    Application application(argc, argv);
    bench::EndAtFirstPaint end;
    application.installEventFilter(&end);
    Host = DesktopHost();
    SetForms(ProgramForms());
    if (Service.carefulFiles) {
        WatchChanges();
        TellOfOtherCopy();
    }
    if (argc > 2) {
        OpenDesign(argv[2]);
    }
    QMetaObject::invokeMethod(
        &application, [argv] { GoToPage(argv[1]); }, Qt::QueuedConnection);
    return QApplication::exec();
}
