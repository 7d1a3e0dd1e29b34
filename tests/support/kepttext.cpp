#include "support/kepttext.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/sourcetree.h"

namespace vernacle::test {

namespace {

std::string NextLine(std::istream& text) {
    std::string line;
    return std::getline(text, line) ? line : std::string("(the end)");
}

::testing::AssertionResult FirstDifference(const std::string& path, const std::string& kept,
                                           const std::string& text) {
    std::istringstream keptLines(kept);
    std::istringstream lines(text);
    for (int number = 1;; ++number) {
        const std::string before = NextLine(keptLines);
        const std::string now = NextLine(lines);
        if (before != now || (!keptLines && !lines)) {
            return ::testing::AssertionFailure()
                   << path << ", line " << number << "\n  kept: " << before << "\n  now:  " << now
                   << "\nIf this is meant, write it anew with scripts/keep and look at the change.";
        }
    }
}

} // namespace

::testing::AssertionResult IsAsKept(const std::string& name, const std::string& text) {
    const std::string path = SourcePath("tests/data/" + name);
    if (std::getenv("VERNACLE_KEEP_TEXTS")) {
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        std::ofstream(path, std::ios::binary) << text;
    }
    std::ostringstream kept;
    kept << std::ifstream(path, std::ios::binary).rdbuf();
    return kept.str() == text ? ::testing::AssertionSuccess()
                              : FirstDifference(path, kept.str(), text);
}

} // namespace vernacle::test
