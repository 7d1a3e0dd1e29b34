#include "desktop/app/start.h"

#include <csignal>

#include "desktop/app/application.h"
#include "desktop/app/endsignals.h"
#include "desktop/app/forms.h"
#include "desktop/system/desktophost.h"

namespace vernacle {

int RunProgram(int argc, char** argv, Program program) {
    StoreService(program);
    std::signal(SIGXFSZ, SIG_IGN); // a file-size limit is a write that fails, not the end
    Application application(argc, argv);
    Host = DesktopHost();
    SetForms(ProgramForms());
    KeepSessionAtTheSystemsEnd();
    // From inside the event loop, where failures have their handler.
    QMetaObject::invokeMethod(
        &application, [] { GoToPage("frmOpening"); }, Qt::QueuedConnection);
    return QApplication::exec();
}

} // namespace vernacle
