// Runs a program to its end and keeps what it wrote and how it ended.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vernacle::test {

struct ProcessSetting {
    std::vector<std::string> environment;          // "NAME=value", beside what this process has
    std::optional<unsigned long> largestFileBytes; // writes beyond it fail, as on a full disk
    std::string folder;                            // to start in; empty for this process' own
};

struct ProcessResult {
    int status = -1; // exit status; -1 if it did not exit by itself
    int signal = 0;  // that ended it
    std::string out;
    std::string err;
};

// A program without a slash is looked for along the path. A program that cannot be started ends
// with status 127; one that computes for minutes is ended by a signal.
ProcessResult RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                         const ProcessSetting& setting = {});

} // namespace vernacle::test
