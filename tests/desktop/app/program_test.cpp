// The real program in a process and on a display of its own, driven by keys alone: a session is
// entered, left and taken up again, and a run-time error ends the process.
#include <csignal>
#include <memory>

#include <unistd.h>

#include "engine/base/bytesink.h"
#include "support/display.h"
#include "support/enginetest.h"
#include "support/sourcetree.h"

namespace vernacle::test {

namespace {

constexpr double kPatience = 30; // seconds for a program's end
constexpr const char* kOpening = "Vernacle - Welcome !";
constexpr const char* kExitPage = "Vernacle - Exit ?";

bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != text.npos;
}

// The program stands in a folder of its own, which its user may write to, and what comes with it
// where an installed one has it.
class ProgramTest : public EngineTest {
protected:
    void SetUp() override {
        const std::string missing = Display::Missing();
        if (!missing.empty()) {
            GTEST_SKIP() << "not installed:" << missing;
        }
        std::filesystem::create_directories(Path("program"));
        std::filesystem::create_directories(Path("home"));
        std::filesystem::create_directories(Path("share/vernacle"));
        for (const char* file : {VERNACLE_PROGRAM, VERNACLE_GALLERY}) {
            const std::filesystem::path source(file);
            std::filesystem::copy_file(source, Path("program") / source.filename());
        }
        std::filesystem::copy_file(SourcePath("packaging/Calibrate.txt"),
                                   Path("share/vernacle/Calibrate.txt"));
        display = std::make_unique<Display>();
    }

    // In the folder that the program stands in.
    void Start(const std::string& program, const std::vector<std::string>& arguments = {}) {
        std::vector<std::string> words = {Path("program/" + program)};
        words.insert(words.end(), arguments.begin(), arguments.end());
        std::vector<std::string> environment = display->Environment();
        environment.insert(environment.begin(), {"-C", Path("program")});
        environment.insert(environment.end(),
                           {"HOME=" + Path("home"), "XDG_CONFIG_HOME=" + Path("home/.config"),
                            "XDG_DATA_HOME=" + Path("home/.local"),
                            "XDG_RUNTIME_DIR=" + Path("home"), "CUPS_SERVER=/nonexistent"});
        process = std::make_unique<BackgroundProgram>(words, environment);
    }

    std::string LastSession() const { return Path("program/LASTSESSION.VRN"); }

    void ExpectWindow(const std::string& title) const {
        ASSERT_TRUE(display->WaitForWindow(title))
            << "no window \"" << title << "\", but \"" << display->FocusedTitle() << "\"";
    }

    // Presses them for the window that comes.
    void PressFor(const std::string& keys, const std::string& title) const {
        display->Press(keys);
        ExpectWindow(title);
    }

    // From the opening page, by its second button.
    void ChooseLastSession() const {
        display->Press("Tab");
        display->Press("space");
    }

    void ExpectPage(const std::string& name) const {
        ExpectWindow("Vernacle - " + name + " - " + LastSession());
    }

    void GoTo(const std::string& key, const std::string& page) const {
        display->Press("ctrl+" + key);
        ExpectPage(page);
    }

    // From the preview's second box, behind three buttons.
    void Plot() const {
        display->Press("Tab", 4);
        ASSERT_NO_FATAL_FAILURE(PressFor("space", "Vernacle - HP-GL output"));
        ASSERT_NO_FATAL_FAILURE(PressFor("space", "Vernacle")); // is written, says its box
        ASSERT_NO_FATAL_FAILURE(PressFor("Return", "Vernacle - HP-GL output"));
        display->Press("Escape");
        ASSERT_NO_FATAL_FAILURE(ExpectPage("Preview"));
        EXPECT_TRUE(Exists("home/HPGLfile.HPGL"));
    }

    // Into the file that the dialog offers, among the user's documents.
    void Print() const {
        ASSERT_NO_FATAL_FAILURE(PressFor("ctrl+p", "Print"));
        display->Press("Return");
        ASSERT_NO_FATAL_FAILURE(ExpectPage("Preview"));
        EXPECT_TRUE(Has(ReadFile("home/LASTSESSION.pdf"), "%PDF"));
        std::filesystem::remove(Path("home/LASTSESSION.pdf"));
    }

    // By a last session that does not exist: the default design.
    void StartOnThePlatePage() {
        Start("vernacle");
        ASSERT_NO_FATAL_FAILURE(ExpectWindow(kOpening));
        ChooseLastSession();
        ASSERT_NO_FATAL_FAILURE(ExpectWindow("Vernacle")); // there is none yet, says its box
        display->Press("Return");
        ASSERT_NO_FATAL_FAILURE(ExpectPage("Preview"));
        ASSERT_NO_FATAL_FAILURE(GoTo("1", "Plate design"));
    }

    // On its preview page.
    void StartOnAnExample() {
        std::filesystem::copy_file(VERNACLE_EXAMPLE, Path("plate.VRN"));
        Start("vernacle");
        ASSERT_NO_FATAL_FAILURE(ExpectWindow(kOpening));
        ASSERT_NO_FATAL_FAILURE(PressFor("ctrl+o", "Get Vernacle File"));
        display->Type(Path("plate.VRN"));
        ASSERT_NO_FATAL_FAILURE(PressFor("Return", "Vernacle - Preview - " + Path("plate.VRN")));
    }

    // From the plate page's first box: the last button stands before the keys of the toolbar.
    void Calibrate() const {
        constexpr int kToolbarKeys = 11; // that are enabled
        display->Press("shift+Tab", kToolbarKeys + 1);
        ASSERT_NO_FATAL_FAILURE(PressFor("space", "Vernacle - Calibration routine"));
        ASSERT_NO_FATAL_FAILURE(PressFor("space", "Print"));
        ASSERT_NO_FATAL_FAILURE(PressFor("Return", "Vernacle - Calibration routine"));
        display->Type("80");
        display->Press("Tab");
        display->Type("125");
        display->Press("Tab");
        display->Press("space");
        ASSERT_NO_FATAL_FAILURE(ExpectPage("Plate design"));
    }

    void ExpectSession(const std::string& height) const {
        const std::string session = ReadFile("program/LASTSESSION.VRN");
        EXPECT_TRUE(Has(session, "\r\nPlate width: 97.5\r\nPlate height: " + height + "\r\n"));
        EXPECT_TRUE(
            Has(session, "\r\nScale left end (units): -20\r\nScale length (units): 120\r\n"))
            << session;
        EXPECT_TRUE(Has(session, "\r\nAspect ratio: .76\r\n")) << session;
    }

    void ReplaceText(const std::string& text) const {
        display->Press("ctrl+a");
        display->Type(text);
    }

    std::unique_ptr<Display> display;
    std::unique_ptr<BackgroundProgram> process;
};

TEST_F(ProgramTest, ASessionIsTakenUpAgain) {
    ASSERT_NO_FATAL_FAILURE(StartOnThePlatePage());
    ReplaceText("97.5"); // the first box of the page
    ASSERT_NO_FATAL_FAILURE(GoTo("2", "Scale design"));
    ReplaceText("-20");
    display->Press("Tab");
    ReplaceText("120");
    ASSERT_NO_FATAL_FAILURE(GoTo("6", "Preview"));
    display->Press("Tab");
    display->Press("Up"); // by a hundredth of .75, which builds the page anew
    Display::Rest();
    ASSERT_NO_FATAL_FAILURE(Plot());
    ASSERT_NO_FATAL_FAILURE(Print());
    ASSERT_NO_FATAL_FAILURE(GoTo("1", "Plate design"));
    ASSERT_NO_FATAL_FAILURE(Calibrate());
    ASSERT_NO_FATAL_FAILURE(PressFor("ctrl+q", kExitPage));
    display->Press("Tab");
    display->Press("space");
    EXPECT_EQ(process->Wait(kPatience), EXIT_SUCCESS);
    ExpectSession("50");
    EXPECT_TRUE(Has(ReadFile("program/Calibrate.txt"), "\r\n1.25\r\n.8\r\n"));

    // The second day, left by the close box.
    Start("vernacle");
    ASSERT_NO_FATAL_FAILURE(ExpectWindow(kOpening));
    ChooseLastSession();
    ASSERT_NO_FATAL_FAILURE(ExpectPage("Preview"));
    ASSERT_NO_FATAL_FAILURE(GoTo("1", "Plate design"));
    display->Press("Tab"); // the width's illustration
    display->Press("Tab");
    ReplaceText("66.25");
    display->Press("alt+F4");
    EXPECT_EQ(process->Wait(kPatience), EXIT_SUCCESS);
    ExpectSession("66.25");
}

TEST_F(ProgramTest, ADesignIsOpenedSavedAndLeft) {
    ASSERT_NO_FATAL_FAILURE(StartOnAnExample());
    ASSERT_NO_FATAL_FAILURE(PressFor("ctrl+s", "Save Vernacle file"));
    ReplaceText(Path("copy"));
    ASSERT_NO_FATAL_FAILURE(PressFor("Return", "Vernacle - Preview - " + Path("plate.VRN")));
    ASSERT_NO_FATAL_FAILURE(PressFor("ctrl+2", "Vernacle - Scale design - " + Path("copy.VRN")));
    EXPECT_TRUE(Has(ReadFile("copy.VRN"), "Scale title:AMPERES\r\n"));
    EXPECT_FALSE(Exists("program/LASTSESSION.VRN"));
    display->Press("alt+F4");
    EXPECT_EQ(process->Wait(kPatience), EXIT_SUCCESS);
    EXPECT_TRUE(Exists("program/LASTSESSION.VRN"));
}

// The save is primed with the name that the calibration left, in the folder of the factors.
TEST_F(ProgramTest, ACancelledSaveAfterACalibrationLeavesTheFactors) {
    ASSERT_NO_FATAL_FAILURE(StartOnThePlatePage());
    ASSERT_NO_FATAL_FAILURE(Calibrate());
    const std::string factors = ReadFile("program/Calibrate.txt");
    EXPECT_TRUE(Has(factors, "\r\n1.25\r\n.8\r\n"));
    ASSERT_NO_FATAL_FAILURE(PressFor("ctrl+s", "Save Vernacle file"));
    ASSERT_NO_FATAL_FAILURE(
        PressFor("Escape", "Vernacle")); // that it was not written, says its box
    display->Press("Return");
    ASSERT_NO_FATAL_FAILURE(ExpectPage("Plate design"));
    EXPECT_EQ(ReadFile("program/Calibrate.txt"), factors);
}

// Even while a dialog stands open, which would save under the design's name when it is cancelled.
TEST_F(ProgramTest, ASignalKeepsTheSession) {
    ASSERT_NO_FATAL_FAILURE(StartOnAnExample());
    ASSERT_NO_FATAL_FAILURE(PressFor("ctrl+1", "Vernacle - Plate design - " + Path("plate.VRN")));
    ReplaceText("97.5");
    ASSERT_NO_FATAL_FAILURE(PressFor("ctrl+s", "Save Vernacle file"));
    process->Send(SIGTERM);
    EXPECT_EQ(process->Wait(kPatience), EXIT_SUCCESS);
    EXPECT_TRUE(Has(ReadFile("program/LASTSESSION.VRN"), "\r\nPlate width: 97.5\r\n"));
    EXPECT_EQ(ReadFile("plate.VRN"), ReadWholeFile(VERNACLE_EXAMPLE));
}

TEST_F(ProgramTest, ARunTimeErrorShowsItsBoxAndEndsTheProcessWithItsStatus) {
    std::string design = ReadFile(std::filesystem::relative(VERNACLE_EXAMPLE, Path("")).string());
    const std::string tics = "Number of ticmarks: 30";
    ASSERT_TRUE(Has(design, tics));
    design.replace(design.find(tics), tics.size(), "Number of ticmarks: 0");
    Start("vernacle-gallery", {"frmScales", WriteFile("plate.VRN", design)});
    ASSERT_NO_FATAL_FAILURE(ExpectWindow("Vernacle - Run-time error"));
    EXPECT_TRUE(process->IsRunning()) << "until it has been read";
    display->Press("Return");
    EXPECT_EQ(process->Wait(kPatience), 3);
}

} // namespace

} // namespace vernacle::test
