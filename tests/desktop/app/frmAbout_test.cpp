// What a program says of itself, by what it has in service.
#include "engine/core/service.h"
#include "support/formtest.h"

namespace vernacle::test {
namespace {

class AboutTest : public FormTest {
protected:
    std::string DescriptionUnder(const std::string& title) {
        OpenPage("frmPlate");
        std::string description;
        ClickAndAnswer("About", [&](QWidget& form) {
            EXPECT_EQ(form.windowTitle().toStdString(), title);
            description = On<QLabel>(form, "lblDescription").text().toStdString();
            Click(On<QPushButton>(form, "cmdOK"));
        });
        return description;
    }
};

TEST_F(AboutTest, TellsWhatTheProgramHasInService) {
    const std::string everyday = DescriptionUnder("About Vernacle");
    EXPECT_TRUE(everyday.ends_with("or as HP-GL for a plotter."));
    StoreService(Program::Workshop);
    const std::string workshop = DescriptionUnder("About Vernacle Workshop");
    EXPECT_TRUE(workshop.starts_with(everyday));
    for (const char* feature : {"six scales", "Decibel", "ohmmeter", "S-meter", "VSWR", "Quadrant",
                                "zones", "curve", "true to size", "Undo"}) {
        EXPECT_NE(workshop.find(feature, everyday.size()), std::string::npos) << feature;
    }
    Service.specialScales = false;
    EXPECT_EQ(DescriptionUnder("About Vernacle Workshop").find("Decibel"), std::string::npos);
}

} // namespace
} // namespace vernacle::test
