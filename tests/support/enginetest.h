// The fixture of the engine's tests: a fresh design, a fixed clock, a folder for real files, and a
// record of what the engine said to the user.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace vernacle::test {

using Texts = std::vector<std::string>;

constexpr const char* kLocalTime = "11/21/26 10:08:00";
constexpr const char* kIsoTime = "2026-11-21 10:08:00";

class EngineTest : public ::testing::Test {
protected:
    EngineTest();
    ~EngineTest() override;

    // A path in this test's own folder, which is the place of "Calibrate.txt", "Backup.DAT" and
    // "LASTSESSION.VRN" too.
    std::string Path(const std::string& name) const { return (folder_ / name).string(); }
    std::string WriteFile(const std::string& name,
                          const std::string& bytes) const; // gives the path
    std::string ReadFile(const std::string& name) const;
    bool Exists(const std::string& name) const { return std::filesystem::exists(Path(name)); }

    // What the engine reported, in order: "beep", "failure: ...", "information: ...", "sound: ...".
    std::vector<std::string> said;
    std::vector<std::string> reasons; // that the failures gave; empty ones too

private:
    std::filesystem::path folder_;
};

// With the design as the program starts: the opening values, then a new design's defaults.
class NewDesignTest : public EngineTest {
protected:
    NewDesignTest();
};

// The words of a text, as blanks divide them.
Texts WordsOf(const std::string& text);

} // namespace vernacle::test
