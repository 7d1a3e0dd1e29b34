#include "engine/designfile/readwrite.h"

#include <algorithm>
#include <memory>
#include <string_view>

#include "engine/base/codepage.h"
#include "engine/base/hostservices.h"
#include "engine/base/linereader.h"
#include "engine/base/samefile.h"
#include "engine/core/design.h"
#include "engine/designfile/designlines.h"
#include "engine/designfile/linedoubts.h"

namespace vernacle {

namespace {

constexpr int kStageOpen = 407;
constexpr int kStageReset = 413;
constexpr const char* kBackup = "Backup.DAT";
constexpr const char* kLastSession = "LASTSESSION.VRN";

// A text on its line: a line end inside it would shift all that follows.
std::string OnOneLine(std::string text) {
    const auto isLineEnd = [](char c) { return c == '\r' || c == '\n'; };
    std::replace_if(text.begin(), text.end(), isLineEnd, ' ');
    return text;
}

class DesignWriter : public FileWalker {
public:
    explicit DesignWriter(std::string& text) : text_(text) {}

private:
    void Visit(const FileLine& line, LinePlace place) override {
        if (!line.label) {
            return;
        }
        if (line.beforeWriting) {
            line.beforeWriting(Design);
        }
        const FieldPointer field = line.place.In(Design, place.outer, place.inner);
        text_ += LabelOf(line, place.outer) + OnOneLine(line.write(field, place));
        text_ += kLineEnd;
        if (line.afterWriting) {
            line.afterWriting(Design);
        }
    }

    std::string& text_;
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
    DesignReader(std::string text, int& stage, const ReadReports& reports)
        : lines_(std::move(text)), stage_(stage), reports_(reports) {}

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
            line.read(value, line.place.In(Design, place.outer, place.inner), place);
        }
        if (line.afterReading) {
            line.afterReading(Design);
        }
    }

    std::string_view NextItem() {
        try {
            return lines_.NextItem();
        } catch (const FileFailure&) {
            throw EndOfDesign{};
        }
    }

    LineReader lines_;
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

// The text is opened first and filled then, so that a failure on the way leaves the file as far as
// it got.
void WriteDesignFile(const std::string& name) {
    const auto sink = Host.openForOutput(name);
    std::string text;
    try {
        DesignWriter(text).Walk();
    } catch (const RunTimeError&) {
        sink->Write(ToFileBytes(text));
        throw;
    }
    text += kLineEnd;
    sink->Write(ToFileBytes(text));
    sink->Close();
}

bool TryToWrite(const std::string& name) {
    try {
        RefuseCalibration(name);
        WriteDesignFile(name);
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

} // namespace

bool WriteDesign() {
    const bool written = TryToWrite(Design.DesignFileName);
    if (!written) {
        ReportFailure("The Vernacle file was not written correctly.\nReadWrite 364");
    }
    return written;
}

void SaveDesign(const std::string& name) {
    if (!name.empty()) {
        WriteDesign();
    }
}

void RestoreBackup() {
    ReadDesign(kBackup);
}

void BackupDesign() {
    Design.DesignFileName = kBackup;
    WriteDesign();
    Design.DesignFileName.clear();
}

std::string LastSessionName() {
    return Host.newestBesideProgram(kLastSession);
}

bool SaveLastSession() {
    Design.DesignFileName = Host.besideProgram(kLastSession);
    return WriteDesign();
}

bool KeepLastSession() {
    const auto inHand = std::make_unique<DesignRecord>(Design);
    Design.DesignFileName = Host.besideProgram(kLastSession);
    const bool kept = TryToWrite(Design.DesignFileName);
    Design = *inHand;
    return kept;
}

void ReadDesign(const std::string& name, const ReadReports& reports) {
    if (name.empty()) {
        return;
    }
    int stage = kStageOpen;
    try {
        const std::string bytes = ReadBytes(name, reports);
        stage = kStageReset;
        ResetDesign(Design);
        DesignReader(FromFileBytes(bytes), stage, reports).Read();
    } catch (const RunTimeError&) {
        ResetDesign(Design);
        ReportFailure("We were not successful in reading that Vernacle file.\n"
                      "Default values for all items have been put in place.\n\nReadWrite " +
                      std::to_string(stage));
    }
}

} // namespace vernacle
