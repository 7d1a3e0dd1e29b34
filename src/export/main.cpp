// vernacle-export: the engine without a window, for plates made by script.
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include <QGuiApplication>

#include "core/design.h"
#include "core/readwrite.h"
#include "core/seam.h"
#include "export/arguments.h"
#include "export/outputs.h"
#include "render/calibrate.h"

namespace vernacle {

namespace {

enum ExitStatus { kAllWritten = 0, kFileFailed = 1, kWrongUsage = 2 };

constexpr float kTwipsPerPixel = 15;

void Say(const std::string& text) {
    std::fputs((text + "\n").c_str(), stderr);
}

// The toolkit's remarks on the desktop that is not there would drown our own messages.
void SayOnlyWhatIsSerious(QtMsgType type, const QMessageLogContext& /*context*/,
                          const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        Say(text.toStdString());
    }
}

// What became of the output that is being written.
struct Progress {
    bool failed = false;
    bool opened = false;
};

void SetHost(const Arguments& arguments, Progress& progress) {
    Host.screenSize = [&arguments] {
        return ScreenSize{static_cast<float>(arguments.widthPixels) * kTwipsPerPixel,
                          static_cast<float>(arguments.heightPixels) * kTwipsPerPixel};
    };
    if (!arguments.at.empty()) {
        Host.localDateTime = Host.isoDateTime = [&arguments] { return arguments.at; };
        setenv("TZ", "UTC0", 1); // so that the zone in a PDF's date is always the same
    }
    Host.failureBox = [&progress](const std::string& text) {
        progress.failed = true;
        Say(text);
    };
    Host.readFile = ReadFileOrInput;
    Host.openForOutput = [&progress](const std::string& path) {
        auto sink = OpenFileSink(path);
        progress.opened = true;
        return sink;
    };
}

// Removes what was begun and not finished; a device or a link is not ours to remove.
void RemoveUnfinished(const std::string& path) {
    std::error_code ignored;
    if (std::filesystem::is_regular_file(std::filesystem::symlink_status(path, ignored))) {
        std::filesystem::remove(path, ignored);
    }
}

bool WriteOne(const std::string& path, const Arguments& arguments, Progress& progress) {
    const OutputForm& form = *FindForm(path);
    progress = Progress{};
    try {
        if (form.wantsTables) {
            MakeReady();
        }
        form.write(path, arguments);
    } catch (const RunTimeError& error) {
        if (!progress.failed) { // else it has been reported on the way
            Say(error.what());
        }
        progress.failed = true;
    }
    if (progress.failed) {
        Say("vernacle-export: " + path + " was not written");
        if (progress.opened) {
            RemoveUnfinished(path);
        }
    }
    return !progress.failed;
}

bool ReadInputs(const Arguments& arguments, const Progress& progress) {
    Design.CalibrationX = Design.CalibrationY = 1;
    if (arguments.calibration) {
        ReadCalibration(*arguments.calibration);
    }
    Design.DesignFileName = arguments.design;
    ReadDesign(arguments.design);
    return !progress.failed;
}

int Export(const Arguments& arguments) {
    Progress progress;
    SetHost(arguments, progress);
    SetVersionAndScreenScale();
    SetOpeningValues();
    if (!ReadInputs(arguments, progress)) {
        return kFileFailed;
    }
    const auto asRead = std::make_unique<DesignRecord>(Design);
    bool allWritten = true;
    for (const std::string& path : arguments.outputs) {
        Design = *asRead;
        allWritten = WriteOne(path, arguments, progress) && allWritten;
    }
    return allWritten ? kAllWritten : kFileFailed;
}

void CheckEndings(const Arguments& arguments) {
    for (const std::string& path : arguments.outputs) {
        if (!FindForm(path)) {
            throw UsageError("\"" + path + "\" has no ending that is known; see --help");
        }
    }
}

bool WantsFonts(const Arguments& arguments) {
    return std::any_of(arguments.outputs.begin(), arguments.outputs.end(),
                       [](const std::string& path) { return FindForm(path)->wantsFonts; });
}

int Run(int argc, char** argv) {
    const Arguments arguments = ParseArguments(argc, argv);
    if (arguments.help) {
        std::fputs(kHelp, stdout);
        return kAllWritten;
    }
    if (arguments.version) {
        std::puts("vernacle-export " VERNACLE_VERSION);
        return kAllWritten;
    }
    CheckEndings(arguments);
    std::unique_ptr<QGuiApplication> application; // fonts need one, files do not
    if (WantsFonts(arguments)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler(SayOnlyWhatIsSerious);
        int one = 1;
        application = std::make_unique<QGuiApplication>(one, argv);
    }
    return Export(arguments);
}

} // namespace

} // namespace vernacle

int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");    // dates and the system's reasons; numbers never ask it
    std::signal(SIGXFSZ, SIG_IGN); // a file-size limit is a write that fails, not the end
    try {
        return vernacle::Run(argc, argv);
    } catch (const vernacle::UsageError& error) {
        vernacle::Say(std::string("vernacle-export: ") + error.what());
        return vernacle::kWrongUsage;
    } catch (const std::exception& error) {
        vernacle::Say(std::string("vernacle-export: ") + error.what());
        return vernacle::kFileFailed;
    }
}
