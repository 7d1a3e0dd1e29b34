// vernacle-export: the engine without a window, for plates made by script.
#include <algorithm>
#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <new>

#include <fcntl.h>
#include <unistd.h>

#include <QGuiApplication>

#include "engine/base/hostservices.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/designfile/readwrite.h"
#include "engine/output/calibrate.h"
#include "export/arguments.h"
#include "export/outputs.h"
#include "files/outputfile.h"
#include "surfaces/typeface.h"

namespace vernacle::exporter {

namespace {

enum ExitStatus { kAllWritten = 0, kFileFailed = 1, kWrongUsage = 2 };

constexpr const char* kProgram = "vernacle-export: ";
constexpr const char* kNoMemory = "not enough memory";

void Say(const std::string& text) {
    std::fputs((text + "\n").c_str(), stderr);
}

// The toolkit's remarks on the desktop that is not there would drown our own messages. What is
// fatal to it, a platform's plugin that is missing say, would end in an abort.
void SayOnlyWhatIsSerious(QtMsgType type, const QMessageLogContext& /*context*/,
                          const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        Say(kProgram + text.toStdString());
    }
    if (type == QtFatalMsg) {
        std::_Exit(kFileFailed);
    }
}

// What became of the inputs and of the output that is being written.
struct Progress {
    bool failed = false;
    bool doubted = false;
    std::string lastRead; // bytes of the last file: a pipe cannot be read again
    std::string reason;   // the system's, of a file that could not be written
};

// A sink whose failure is known by its reason; the engine's own writers say only that there was
// one.
class NotingSink : public ByteSink {
public:
    NotingSink(std::unique_ptr<ByteSink> sink, Progress& progress)
        : sink_(std::move(sink)), progress_(progress) {}
    void Write(std::string_view bytes) override {
        Note(progress_, [&] { sink_->Write(bytes); });
    }
    void Close() override {
        Note(progress_, [&] { sink_->Close(); });
    }

    template <typename Do>
    static void Note(Progress& progress, Do act) {
        try {
            act();
        } catch (const FileFailure& failure) {
            progress.reason = failure.what();
            throw;
        }
    }

private:
    std::unique_ptr<ByteSink> sink_;
    Progress& progress_;
};

std::unique_ptr<ByteSink> OpenNoting(const std::string& path, Progress& progress) {
    std::unique_ptr<ByteSink> sink;
    NotingSink::Note(progress, [&] { sink = OpenOutputFile(path); });
    return std::make_unique<NotingSink>(std::move(sink), progress);
}

void SetHost(const Arguments& arguments, Progress& progress) {
    Host.screenSize = [&arguments] {
        return ScreenSize{static_cast<float>(arguments.widthPixels * kTwipsPerPixel),
                          static_cast<float>(arguments.heightPixels * kTwipsPerPixel)};
    };
    if (!arguments.at.empty()) {
        Host.localDateTime = Host.isoDateTime = [&arguments] { return arguments.at; };
        setenv("TZ", "UTC0", 1); // so that the zone in a PDF's date is always the same
    }
    Host.failureBox = [&progress](const FailureReport& report) {
        progress.failed = true;
        progress.reason = progress.reason.empty() ? report.reason : progress.reason;
        Say(report.text);
    };
    Host.readFile = [&progress](const std::string& path) {
        return progress.lastRead = ReadFileOrInput(path);
    };
    Host.openForOutput = [&progress](const std::string& path) {
        return OpenNoting(path, progress);
    };
}

// Has the output written; what is thrown on the way becomes the reason.
void Attempt(const OutputForm& form, DesignRecord& design, const std::string& path,
             const Arguments& arguments, Progress& progress) {
    try {
        if (form.wantsTables) {
            MakeReady(design);
        }
        form.write(design, path, arguments);
        return;
    } catch (const RunTimeError& error) {
        if (!progress.failed) { // else it has been reported on the way
            progress.reason = error.what();
        }
    } catch (const std::bad_alloc&) {
        progress.reason = kNoMemory;
    }
    progress.failed = true;
}

bool WriteOne(const DesignRecord& asRead, const std::string& path, const Arguments& arguments,
              Progress& progress) {
    progress = Progress{};
    const auto design = std::make_unique<DesignRecord>(asRead);
    Attempt(*FindForm(path), *design, path, arguments, progress);
    if (progress.failed) {
        const std::string named = path + ": "; // by a failure of the file itself
        std::string& reason = progress.reason;
        reason.erase(0, reason.starts_with(named) ? named.size() : 0);
        Say(kProgram + path + " was not written" + (reason.empty() ? "" : ": " + reason));
    }
    return !progress.failed;
}

LineReport SayingFor(const std::string& file, bool& happened) {
    return [&file, &happened](int line, const std::string& reason) {
        happened = true;
        // A file without any line names itself in the reason.
        Say(kProgram + (line > 0 ? file + ":" + std::to_string(line) + ": " : "") + reason);
    };
}

// No doubt about what is read: a word for whoever wonders where it has gone.
void SayWhatIsLeftOut(const std::string& design, const std::string& bytes) {
    std::string list;
    for (const std::string& words : LeftOutOf(bytes)) {
        list += (list.empty() ? "" : ", ") + words;
    }
    if (!list.empty()) {
        Say(kProgram + design + ": left out without --workshop: " + list);
    }
}

bool ReadInputs(DesignRecord& design, const Arguments& arguments, Progress& progress) {
    design.CalibrationX = design.CalibrationY = 1;
    if (arguments.calibration) {
        ReadCalibration(design, *arguments.calibration,
                        SayingFor(*arguments.calibration, progress.doubted));
    }
    design.DesignFileName = arguments.design;
    ReadDesign(design, arguments.design,
               {.doubt = SayingFor(arguments.design, progress.doubted),
                .failure = SayingFor(arguments.design, progress.failed)});
    if (!arguments.workshop && !progress.failed) {
        SayWhatIsLeftOut(arguments.design, progress.lastRead);
    }
    if (progress.doubted && arguments.strict && !progress.failed) {
        Say(std::string(kProgram) + "nothing was written");
        return false;
    }
    return !progress.failed;
}

int Export(const Arguments& arguments) {
    Progress progress;
    SetHost(arguments, progress);
    const auto design = std::make_unique<DesignRecord>();
    SetVersionAndScreenScale(*design);
    SetOpeningValues(*design);
    if (!ReadInputs(*design, arguments, progress)) {
        return kFileFailed;
    }
    bool allWritten = true;
    for (const std::string& path : arguments.outputs) {
        allWritten = WriteOne(*design, path, arguments, progress) && allWritten;
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

// A design that is written over is lost: a shell's *.VRN must not do that.
void CheckDesignsStay(const Arguments& arguments) {
    std::error_code ignored;
    for (const std::string& path : arguments.outputs) {
        if (FindForm(path)->isDesign && std::filesystem::is_regular_file(path, ignored) &&
            !arguments.force) {
            throw UsageError("\"" + path + "\" exists; --force writes over it");
        }
    }
}

bool WantsFonts(const Arguments& arguments) {
    return std::any_of(arguments.outputs.begin(), arguments.outputs.end(),
                       [](const std::string& path) { return FindForm(path)->wantsFonts; });
}

std::unique_ptr<QGuiApplication> MakeApplication(char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(SayOnlyWhatIsSerious);
    int one = 1;
    auto application = std::make_unique<QGuiApplication>(one, argv);
    if (!HasFonts()) {
        throw RunTimeError("no font was found; the plate would have no labels and no title");
    }
    return application;
}

int Print(const char* text) {
    if (std::fputs(text, stdout) < 0 || std::fflush(stdout) != 0) {
        throw FileFailure(std::string("standard output: ") + std::strerror(errno));
    }
    return kAllWritten;
}

int Run(int argc, char** argv) {
    const Arguments arguments = ParseArguments(argc, argv);
    if (arguments.help) {
        return Print(kHelp);
    }
    if (arguments.version) {
        return Print("vernacle-export " VERNACLE_VERSION "\n");
    }
    StoreService(arguments.workshop ? Program::Workshop : Program::Everyday);
    CheckEndings(arguments);
    CheckDesignsStay(arguments);
    std::unique_ptr<QGuiApplication> application; // fonts need one, files do not
    if (WantsFonts(arguments)) {
        application = MakeApplication(argv);
    }
    return Export(arguments);
}

// What is opened must not take the place of an output that the caller has closed: messages would be
// written into a plate.
void HoldStandardFiles() {
    int file = 0;
    while (file >= 0 && file <= STDERR_FILENO) {
        file = open("/dev/null", O_RDONLY);
    }
    if (file >= 0) {
        close(file);
    }
}

} // namespace

} // namespace vernacle::exporter

int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");    // dates and the system's reasons; numbers never ask it
    std::signal(SIGXFSZ, SIG_IGN); // a file-size limit is a write that fails, not the end
    std::signal(SIGPIPE, SIG_IGN); // and so is a reader that has gone
    vernacle::exporter::HoldStandardFiles();
    try {
        return vernacle::exporter::Run(argc, argv);
    } catch (const vernacle::UsageError& error) {
        vernacle::exporter::Say(std::string(vernacle::exporter::kProgram) + error.what());
        return vernacle::exporter::kWrongUsage;
    } catch (const std::bad_alloc&) {
        vernacle::exporter::Say(std::string(vernacle::exporter::kProgram) +
                                vernacle::exporter::kNoMemory);
        return vernacle::exporter::kFileFailed;
    } catch (const std::exception& error) {
        vernacle::exporter::Say(std::string(vernacle::exporter::kProgram) + error.what());
        return vernacle::exporter::kFileFailed;
    }
}
