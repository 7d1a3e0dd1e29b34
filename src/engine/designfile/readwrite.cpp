#include "engine/designfile/readwrite.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

#include "engine/base/codepage.h"
#include "engine/base/hostservices.h"
#include "engine/base/linereader.h"
#include "engine/base/samefile.h"
#include "engine/designfile/designlines.h"
#include "engine/designfile/formerfile.h"
#include "engine/designfile/leftout.h"
#include "engine/designfile/linedoubts.h"
#include "engine/designfile/starlines.h"

namespace vernacle {

namespace {

constexpr int kStageOpen = 407;
constexpr int kStageReset = 413;
constexpr const char* kBackup = "Backup.DAT";
constexpr const char* kLastSession = "LASTSESSION.VRN";
constexpr const char* kLastWorkshop = "LASTWORKSHOP.VRN";

// A text on its line: a line end inside it would shift all that follows.
std::string OnOneLine(std::string text) {
    const auto isLineEnd = [](char c) { return c == '\r' || c == '\n'; };
    std::replace_if(text.begin(), text.end(), isLineEnd, ' ');
    return text;
}

// Writes the lines of a design that it cannot change: what a line does to the design besides is run
// by whoever owns it, at that moment.
class DesignWriter : public FileWalker {
public:
    using RunStep = std::function<void(WritingStep step, LinePlace place)>;

    DesignWriter(const DesignRecord& design, std::string& text, RunStep run)
        : FileWalker(design), design_(design), text_(text), run_(std::move(run)) {}

private:
    void Visit(const FileLine& line, LinePlace place) override {
        if (!line.label) {
            return;
        }
        if (line.beforeWriting) {
            run_(line.beforeWriting, place);
        }
        const ConstFieldPointer field = line.place.In(design_, place.outer, place.inner);
        text_ += LabelOf(line, place.outer) + OnOneLine(line.write({design_, field, place}));
        text_ += kLineEnd;
        if (line.afterWriting) {
            run_(line.afterWriting, place);
        }
    }

    const DesignRecord& design_;
    std::string& text_;
    RunStep run_;
};

void Report(const LineReport& report, int line, const RunTimeError& error) {
    if (report) {
        report(line, error.what());
    }
}

// The file ended where a line was wanted: what an older program wrote ends early, at a section's
// boundary or anywhere else, and is read as far as it goes.
struct EndOfDesign {};

class DesignReader : public FileWalker {
public:
    DesignReader(DesignRecord& design, std::string text, const ServiceState& service, int& stage,
                 const ReadReports& reports)
        : FileWalker(design),
          design_(design),
          lines_(std::move(text)),
          service_(service),
          stage_(stage),
          reports_(reports) {}

    void Read() {
        try {
            Walk();
        } catch (const EndOfDesign&) {
            // All that was not reached keeps its default.
        } catch (const RunTimeError& error) {
            doubts_.End();
            Report(reports_.failure, lines_.LineNumber(), error);
            throw;
        }
        doubts_.End();
    }

private:
    void Visit(const FileLine& line, LinePlace place) override {
        stage_ = line.stage;
        if (line.read) {
            const std::string_view item = NextItem();
            doubts_.Consider(line, place, item, lines_);
            std::string value(LineReader::ValueOf(item));
            const FieldPointer field = line.place.In(design_, place.outer, place.inner);
            line.read(value, {design_, field, place});
        }
        if (line.afterReading.IsDue(service_)) {
            line.afterReading.take(design_);
        }
    }

    std::string_view NextItem() {
        try {
            return lines_.NextItem();
        } catch (const FileFailure&) {
            throw EndOfDesign{};
        }
    }

    DesignRecord& design_;
    LineReader lines_;
    const ServiceState& service_;
    int& stage_;
    const ReadReports& reports_;
    LineDoubts doubts_{reports_.doubt};
};

std::string ReadBytes(const std::string& name, const ReadReports& reports) {
    try {
        return Host.readFile(name);
    } catch (const RunTimeError& error) {
        Report(reports.failure, 0, error);
        throw;
    }
}

// The lines of a design would be read as the printer's factors, and every later plate come out at
// another size. The name may lead there by accident: a calibration leaves it to the design.
void RefuseCalibration(const std::string& name) {
    std::vector<std::string> files = Host.calibrationsToRead();
    files.push_back(Host.calibrationToWrite());
    for (const std::string& file : files) {
        if (IsSameFile(name, file)) {
            throw FileFailure(name + ": the printer's calibration");
        }
    }
}

// Each program has a session of its own.
const char* SessionName() {
    return Service.carefulFiles ? kLastWorkshop : kLastSession;
}

// The text is opened first and filled then, so that a failure on the way leaves the file as far as
// it got.
void WriteDesignFile(DesignRecord& design) {
    const auto sink = Host.openForOutput(design.DesignFileName);
    std::string text;
    const auto run = [&design](WritingStep step, LinePlace place) { step(design, place); };
    try {
        DesignWriter(design, text, run).Walk();
    } catch (const RunTimeError&) {
        sink->Write(ToFileBytes(text));
        throw;
    }
    text += kLineEnd;
    sink->Write(ToFileBytes(text));
    sink->Close();
}

// Everything is made before a file is touched, and of a copy: writing leaves the design as it is.
void WriteCarefully(const DesignRecord& design, const std::string& name) {
    const std::string bytes = ToFileBytes(DesignText(design));
    KeepEverydayFile(name);
    const auto sink = Host.openForOutput(name);
    sink->Write(bytes);
    sink->Close();
}

// What a text's lines say by their places, over the defaults.
void ReadPositions(DesignRecord& design, const std::string& text, int& stage,
                   const ReadReports& reports) {
    ResetDesign(design);
    DesignReader(design, text, Service, stage, reports).Read();
}

// Careful reading leaves the design that was there until all has been read.
void ReadInto(DesignRecord& design, const std::string& text, int& stage,
              const ReadReports& reports) {
    if (!Service.carefulFiles) {
        ReadPositions(design, text, stage, reports);
        return;
    }
    const auto fresh = std::make_unique<DesignRecord>(design);
    ReadPositions(*fresh, text, stage, reports);
    TakeStarLines(*fresh, text);
    design = *fresh;
}

// Gives the reason where it failed.
std::optional<std::string> TryToWrite(DesignRecord& design, const std::string& name) {
    try {
        RefuseCalibration(name);
        if (Service.carefulFiles) {
            WriteCarefully(design, name);
        } else {
            WriteDesignFile(design);
        }
        return std::nullopt;
    } catch (const RunTimeError& error) {
        return error.what();
    }
}

} // namespace

std::string DesignText(const DesignRecord& design) {
    const auto copy = std::make_unique<DesignRecord>(design);
    for (int scale = 0; scale <= kLastScale; ++scale) {
        // A longer number would be passed over, and with it what kind of lines follow.
        copy->ScaleColor[scale] = std::clamp(copy->ScaleColor[scale], -kWhite, kWhite);
    }
    std::string text;
    const auto run = [&copy](WritingStep step, LinePlace place) { step(*copy, place); };
    DesignWriter(*copy, text, run).Walk();
    text += kLineEnd;
    const auto readBack = std::make_unique<DesignRecord>(design);
    int stage = kStageReset;
    ReadPositions(*readBack, text, stage, {});
    return text + StarLines(design, *readBack);
}

std::vector<std::string> LeftOutOf(const std::string& bytes) {
    const auto design = std::make_unique<DesignRecord>();
    SetOpeningValues(*design);
    ResetDesign(*design);
    try {
        const std::string text = FromFileBytes(bytes);
        int stage = kStageReset;
        DesignReader(*design, text, ServiceOf(Program::Workshop), stage, {}).Read();
        TakeStarLines(*design, text);
    } catch (const RunTimeError&) {
        return {}; // whoever reads it says so
    }
    return WhatEverydayLeavesOut(*design);
}

void ReadDesignText(DesignRecord& design, const std::string& text) {
    int stage = kStageReset;
    ReadInto(design, text, stage, {});
}

namespace {

bool WriteDesignTo(DesignRecord& design, const std::string& name) {
    const auto failure = TryToWrite(design, name);
    if (failure) {
        ReportFailure({"The Vernacle file was not written correctly.\nReadWrite 364",
                       Service.carefulFiles ? *failure : std::string()});
    }
    return !failure;
}

} // namespace

bool WriteDesign(DesignRecord& design) {
    return WriteDesignTo(design, design.DesignFileName);
}

void SaveDesign(DesignRecord& design, const std::string& name) {
    if (!name.empty()) {
        WriteDesign(design);
    }
}

void RestoreBackup(DesignRecord& design) {
    ReadDesign(design, kBackup);
}

void BackupDesign(DesignRecord& design) {
    design.DesignFileName = kBackup;
    WriteDesign(design);
    design.DesignFileName.clear();
}

std::string LastSessionName() {
    return Host.newestBesideProgram(SessionName());
}

std::vector<std::string> KeptSessionNames() {
    return Host.keptSessions(SessionName());
}

// A careful session goes on telling the name of the design that it is of.
bool SaveLastSession(DesignRecord& design) {
    const std::string session = Host.besideProgram(SessionName());
    if (!Service.carefulFiles) {
        design.DesignFileName = session;
    }
    return WriteDesignTo(design, session);
}

bool KeepLastSession(const DesignRecord& design) {
    const auto copy = std::make_unique<DesignRecord>(design);
    const std::string session = Host.besideProgram(SessionName());
    if (!Service.carefulFiles) {
        copy->DesignFileName = session;
    }
    return !TryToWrite(*copy, session);
}

std::string DesignNameIn(const std::string& bytes) {
    LineReader lines(FromFileBytes(bytes));
    try {
        const std::string_view name = lines.NextValue();
        return std::string(name.substr(std::min<std::size_t>(name.size(), 1))); // behind a blank
    } catch (const FileFailure&) {
        return {};
    }
}

bool ReadDesign(DesignRecord& design, const std::string& name, const ReadReports& reports) {
    if (name.empty()) {
        return false;
    }
    int stage = kStageOpen;
    try {
        const std::string text = FromFileBytes(ReadBytes(name, reports));
        stage = kStageReset;
        ReadInto(design, text, stage, reports);
        return true;
    } catch (const RunTimeError& error) {
        if (Service.carefulFiles) {
            ReportFailure({"We were not successful in reading that Vernacle file.\n"
                           "The design stays as it was.\n\nReadWrite " +
                               std::to_string(stage),
                           error.what()});
            return false;
        }
        ResetDesign(design);
        ReportFailure("We were not successful in reading that Vernacle file.\n"
                      "Default values for all items have been put in place.\n\nReadWrite " +
                      std::to_string(stage));
        return false;
    }
}

} // namespace vernacle
