// The end that the system asks for: a process of the program's kind gets a signal on each of its
// pages, with and without a dialog above, and keeps its session as the page's close box would.
#include "desktop/app/endsignals.h"

#include <chrono>
#include <csignal>
#include <thread>

#include <QAbstractButton>
#include <QSessionManager>
#include <QTimer>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "desktop/app/application.h"
#include "desktop/app/forms.h"
#include "desktop/navigation/navigator.h"
#include "desktop/system/desktophost.h"
#include "engine/base/hostservices.h"
#include "engine/core/design.h"
#include "engine/designfile/readwrite.h"
#include "support/enginetest.h"

namespace vernacle::test {

namespace {

using Action = std::function<void()>;

constexpr float kWidth = 61.5F;
constexpr const char* kWidthLine = "Plate width: 61.5\r\n";
constexpr auto kPatience = std::chrono::seconds(60);
constexpr int kQuitMs = 200; // behind the word that all is ready
constexpr auto kTurn = std::chrono::milliseconds(10);

// A child process that runs the program's forms without a display, up to the signal.
class EndSignalsTest : public EngineTest {
protected:
    ~EndSignalsTest() override {
        if (child_ > 0) {
            kill(child_, SIGKILL);
            waitpid(child_, nullptr, 0);
        }
    }

    // Goes to the page, and then does what may not return before the end.
    void Start(
        const std::string& page, const Action& then = [] {}) {
        int ready[2] = {};
        ASSERT_EQ(pipe(ready), 0);
        child_ = fork();
        if (child_ == 0) {
            RunProgram(page, then, ready[1]);
        }
        close(ready[1]);
        char byte = 0;
        EXPECT_EQ(read(ready[0], &byte, 1), 1) << "the page did not come up";
        close(ready[0]);
    }

    // The exit status, minus the signal if one ended it; -999 if nothing did.
    int SendAndWait(int signal) {
        kill(child_, signal);
        return Wait();
    }
    int Wait() {
        const auto end = std::chrono::steady_clock::now() + kPatience;
        int status = 0;
        while (waitpid(child_, &status, WNOHANG) == 0) {
            if (std::chrono::steady_clock::now() > end) {
                return -999;
            }
            std::this_thread::sleep_for(kTurn);
        }
        child_ = -1;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }

    bool SessionIsKept() const {
        return ReadFile("LASTSESSION.VRN").find(kWidthLine) != std::string::npos;
    }

    pid_t Child() const { return child_; }

private:
    [[noreturn]] static void RunProgram(const std::string& page, const Action& then, int ready) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        int count = 1;
        char name[] = "vernacle";
        char* words[] = {name, nullptr};
        Application application(count, words);
        const HostServices desktop = DesktopHost();
        Host.failureBox = desktop.failureBox; // the real ones, which wait for their button
        Host.screenSize = desktop.screenSize;
        SetForms(ProgramForms());
        KeepSessionAtTheSystemsEnd();
        SetVersionAndScreenScale(Design);
        ResetDesign(Design);
        Design.ActiveScale = 1;
        QTimer::singleShot(0, &application, [&] {
            GoToPage(page);
            Design.PlateWidth = kWidth;
            QTimer::singleShot(0, &application, then);
            QTimer::singleShot(50, &application, [ready] { EXPECT_EQ(write(ready, "", 1), 1); });
        });
        _exit(QApplication::exec());
    }

    pid_t child_ = -1;
};

TEST_F(EndSignalsTest, EverySignalKeepsTheSessionAndEnds) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        std::filesystem::remove(Path("LASTSESSION.VRN"));
        Start("frmPlate");
        EXPECT_EQ(SendAndWait(signal), EXIT_SUCCESS) << signal;
        EXPECT_TRUE(SessionIsKept()) << signal;
    }
}

struct PageRow {
    const char* page;
    bool keepsSession;
};

constexpr PageRow kPages[] = {
    {"frmPlate", true},   {"frmScales", true},     {"frmPreview", true},
    {"frmGraphic", true}, {"frmHighlights", true}, {"frmSetupMenu", true},
    {"frmSetupdB", true}, {"frmText", false},      {"frmOpening", false},
};

TEST_F(EndSignalsTest, PagesKeepItAsTheirCloseBoxes) {
    for (const PageRow& row : kPages) {
        std::filesystem::remove(Path("LASTSESSION.VRN"));
        Start(row.page);
        EXPECT_EQ(SendAndWait(SIGTERM), EXIT_SUCCESS) << row.page;
        EXPECT_EQ(SessionIsKept(), row.keepsSession) << row.page;
        EXPECT_EQ(Exists("LASTSESSION.VRN"), row.keepsSession) << row.page;
    }
}

TEST_F(EndSignalsTest, TheOlderSessionStaysWhereNoneIsKept) {
    WriteFile("LASTSESSION.VRN", "older");
    for (const char* page : {"frmText", "frmOpening"}) {
        Start(page);
        EXPECT_EQ(SendAndWait(SIGTERM), EXIT_SUCCESS);
        EXPECT_EQ(ReadFile("LASTSESSION.VRN"), "older") << page;
    }
}

TEST_F(EndSignalsTest, AFormAboveThePageDoesNotHoldTheEnd) {
    for (const char* form : {"frmExit", "frmAbout", "frmCalibrate", "frmSelectTics"}) {
        std::filesystem::remove(Path("LASTSESSION.VRN"));
        Start("frmPreview", [form] { ShowModal(form); });
        EXPECT_EQ(SendAndWait(SIGTERM), EXIT_SUCCESS) << form;
        EXPECT_TRUE(SessionIsKept()) << form;
    }
}

// A save dialog that is cancelled saves under the design's name: the end is no such cancel.
TEST_F(EndSignalsTest, ASaveDialogDoesNotSave) {
    WriteFile("mine.VRN", "as it was saved");
    const std::string mine = Path("mine.VRN");
    Start("frmPreview", [mine] {
        Design.DesignFileName = mine;
        CurrentPage()->findChild<QAbstractButton*>(QStringLiteral("Save"))->click();
    });
    EXPECT_EQ(SendAndWait(SIGTERM), EXIT_SUCCESS);
    EXPECT_TRUE(SessionIsKept());
    EXPECT_EQ(ReadFile("mine.VRN"), "as it was saved");
}

// Nor is the desktop's wish, which closes all windows.
TEST_F(EndSignalsTest, ASaveDialogDoesNotSaveWhereTheDesktopQuits) {
    WriteFile("mine.VRN", "as it was saved");
    const std::string mine = Path("mine.VRN");
    Start("frmPreview", [mine] {
        Design.DesignFileName = mine;
        QTimer::singleShot(kQuitMs, qApp, [] { QCoreApplication::quit(); });
        CurrentPage()->findChild<QAbstractButton*>(QStringLiteral("Save"))->click();
    });
    EXPECT_EQ(Wait(), EXIT_SUCCESS);
    EXPECT_TRUE(SessionIsKept());
    EXPECT_EQ(ReadFile("mine.VRN"), "as it was saved");
}

// A session manager asks so at its checkpoints too, and where a logout is called off.
TEST_F(EndSignalsTest, WorkIsKeptForASessionManagerAndGoesOn) {
    for (const PageRow& row : kPages) {
        std::filesystem::remove(Path("LASTSESSION.VRN"));
        Start(row.page, [] {
            alignas(QSessionManager) std::byte nobody[sizeof(QSessionManager)];
            Q_EMIT qGuiApp->commitDataRequest(reinterpret_cast<QSessionManager&>(nobody));
            EXPECT_EQ(Design.DesignFileName, "") << "as before";
        });
        EXPECT_EQ(SessionIsKept(), row.keepsSession) << row.page;
        EXPECT_EQ(kill(Child(), 0), 0) << "it goes on";
        EXPECT_EQ(SendAndWait(SIGTERM), EXIT_SUCCESS) << row.page;
    }
}

TEST_F(EndSignalsTest, AMessageBoxDoesNotHoldTheEnd) {
    Start("frmPreview", [] { Host.failureBox("went wrong"); });
    EXPECT_EQ(SendAndWait(SIGTERM), EXIT_SUCCESS);
    EXPECT_TRUE(SessionIsKept());
}

// Nobody may be there to press its button.
TEST_F(EndSignalsTest, ASessionThatCannotBeKeptShowsNoBox) {
    for (const std::string& place : {Path("none/LASTSESSION.VRN"), std::string("/dev/full")}) {
        Host.besideProgram = [place](const std::string&) { return place; };
        Start("frmPlate");
        EXPECT_EQ(SendAndWait(SIGTERM), EXIT_FAILURE);
    }
}

TEST_F(EndSignalsTest, AnEndlessRowOfSignalsEndsOnce) {
    Start("frmPlate");
    for (int time = 0; time < 50; ++time) {
        kill(Child(), time % 2 == 0 ? SIGTERM : SIGHUP);
    }
    EXPECT_EQ(Wait(), EXIT_SUCCESS);
    EXPECT_TRUE(SessionIsKept());
}

// As nohup does it.
TEST_F(EndSignalsTest, AnIgnoredSignalStaysIgnored) {
    void (*const before)(int) = std::signal(SIGHUP, SIG_IGN);
    Start("frmPlate");
    std::signal(SIGHUP, before);
    kill(Child(), SIGHUP);
    kill(Child(), 0);
    std::this_thread::sleep_for(20 * kTurn);
    EXPECT_FALSE(Exists("LASTSESSION.VRN"));
    EXPECT_EQ(SendAndWait(SIGTERM), EXIT_SUCCESS);
    EXPECT_TRUE(SessionIsKept());
}

} // namespace

} // namespace vernacle::test
