#include "desktop/app/start.h"

#include <csignal>
#include <cstdio>

#include <QCommandLineParser>
#include <QFileInfo>

#include "desktop/app/application.h"
#include "desktop/app/endsignals.h"
#include "desktop/app/forms.h"
#include "desktop/navigation/changewatch.h"
#include "desktop/navigation/opendocument.h"
#include "desktop/pages/carefuldesign.h"
#include "desktop/system/desktophost.h"
#include "desktop/system/onecopy.h"
#include "engine/core/design.h"

namespace vernacle {

namespace {

constexpr int kWrongUsage = 2;

// The everyday program takes none.
std::string FileToOpen() {
    if (!Service.carefulFiles) {
        return {};
    }
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Draws true-size scale plates for analog panel meters."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("The design to open."),
                                 QStringLiteral("[FILE]"));
    const bool isRight = parser.parse(QCoreApplication::arguments());
    if (isRight && parser.isSet(help)) {
        parser.showHelp();
    }
    if (isRight && parser.isSet(version)) {
        parser.showVersion();
    }
    const QStringList files = parser.positionalArguments();
    if (!isRight || files.size() > 1) {
        const QString fault =
            isRight ? QStringLiteral("One design at a time, please.") : parser.errorText();
        std::fprintf(stderr, "vernacle-workshop: %s\n", fault.toLocal8Bit().constData());
        std::exit(kWrongUsage);
    }
    return files.isEmpty() ? std::string() : QFileInfo(files[0]).absoluteFilePath().toStdString();
}

} // namespace

void ShowFirstPage(const std::string& file) {
    GoToPage("frmOpening");
    if (Service.carefulFiles) {
        TellOfOtherCopy();
    }
    if (!file.empty() && OpenDesignFile(file)) {
        GoToPage("frmPreview");
        Document().Absorb();
    }
}

int RunProgram(int argc, char** argv, Program program) {
    StoreService(program);
    std::signal(SIGXFSZ, SIG_IGN); // a file-size limit is a write that fails, not the end
    Application application(argc, argv);
    const std::string file = FileToOpen();
    Host = DesktopHost();
    SetForms(ProgramForms());
    KeepSessionAtTheSystemsEnd();
    if (Service.carefulFiles) {
        WatchChanges();
    }
    // From inside the event loop, where failures have their handler.
    QMetaObject::invokeMethod(
        &application, [file] { ShowFirstPage(file); }, Qt::QueuedConnection);
    return QApplication::exec();
}

} // namespace vernacle
