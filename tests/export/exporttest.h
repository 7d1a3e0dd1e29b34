// The fixture of the exporter's tests: runs the real program in a folder of its own.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "support/enginetest.h"
#include "support/process.h"

namespace vernacle::test {

// Every ending that has a form of its own.
constexpr const char* kEndings[] = {".hpgl", ".pcl", ".pdf", ".svg", ".png", ".vrn", ".csv"};

constexpr const char* kAt = "2026-01-02 03:04:05";

using Words = std::vector<std::string>;

// A line of a design file by its label, and what shall stand behind that.
using Edit = std::pair<std::string, std::string>;
using Edits = std::vector<Edit>;

Words Joined(Words first, const Words& behind);

class ExportTest : public EngineTest {
protected:
    static ProcessResult Export(const Words& arguments, const ProcessSetting& setting = {});

    // Exports with a fixed time and expects success without a word.
    static void ExportQuietly(const std::string& design, const Words& outputs,
                              const Words& options = {});

    // The path of an example design, "VOLTS-0-15".
    static std::string Example(const std::string& name);

    // An example with some of its lines changed, as a file of this test's folder.
    std::string EditedExample(const std::string& name, const Edits& edits) const;

    // Files of this test's folder, one of every form: "plate.hpgl" and so on.
    Words EveryForm(const std::string& stem = "plate") const;

    // Whether the exporter said of that output that it was not written.
    static bool IsSaidUnwritten(const ProcessResult& result, const std::string& path);

    // How many files stand in this test's folder.
    std::size_t CountFiles() const;
};

std::string ReadText(const std::string& path);

// The value of a deleted list's line and the lines that follow it.
std::string DeletedList(const char* line, const std::vector<int>& tics);

// Of the first scale.
Edit DeletedTics(const std::vector<int>& tics);
Edit DeletedLabels(const std::vector<int>& tics);

std::size_t CountLines(const std::string& text);

// Of the first line that is this, from 1.
std::size_t NumberOfLine(const std::string& text, const std::string& line);

} // namespace vernacle::test
