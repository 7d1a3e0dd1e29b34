// The designs that were opened or saved last, kept for this user from run to run.
#pragma once

#include <string>
#include <vector>

namespace vernacle {

struct RecentFile {
    std::string name; // full path
    bool isCareful;   // when it was opened or saved last
};

constexpr int kRecentFiles = 10;

// The newest first.
std::vector<RecentFile> RecentFiles();

// That file is the newest now.
void NoteRecentFile(const RecentFile& file);

// The file is no longer offered.
void ForgetRecentFile(const std::string& name);

} // namespace vernacle
