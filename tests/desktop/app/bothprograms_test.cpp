// Files go back and forth between the two programs: each opens what the other has written, on every
// page and without a word.
#include "apptest.h"

#include "engine/core/service.h"
#include "export/trueplate.h"
#include "support/anydesign.h"
#include "support/samerecord.h"

namespace vernacle::test {
namespace {

class BothProgramsTest : public AppTest {
protected:
    void ShowOnEveryPage(Program program, const std::string& file) {
        StoreService(program);
        SetOpeningValues(Design);
        ReadDesign(Design, file);
        Design.ActiveScale = 1;
        for (const char* page : kDesignPages) {
            OpenPage(page);
        }
        EXPECT_TRUE(said.empty()) << said.front();
    }

    std::string WriteBy(Program program) const {
        StoreService(program);
        Design.DesignFileName = Path("plate.VRN");
        EXPECT_TRUE(WriteDesign(Design));
        return Path("plate.VRN");
    }
};

TEST_F(BothProgramsTest, OpenWhatTheWorkshopHasWritten) {
    for (int number = 0; number < 5; ++number) {
        SCOPED_TRACE(number);
        Design = GenerateDesign(number);
        const DesignRecord made = Design;
        const std::string file = WriteBy(Program::Workshop);
        ShowOnEveryPage(Program::Everyday, file);
        EXPECT_NEAR(Design.PlateWidth, made.PlateWidth, 1e-4) << "but for the digits of its line";
        ShowOnEveryPage(Program::Workshop, file);
    }
}

TEST_F(BothProgramsTest, OpenDesignsThatHoldAnything) {
    for (unsigned seed = 0; seed < 3; ++seed) {
        SCOPED_TRACE(seed);
        StoreService(Program::Workshop);
        Random random(seed);
        RandomiseDesign(Design, random);
        const std::string file = WriteBy(Program::Workshop);
        ShowOnEveryPage(Program::Everyday, file);
        ShowOnEveryPage(Program::Workshop, file);
    }
}

TEST_F(BothProgramsTest, OpenWhatTheEverydayProgramHasWritten) {
    for (const char* page : kDesignPages) {
        StoreService(Program::Everyday);
        ResetDesign(Design);
        OpenPage(page);
        const std::string file = WriteBy(Program::Everyday);
        const DesignRecord written = Design;
        ShowOnEveryPage(Program::Workshop, file);
        EXPECT_EQ(Design.ScaleTitle[1], written.ScaleTitle[1]);
        EXPECT_EQ(Design.PlateWidth, written.PlateWidth);
    }
}

} // namespace
} // namespace vernacle::test
