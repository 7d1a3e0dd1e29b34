// The workshop's saving on a system that gives out at any byte of it.
#include <filesystem>

#include "desktop/system/desktophost.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/designfile/readwrite.h"
#include "support/filelimit.h"
#include "support/formtest.h"

namespace vernacle::test {
namespace {

class SavingTest : public FormTest {
protected:
    SavingTest() {
        StoreService(Program::Workshop);
        Host.openForOutput = DesktopHost().openForOutput;
        Design.DesignFileName = Path("mine.VRN");
        Design.LeftToBearing = 3; // what only a star line holds
    }

    Strings FilesThere() const {
        Strings files;
        for (const auto& file : std::filesystem::directory_iterator(Path("."))) {
            files.push_back(file.path().filename().string());
        }
        std::ranges::sort(files);
        return files;
    }
};

TEST_F(SavingTest, LeavesTheOldFileOrTheNewOneWhereverTheDiskEnds) {
    ASSERT_TRUE(WriteDesign(Design));
    const std::string old = ReadFile("mine.VRN");
    const Strings there = FilesThere();
    Design.LeftToBearing = 4;
    Design.TextString[1] = "longer than it was";
    for (std::size_t room = 0; room <= old.size() + 200; room += room % 397 + 53) {
        SCOPED_TRACE(room);
        bool isWritten = false;
        {
            const FileSizeLimit limit(room);
            isWritten = WriteDesign(Design);
        }
        DesignRecord held;
        ReadDesignText(held, ReadFile("mine.VRN"));
        if (isWritten) {
            EXPECT_EQ(held.TextString[1], "longer than it was");
            EXPECT_EQ(held.LeftToBearing, 4) << "to the last line";
            EXPECT_GE(room, old.size());
        } else {
            EXPECT_EQ(ReadFile("mine.VRN"), old);
        }
        EXPECT_EQ(FilesThere(), there) << "nothing is left lying about";
        Design.LeftToBearing = 3;
        Design.TextString[1].clear();
        ASSERT_TRUE(WriteDesign(Design));
        Design.LeftToBearing = 4;
        Design.TextString[1] = "longer than it was";
    }
}

TEST_F(SavingTest, OverAnEverydayFileEitherIsWholeToo) {
    StoreService(Program::Everyday);
    ASSERT_TRUE(WriteDesign(Design));
    StoreService(Program::Workshop);
    const std::string old = ReadFile("mine.VRN");
    for (std::size_t room = 0; room < old.size(); room += room % 397 + 53) {
        const FileSizeLimit limit(room);
        EXPECT_FALSE(WriteDesign(Design)) << room;
        EXPECT_EQ(ReadFile("mine.VRN"), old);
        EXPECT_FALSE(Exists("mine.VRN~"));
    }
    EXPECT_TRUE(WriteDesign(Design));
    EXPECT_EQ(ReadFile("mine.VRN~"), old);
}

} // namespace
} // namespace vernacle::test
