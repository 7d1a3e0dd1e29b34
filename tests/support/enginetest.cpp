#include "support/enginetest.h"

#include <clocale>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

#include "engine/base/hostservices.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/core/service.h"
#include "engine/render/drawing.h"

namespace vernacle::test {

namespace {

std::filesystem::path MakeFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "vernacle-XXXXXX").string();
    if (!mkdtemp(pattern.data())) {
        throw std::runtime_error("no temporary folder");
    }
    return pattern;
}

} // namespace

EngineTest::EngineTest() : folder_(MakeFolder()) {
    std::setlocale(LC_ALL, ""); // as a window system does: a decimal comma must not get in
    StoreService(Program::Everyday);
    Design = DesignRecord{};
    Drawing = DrawingState{};
    LastStepTrace = StepTrace{};
    Host = DefaultHost();
    const auto place = [this](const std::string& name) {
        return name == "Backup.DAT" ? Path(name) : name;
    };
    Host.readFile = [place](const std::string& name) { return ReadWholeFile(place(name)); };
    Host.openForOutput = [place](const std::string& name) { return OpenFileSink(place(name)); };
    Host.besideProgram =
        Host.newestBesideProgram = [this](const std::string& name) { return Path(name); };
    Host.calibrationToWrite = [this] { return Path("Calibrate.txt"); };
    Host.calibrationsToRead = [this] { return std::vector<std::string>{Path("Calibrate.txt")}; };
    Host.localDateTime = [] { return kLocalTime; };
    Host.isoDateTime = [] { return kIsoTime; };
    Host.beep = [this] { said.emplace_back("beep"); };
    Host.failureBox = [this](const FailureReport& report) {
        said.push_back("failure: " + report.text);
        reasons.push_back(report.reason);
    };
    Host.informationBox = [this](const std::string& text) {
        said.push_back("information: " + text);
    };
    Host.playSound = [this](const std::string& file) { said.push_back("sound: " + file); };
}

EngineTest::~EngineTest() {
    StoreService(Program::Everyday);
    Host = DefaultHost();
    std::error_code ignored;
    std::filesystem::permissions(folder_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(folder_, ignored);
}

std::string EngineTest::WriteFile(const std::string& name, const std::string& bytes) const {
    std::ofstream(Path(name), std::ios::binary) << bytes;
    return Path(name);
}

std::string EngineTest::ReadFile(const std::string& name) const {
    std::ifstream file(Path(name), std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf(); // in blocks
    return bytes.str();
}

NewDesignTest::NewDesignTest() {
    SetOpeningValues(Design);
    ResetDesign(Design);
}

Texts WordsOf(const std::string& text) {
    std::istringstream words(text);
    return {std::istream_iterator<std::string>(words), {}};
}

} // namespace vernacle::test
