// vernacle-gallery: opens any one form by its name over a design, for looking and for tests.
#include <csignal>
#include <cstdio>

#include <QBuffer>
#include <QPixmap>

#include "commandline/options.h"
#include "desktop/app/application.h"
#include "desktop/app/forms.h"
#include "desktop/system/desktophost.h"
#include "engine/base/bytesink.h"
#include "engine/base/runtimeerror.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/designfile/readwrite.h"
#include "engine/output/calibrate.h"
#include "engine/scale/scale.h"
#include "gallery/arguments.h"
#include "gallery/dump.h"
#include "gallery/screen.h"

namespace vernacle::gallery {

namespace {

enum ExitStatus { kWrongUsage = 2 };

void Say(const std::string& text) {
    std::fputs((text + "\n").c_str(), stderr);
}

// What is shown, and what of it is written at the end.
struct Exhibit {
    std::unique_ptr<QWidget> modal; // if it is no page
    std::string shot;               // bytes of its picture
};

// Whoever takes a shot is not there to answer a box.
void AnswerFailuresByWords() {
    Host.beep = [] {};
    Host.failureBox = [](const FailureReport& report) { Say(report.text); };
    Host.informationBox = Say;
}

// What every page has ready when it opens a form. A page that repairs its design does so itself,
// and one that does not meets the same failure again.
void ComputeScales() {
    try {
        ComputeTicDeflections(Design);
        ComputeTicLabels(Design);
    } catch (const RunTimeError&) {
    }
}

// What the program has done by the time it shows the form.
void Prepare(const Arguments& arguments) {
    SetVersionAndScreenScale(Design);
    SetOpeningValues(Design);
    ReadCalibrate(Design);
    ResetDesign(Design);
    Design.ActiveScale = 1;
    if (!arguments.design.empty()) {
        Design.DesignFileName = arguments.design;
        ReadDesign(Design, arguments.design);
    }
    ComputeScales();
    Design.CurrentScale = Design.ActiveScale; // as the scales page leaves it to a setup
}

void EnableAll(QWidget& form) {
    for (auto* control : form.findChildren<QWidget*>()) {
        control->setEnabled(true);
    }
}

std::string PictureOf(QWidget& form) {
    for (int turn = 0; turn < 5; ++turn) { // a layout may ask for another
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
    }
    QBuffer bytes;
    if (!form.grab().save(&bytes, "PNG")) {
        throw std::runtime_error("the picture could not be made");
    }
    return bytes.data().toStdString();
}

// A page is walked to, any other form stands by itself.
QWidget* Show(const std::string& name, Exhibit& exhibit) {
    std::unique_ptr<QWidget> form = MakeForm(name);
    auto* dialog = qobject_cast<QDialog*>(form.get());
    if (!dialog) {
        GoToMadePage(std::move(form));
        return CurrentPage();
    }
    exhibit.modal = std::move(form);
    QObject::connect(dialog, &QDialog::finished, qApp, [] { EndProcess(); });
    dialog->show();
    return dialog;
}

void Open(const Arguments& arguments, Exhibit& exhibit) {
    Prepare(arguments);
    QWidget* form = Show(arguments.form, exhibit);
    if (arguments.enableAll) {
        EnableAll(*form);
    }
    if (!arguments.shot.empty()) {
        exhibit.shot = PictureOf(*form);
        EndProcess();
    }
}

void OpenUnattended(const Arguments& arguments, Exhibit& exhibit) {
    AnswerFailuresByWords();
    try {
        Open(arguments, exhibit);
    } catch (const std::exception& failure) {
        Say(std::string("vernacle-gallery: run-time error: ") + failure.what());
        QCoreApplication::exit(kRunTimeErrorStatus);
    }
}

void WriteBytes(const std::string& path, const std::string& bytes) {
    const auto sink = OpenFileSink(path);
    sink->Write(bytes);
    sink->Close();
}

void WriteOutputs(const Arguments& arguments, const Exhibit& exhibit) {
    if (!arguments.dump.empty()) {
        const auto atStart = std::make_unique<DesignRecord>();
        WriteBytes(arguments.dump, DumpDesign(Design, *atStart));
    }
    if (!exhibit.shot.empty()) {
        WriteBytes(arguments.shot, exhibit.shot);
    }
}

// Before there is a window: a name that is mistyped is no design.
void CheckArguments(const Arguments& arguments) {
    if (!IsFormKnown(arguments.form)) {
        std::string known;
        for (const FormRow& row : ProgramForms()) {
            known += std::string("\n  ") + row.name;
        }
        throw UsageError("there is no form \"" + arguments.form + "\", but:" + known);
    }
    if (!arguments.design.empty()) {
        ReadWholeFile(arguments.design);
    }
}

int Run(int argc, char** argv) {
    const Arguments arguments = ParseArguments(argc, argv);
    if (arguments.help) {
        std::fputs(kHelp, stdout);
        return EXIT_SUCCESS;
    }
    StoreService(arguments.workshop ? Program::Workshop : Program::Everyday);
    SetForms(ProgramForms());
    CheckArguments(arguments);
    const bool unattended = !arguments.shot.empty();
    if (unattended || arguments.sized) {
        UseScreenOf(arguments);
    }
    Application application(argc, argv);
    UseLookOf(arguments);
    Host = DesktopHost();
    Exhibit exhibit;
    const auto open = unattended ? OpenUnattended : Open;
    QMetaObject::invokeMethod(
        &application, [&] { open(arguments, exhibit); }, Qt::QueuedConnection);
    const int status = QApplication::exec();
    UnloadPage();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    WriteOutputs(arguments, exhibit);
    return status;
}

} // namespace

} // namespace vernacle::gallery

int main(int argc, char** argv) {
    std::signal(SIGXFSZ, SIG_IGN); // a file-size limit is a write that fails, not the end
    try {
        return vernacle::gallery::Run(argc, argv);
    } catch (const vernacle::UsageError& error) {
        vernacle::gallery::Say(std::string("vernacle-gallery: ") + error.what());
        return vernacle::gallery::kWrongUsage;
    } catch (const std::exception& error) {
        vernacle::gallery::Say(std::string("vernacle-gallery: ") + error.what());
        return EXIT_FAILURE;
    }
}
