#include "engine/base/samefile.h"

#include "support/enginetest.h"

namespace vernacle::test {
namespace {

namespace fs = std::filesystem;

class SameFileTest : public EngineTest {
protected:
    SameFileTest() {
        fs::create_directories(Path("folder/below"));
        fs::create_directory_symlink("folder", Path("way"));
        fs::create_symlink("folder/file", Path("link"));
        fs::create_symlink(Path("link"), Path("longer"));
        fs::create_symlink("self", Path("self"));
    }

    void ExpectSameByPath() const;
};

// Whether a path is that of folder/file.
constexpr std::pair<const char*, bool> kPaths[] = {
    {"folder/file", true},
    {"folder/../folder/file", true},
    {"folder/./file", true},
    {"folder//file", true},
    {"folder/below/../file", true},
    {"way/file", true},
    {"link", true},
    {"longer", true},
    {"folder/other", false},
    {"folder/below/file", false},
    {"file", false},
    {"folder/file2", false},
    {"folder/file/", false},
    {"none/file", false},
    {"self", false},
    {"folder", false},
};

void SameFileTest::ExpectSameByPath() const {
    for (const auto& [path, isSame] : kPaths) {
        EXPECT_EQ(IsSameFile(Path(path), Path("folder/file")), isSame) << path;
        EXPECT_EQ(IsSameFile(Path("folder/file"), Path(path)), isSame) << path;
    }
}

TEST_F(SameFileTest, AFileIsTheSameByEveryPath) {
    WriteFile("folder/file", "x");
    WriteFile("folder/other", "x");
    ExpectSameByPath();
    fs::create_hard_link(Path("folder/file"), Path("second"));
    EXPECT_TRUE(IsSameFile(Path("second"), Path("folder/file")));
}

TEST_F(SameFileTest, SoIsThePlaceOfOneThatDoesNotExist) {
    ExpectSameByPath();
}

TEST_F(SameFileTest, ABareNameStandsInTheWorkingFolder) {
    const fs::path before = fs::current_path();
    fs::current_path(Path("folder"));
    EXPECT_TRUE(IsSameFile("file", Path("folder/file")));
    EXPECT_FALSE(IsSameFile("", Path("folder/file")));
    WriteFile("folder/file", "x");
    EXPECT_TRUE(IsSameFile("file", Path("folder/file")));
    EXPECT_TRUE(IsSameFile("./file", Path("way/file")));
    EXPECT_FALSE(IsSameFile("", Path("folder/file")));
    fs::current_path(before);
}

} // namespace
} // namespace vernacle::test
