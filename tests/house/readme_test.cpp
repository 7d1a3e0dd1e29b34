// The map in the README is complete: every folder of the sources and of the tree stands in it.
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "support/sourcetree.h"

namespace vernacle::test {
namespace {

namespace fs = std::filesystem;

const fs::path kRoot = SourcePath("");

std::string Readme() {
    std::ifstream file(kRoot / "README.md");
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(ReadmeTest, MapNamesEveryFolderOfTheSources) {
    const std::string readme = Readme();
    for (const auto& entry : fs::directory_iterator(kRoot / "src")) {
        if (entry.is_directory()) {
            const std::string room = "`src/" + entry.path().filename().string() + "`";
            EXPECT_NE(readme.find(room), std::string::npos) << room;
        }
    }
}

TEST(ReadmeTest, MapNamesEveryFolderOfTheTree) {
    const std::string readme = Readme();
    for (const char* folder :
         {"tests", "fuzz", "bench", "examples", "docs", "scripts", "packaging"}) {
        EXPECT_TRUE(fs::is_directory(kRoot / folder)) << folder;
        EXPECT_NE(readme.find("| `" + std::string(folder) + "` |"), std::string::npos) << folder;
    }
}

TEST(ReadmeTest, LinksToEveryDocument) {
    const std::string readme = Readme();
    for (const auto& entry : fs::directory_iterator(kRoot / "docs")) {
        const std::string link = "(docs/" + entry.path().filename().string() + ")";
        EXPECT_NE(readme.find(link), std::string::npos) << link;
    }
}

} // namespace
} // namespace vernacle::test
