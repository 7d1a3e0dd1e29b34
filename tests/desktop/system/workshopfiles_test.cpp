// What the workshop keeps for its user: sessions in turn, recent designs, and one copy's lock.
#include <chrono>
#include <fstream>

#include <QDir>
#include <QLockFile>
#include <QStandardPaths>

#include "desktop/system/desktophost.h"
#include "desktop/system/onecopy.h"
#include "desktop/system/recentfiles.h"
#include "desktop/system/sessionfiles.h"
#include "engine/core/service.h"
#include "support/environment.h"
#include "support/formtest.h"

namespace vernacle::test {
namespace {

class WorkshopFilesTest : public FormTest {
protected:
    WorkshopFilesTest() : home_("XDG_DATA_HOME", Path("home")) {}

    // As the next run has it; age in hours.
    std::string Keep(int age) const {
        const std::string file = SessionFiles(Path("kept")).PathOf("LAST.VRN");
        std::ofstream(file) << age;
        std::filesystem::last_write_time(file, std::filesystem::file_time_type::clock::now() -
                                                   std::chrono::hours(age));
        return std::filesystem::path(file).filename().string();
    }

private:
    EnvironmentVariable home_;
};

TEST_F(WorkshopFilesTest, TheLastTenSessionsAreKeptInTurn) {
    EXPECT_EQ(Keep(50), "LAST.VRN");
    EXPECT_EQ(Keep(49), "LAST-2.VRN");
    for (int run = 3; run <= 10; ++run) {
        EXPECT_EQ(Keep(51 - run), "LAST-" + std::to_string(run) + ".VRN");
    }
    EXPECT_EQ(Keep(2), "LAST.VRN") << "the oldest gives way";
    EXPECT_EQ(Keep(1), "LAST-2.VRN");
    SessionFiles sessions(Path("kept"));
    EXPECT_EQ(sessions.NewestFirst("LAST.VRN").size(), 10U);
    EXPECT_EQ(sessions.NewestFirst("LAST.VRN").back(), Path("kept/LAST-3.VRN"));
    EXPECT_EQ(sessions.Newest("LAST.VRN"), Path("kept/LAST-2.VRN"));
    const std::string own = sessions.PathOf("LAST.VRN");
    Keep(0);
    EXPECT_EQ(sessions.PathOf("LAST.VRN"), own) << "a run keeps to its own";
}

TEST_F(WorkshopFilesTest, ASessionStandsInTheUsersFolderInTheWorkshop) {
    StoreService(Program::Workshop);
    const HostServices desktop = DesktopHost();
    const std::string session = desktop.besideProgram("LASTWORKSHOP.VRN");
    EXPECT_EQ(session.find(Path("home")), 0U) << session;
    EXPECT_EQ(desktop.newestBesideProgram("LASTWORKSHOP.VRN"), session);
    EXPECT_TRUE(desktop.keptSessions("LASTWORKSHOP.VRN").empty());
    std::ofstream(session) << "kept";
    EXPECT_EQ(desktop.keptSessions("LASTWORKSHOP.VRN"), Strings{session});
}

TEST_F(WorkshopFilesTest, TheTenRecentDesignsOutliveARun) {
    for (int file = 0; file < 13; ++file) {
        NoteRecentFile({"/designs/é " + std::to_string(file) + ".VRN", file % 2 == 0});
    }
    NoteRecentFile({"/designs/é 7.VRN", true});
    const std::vector<RecentFile> files = RecentFiles();
    ASSERT_EQ(files.size(), 10U);
    EXPECT_EQ(files[0].name, "/designs/é 7.VRN");
    EXPECT_TRUE(files[0].isCareful);
    EXPECT_EQ(files[2].name, "/designs/é 11.VRN");
    EXPECT_FALSE(files[2].isCareful);
    ForgetRecentFile("/designs/é 12.VRN");
    EXPECT_EQ(RecentFiles()[1].name, "/designs/é 11.VRN");
    EXPECT_EQ(RecentFiles().size(), 9U);
}

TEST_F(WorkshopFilesTest, ASecondCopyIsTold) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(folder);
    QLockFile other(folder + QStringLiteral("/workshop.lock"));
    ASSERT_TRUE(other.lock());
    TellOfOtherCopy();
    ASSERT_EQ(said.size(), 1U);
    EXPECT_EQ(said[0].find("information: Another copy of the workshop is running."), 0U);
    other.unlock();
    TellOfOtherCopy();
    EXPECT_EQ(said.size(), 1U);
    EXPECT_FALSE(other.tryLock(0)) << "this one is found by the next";
}

} // namespace
} // namespace vernacle::test
