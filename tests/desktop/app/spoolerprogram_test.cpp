// The real program on a display and a spooler of its own: what it prints by keys alone arrives.
#include "desktop/app/spoolertest.h"
#include "support/display.h"
#include "support/pdfreader.h"

namespace vernacle::test {
namespace {

constexpr const char* kPreview = "Vernacle - Preview - ";

class SpoolerProgramTest : public EngineTest {
protected:
    void SetUp() override {
        const std::string missing = WhyNoSpooler() + Display::Missing();
        if (!missing.empty()) {
            ASSERT_FALSE(std::getenv("VERNACLE_SPOOLER")) << missing;
            GTEST_SKIP() << missing;
        }
        TheSpooler().Start();
        for (const char* folder : {"program", "home/Documents"}) {
            std::filesystem::create_directories(Path(folder));
        }
        for (const char* file : {VERNACLE_PROGRAM, VERNACLE_CALIBRATION}) {
            const std::filesystem::path source(file);
            std::filesystem::copy_file(source, Path("program") / source.filename());
        }
        std::filesystem::copy_file(VERNACLE_EXAMPLE, Path("plate.VRN"));
        display = std::make_unique<Display>();
    }
    void TearDown() override {
        process.reset();
        if (WhyNoSpooler().empty()) {
            TheSpooler().End();
        }
    }

    // With the design open on the preview page.
    void Start() {
        Strings environment = display->Environment();
        for (const std::string& setting : TheSpooler().Environment()) {
            environment.push_back(setting);
        }
        environment.insert(environment.end(),
                           {"HOME=" + Path("home"), "XDG_CONFIG_HOME=" + Path("home/.config"),
                            "XDG_DATA_HOME=" + Path("home/.local"),
                            "XDG_RUNTIME_DIR=" + Path("home")});
        process =
            std::make_unique<BackgroundProgram>(Strings{Path("program/vernacle")}, environment);
        ExpectWindow("Vernacle - Welcome !");
        display->Press("ctrl+o");
        ExpectWindow("Get Vernacle File");
        display->Type(Path("plate.VRN"));
        display->Press("Return");
        ExpectWindow(kPreview + Path("plate.VRN"));
    }

    void ExpectWindow(const std::string& title) const {
        ASSERT_TRUE(display->WaitForWindow(title))
            << "no window \"" << title << "\", but \"" << display->FocusedTitle() << "\"";
    }

    void Print() const {
        display->Press("ctrl+p");
        ASSERT_NO_FATAL_FAILURE(ExpectWindow("Print"));
        display->Press("Return");
    }

    std::unique_ptr<Display> display;
    std::unique_ptr<BackgroundProgram> process;
};

TEST_F(SpoolerProgramTest, ThePlateArrivesOnTheQueuesOwnPaper) {
    TheSpooler().Do("lpadmin", {"-d", "letter"});
    TheSpooler().Do("lpadmin", {"-p", "letter", "-o", "print-scaling-default=fit"});
    ASSERT_NO_FATAL_FAILURE(Start());
    ASSERT_NO_FATAL_FAILURE(Print());
    ASSERT_NO_FATAL_FAILURE(ExpectWindow(kPreview + Path("plate.VRN")));
    const PrintJob job = TheSpooler().TakeJob("letter");
    EXPECT_TRUE(job.Has("media=Letter")) << job.options;
    EXPECT_TRUE(job.Has("print-scaling=none")) << job.options;
    EXPECT_EQ(job.title, "plate.VRN");
    const SvgPicture page = ReadPdf(WriteFile("job.pdf", job.bytes));
    EXPECT_NEAR(page.widthMm, 215.9, 0.36);
    EXPECT_NEAR(page.heightMm, 279.4, 0.36);
}

TEST_F(SpoolerProgramTest, ARefusedPlateIsToldAndTheProgramGoesOn) {
    TheSpooler().Do("lpadmin", {"-d", "office"});
    TheSpooler().Do("cupsreject", {"office"});
    ASSERT_NO_FATAL_FAILURE(Start());
    ASSERT_NO_FATAL_FAILURE(Print());
    ASSERT_NO_FATAL_FAILURE(ExpectWindow("Vernacle")); // was not printed, says its box
    display->Press("Return");
    ASSERT_NO_FATAL_FAILURE(ExpectWindow(kPreview + Path("plate.VRN")));
    EXPECT_FALSE(TheSpooler().HasJobs());
    TheSpooler().Do("cupsaccept", {"office"});
    ASSERT_NO_FATAL_FAILURE(Print());
    EXPECT_EQ(TheSpooler().TakeJob("office").title, "plate.VRN");
    EXPECT_TRUE(process->IsRunning());
}

TEST_F(SpoolerProgramTest, TheRawStreamArrivesOnTheQueueThatIsChosen) {
    ASSERT_NO_FATAL_FAILURE(Start());
    display->Press("Tab", 5); // two boxes and three buttons stand before it
    display->Press("space");
    ASSERT_NO_FATAL_FAILURE(ExpectWindow("Vernacle - HP-GL output"));
    display->Press("Tab");
    display->Press("space");
    ASSERT_NO_FATAL_FAILURE(ExpectWindow("Send to PCL printer"));
    display->Press("Return");                          // the default queue
    ASSERT_NO_FATAL_FAILURE(ExpectWindow("Vernacle")); // is sent, says its box
    const PrintJob job = TheSpooler().TakeJob("plotter");
    EXPECT_EQ(job.bytes.rfind("\x1B"
                              "E\r\n",
                              0),
              0U);
    EXPECT_EQ(job.title, "plate.VRN");
}

} // namespace
} // namespace vernacle::test
