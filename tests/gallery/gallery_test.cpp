// The gallery as a process: pictures of every form at the size that was asked for, what a load does
// to a design, and an answer in words and status to what cannot be done.
#include <algorithm>
#include <set>
#include <sstream>

#include <QImage>

#include "desktop/app/forms.h"
#include "engine/core/design.h"
#include "engine/designfile/readwrite.h"
#include "support/enginetest.h"
#include "support/process.h"

namespace vernacle::test {

namespace {

using Words = std::vector<std::string>;

constexpr const char* kPatience = "120"; // seconds
constexpr QSize kSmallScreen(1024, 768);
constexpr QSize kFineScreen(1600, 1200);  // at two pixels to one
constexpr std::size_t kFewestColours = 4; // of a form that shows anything

// The field's line of a dump.
std::string LineOf(const std::string& field, const std::string& dump) {
    std::istringstream lines(dump);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(field + " = ")) {
            return line;
        }
    }
    return "no " + field;
}

bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != text.npos;
}

QImage Picture(const std::string& path) {
    return QImage(QString::fromStdString(path));
}

bool IsBlank(const QImage& image) {
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colours.insert(image.pixel(x, y));
            if (colours.size() >= kFewestColours) {
                return false;
            }
        }
    }
    return true;
}

class GalleryTest : public EngineTest {
protected:
    ProcessResult Gallery(const Words& arguments, ProcessSetting setting = {}) const {
        Words words = {kPatience, VERNACLE_GALLERY};
        words.insert(words.end(), arguments.begin(), arguments.end());
        setting.environment.insert(setting.environment.begin(),
                                   {"-uQT_QPA_PLATFORM", "QT_LOGGING_RULES=default.warning=false",
                                    "HOME=" + Path("."), "XDG_RUNTIME_DIR=" + Path(".")});
        setting.folder = Path("."); // which gets what the program keeps of a design
        return RunProgram("timeout", words, setting);
    }

    // With a picture, and success without a word.
    QImage Shot(Words arguments, const ProcessSetting& setting = {}) const {
        arguments.insert(arguments.end(), {"--shot", Path("shot.png")});
        const ProcessResult result = Gallery(arguments, setting);
        EXPECT_EQ(result.status, EXIT_SUCCESS) << result.err;
        EXPECT_EQ(result.err, "");
        return Picture(Path("shot.png"));
    }

    // The dump that ends a shot of the form.
    std::string Dump(Words arguments) const {
        arguments.insert(arguments.end(), {"--dump", Path("dump.txt")});
        Shot(arguments);
        return ReadFile("dump.txt");
    }

    // A reset design with what change does to it, as a file.
    template <typename Change>
    std::string DesignFile(const Change& change) const {
        SetOpeningValues(Design);
        ResetDesign(Design);
        change();
        Design.DesignFileName = Path("plate.VRN");
        WriteDesign(Design);
        return Path("plate.VRN");
    }
};

class GalleryFormTest : public GalleryTest, public ::testing::WithParamInterface<std::string> {};

TEST_P(GalleryFormTest, IsTakenAtTheSizeThatWasAskedFor) {
    const QImage small = Shot({GetParam(), "--size", "1024x768"});
    const QImage large = Shot({GetParam(), "--size", "1600x1200@2"});
    const bool isPage = small.size() == kSmallScreen;
    if (isPage) {
        EXPECT_EQ(large.size(), kFineScreen);
    } else { // stands above a page
        EXPECT_LE(small.width(), kSmallScreen.width());
        EXPECT_LE(small.height(), kSmallScreen.height());
        EXPECT_LE(large.width(), kFineScreen.width());
        EXPECT_LE(large.height(), kFineScreen.height());
        EXPECT_GE(large.width(), small.width() * 3 / 2) << "made for two pixels to one";
    }
    const std::set<std::string> pages = {"frmOpening", "frmPlate",   "frmScales", "frmPreview",
                                         "frmText",    "frmGraphic", "frmBlank"};
    EXPECT_TRUE(isPage || !pages.contains(GetParam()));
    if (GetParam() != "frmBlank") {
        EXPECT_FALSE(IsBlank(small));
        EXPECT_FALSE(IsBlank(large));
    }
}

std::vector<std::string> AllForms() {
    std::vector<std::string> names;
    for (const FormRow& row : ProgramForms()) {
        names.emplace_back(row.name);
    }
    return names;
}

INSTANTIATE_TEST_SUITE_P(Forms, GalleryFormTest, ::testing::ValuesIn(AllForms()),
                         [](const auto& row) { return row.param; });

TEST_F(GalleryTest, APlainOffscreenPlatformGetsTheScreenToo) {
    ProcessSetting setting;
    setting.environment = {"QT_QPA_PLATFORM=offscreen"};
    const QImage page = Shot({"frmScales", "--size", "1280x800"}, setting);
    EXPECT_EQ(page.size(), QSize(1280, 800));
    EXPECT_EQ(Shot({"frmScales", "--size", "2560x1600@2"}).size(), QSize(2560, 1600));
}

TEST_F(GalleryTest, AFormIsShownOverItsDesign) {
    const std::string design = DesignFile([] { Design.ScaleTitle[1] = "MILLIVOLTS"; });
    const QImage usual = Shot({"frmPreview", "--size", "1024x768"});
    const std::string dump = Dump({"frmPreview", design, "--size", "1024x768"});
    EXPECT_NE(Picture(Path("shot.png")), usual);
    EXPECT_EQ(LineOf("ScaleTitle[1]", dump), "ScaleTitle[1] = \"MILLIVOLTS\"");
    EXPECT_EQ(LineOf("DesignFileName", dump), "DesignFileName = \"" + design + "\"");
}

TEST_F(GalleryTest, ALoadsConsequencesAreDumped) {
    const std::string design = DesignFile([] {
        Design.PlateWidth = 500;
        Design.NrOfTicmarks[1] = 0;
        Design.CurrentScale = 0;
    });
    EXPECT_EQ(LineOf("PlateWidth", Dump({"frmPlate", design})), "PlateWidth = 180");
    const std::string preview = Dump({"frmPreview", design});
    EXPECT_EQ(LineOf("PlateWidth", preview), "PlateWidth = 180");
    EXPECT_EQ(LineOf("NrOfTicmarks[1]", preview), "NrOfTicmarks[1] = 50");
    EXPECT_EQ(LineOf("PlateWidth", Dump({"frmAbout", design})), "PlateWidth = 500")
        << "no page, no load";
}

TEST_F(GalleryTest, WithoutADesignThereAreTheDefaults) {
    const std::string dump = Dump({"frmPreview"});
    EXPECT_EQ(LineOf("DesignFileName", dump), "DesignFileName = \"\"");
    EXPECT_EQ(LineOf("ScaleTitle[1]", dump), "ScaleTitle[1] = \"Default Scale 1\"");
}

TEST_F(GalleryTest, WhatStartsDisabledCanBeEnabled) {
    const QImage usual = Shot({"frmPlate", "--size", "1024x768"});
    EXPECT_EQ(Shot({"frmPlate", "--size", "1024x768"}), usual) << "the same each time";
    EXPECT_NE(Shot({"frmPlate", "--size", "1024x768", "--enable-all"}), usual);
}

TEST_F(GalleryTest, TheFontCanBeLarger) {
    const QImage small = Shot({"frmAbout", "--font", "9"});
    const QImage large = Shot({"frmAbout", "--font", "14"});
    EXPECT_GT(large.width(), small.width());
    EXPECT_GT(large.height(), small.height());
}

TEST_F(GalleryTest, TheColoursCanBeDark) {
    const QImage light = Shot({"frmAbout"});
    const QImage dark = Shot({"frmAbout", "--dark"});
    EXPECT_GT(light.pixelColor(1, 1).lightness(), 0x80);
    EXPECT_LT(dark.pixelColor(1, 1).lightness(), 0x80);
}

TEST_F(GalleryTest, AnUnknownFormIsWrongUsageAndTheKnownOnesAreNamed) {
    const ProcessResult result = Gallery({"frmNone", "--shot", Path("shot.png")});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(Has(result.err, "\"frmNone\"")) << result.err;
    for (const std::string& name : AllForms()) {
        EXPECT_TRUE(Has(result.err, "\n  " + name + "\n")) << name;
    }
    EXPECT_FALSE(Exists("shot.png"));
}

TEST_F(GalleryTest, WrongUsageIsSaid) {
    EXPECT_EQ(Gallery({}).status, 2);
    const ProcessResult result = Gallery({"frmPlate", "--size", "12"});
    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(result.err.starts_with("vernacle-gallery: --size ")) << result.err;
    const ProcessResult help = Gallery({"--help"});
    EXPECT_TRUE(Has(help.out, "Usage: vernacle-gallery"));
    EXPECT_EQ(help.status, EXIT_SUCCESS);
}

TEST_F(GalleryTest, ADesignThatDoesNotExistIsSaid) {
    const std::string missing = Path("missing.VRN");
    for (const Words& words :
         {Words{"frmPlate", missing}, Words{"frmPlate", missing, "--shot", Path("shot.png")},
          Words{"frmPlate", Path("."), "--shot", Path("shot.png")}}) {
        const ProcessResult result = Gallery(words);
        EXPECT_EQ(result.status, EXIT_FAILURE);
        EXPECT_TRUE(result.err.starts_with("vernacle-gallery: " + words[1])) << result.err;
    }
    EXPECT_FALSE(Exists("shot.png"));
}

// Nobody presses OK on a box while a shot is taken.
TEST_F(GalleryTest, AMalformedDesignIsSaidAndShownAsTheDefaults) {
    DesignFile([] { Design.PlateWidth = 99; });
    std::string text = ReadFile("plate.VRN");
    const std::string line = "Scale 1 - deleted tics: 0";
    text.replace(text.find(line), line.size(), "Scale 1 - deleted tics: 1\r\nTic deleted: 361");
    const std::string design = WriteFile("broken.VRN", text);
    const ProcessResult result =
        Gallery({"frmPlate", design, "--shot", Path("shot.png"), "--dump", Path("dump.txt")});
    EXPECT_EQ(result.status, EXIT_SUCCESS);
    EXPECT_TRUE(Has(result.err, "We were not successful in reading")) << result.err;
    EXPECT_TRUE(Has(ReadFile("dump.txt"), "PlateWidth = "));
    EXPECT_FALSE(Has(ReadFile("dump.txt"), "PlateWidth = 99\n"));
}

// What its load has to say comes once.
TEST_F(GalleryTest, AModalFormIsBuiltOnce) {
    const std::string design = DesignFile([] {}); // reading one leaves a curve that is not allowed
    const ProcessResult result =
        Gallery({"frmCorrectionEntry", design, "--shot", Path("shot.png")});
    EXPECT_EQ(result.status, EXIT_SUCCESS);
    EXPECT_EQ(result.err, "Disallowed entry\n");
}

TEST_F(GalleryTest, ARunTimeErrorOfAShotIsSaidAndHasItsStatus) {
    const std::string design = DesignFile([] { Design.NrOfTicmarks[1] = 0; });
    const ProcessResult result = Gallery({"frmScales", design, "--shot", Path("shot.png")});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.err.starts_with("vernacle-gallery: run-time error: ")) << result.err;
    EXPECT_FALSE(Exists("shot.png"));
}

TEST_F(GalleryTest, APictureThatCannotBeWrittenIsSaid) {
    for (const std::string& target :
         {Path("no/folder/shot.png"), Path("."), std::string("/dev/full")}) {
        const ProcessResult result = Gallery({"frmAbout", "--shot", target});
        EXPECT_EQ(result.status, EXIT_FAILURE) << target;
        EXPECT_TRUE(Has(result.err, "vernacle-gallery: " + target)) << result.err;
    }
}

TEST_F(GalleryTest, ADumpThatCannotBeWrittenIsSaid) {
    for (const std::string& target :
         {Path("no/folder/dump.txt"), Path("."), std::string("/dev/full")}) {
        const ProcessResult result =
            Gallery({"frmAbout", "--shot", Path("shot.png"), "--dump", target});
        EXPECT_EQ(result.status, EXIT_FAILURE) << target;
        EXPECT_TRUE(Has(result.err, "vernacle-gallery: " + target)) << result.err;
    }
}

TEST_F(GalleryTest, AFullDiskIsSaid) {
    ProcessSetting setting;
    setting.largestFileBytes = 2000;
    const ProcessResult result =
        Gallery({"frmScales", "--size", "1024x768", "--shot", Path("shot.png")}, setting);
    EXPECT_EQ(result.status, EXIT_FAILURE);
    EXPECT_TRUE(Has(result.err, "vernacle-gallery: " + Path("shot.png"))) << result.err;
}

} // namespace

} // namespace vernacle::test
