#include "engine/base/hostservices.h"

#include <regex>

#include "engine/base/runtimeerror.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

class HostServicesTest : public EngineTest {};

TEST_F(HostServicesTest, AFailureBeepsAndThenShowsItsText) {
    ReportFailure("It went wrong");
    EXPECT_EQ(said, (Texts{"beep", "failure: It went wrong"}));
}

TEST_F(HostServicesTest, TheDefaultHostUsesPlainFiles) {
    const HostServices host = DefaultHost();
    const auto sink = host.openForOutput(Path("file"));
    sink->Write("text");
    sink->Close();
    EXPECT_EQ(host.readFile(Path("file")), "text");
    EXPECT_THROW(host.readFile(Path("none")), FileFailure);
    EXPECT_THROW(host.openForOutput(Path("none/file")), FileFailure);
    EXPECT_NE(host.besideProgram("LASTSESSION.VRN").find("LASTSESSION.VRN"), std::string::npos);
    EXPECT_EQ(host.newestBesideProgram("A"), host.besideProgram("A"));
    EXPECT_EQ(host.calibrationsToRead(), std::vector{host.calibrationToWrite()});
}

TEST_F(HostServicesTest, TheDefaultHostTellsTheTime) {
    const HostServices host = DefaultHost();
    const std::string local = host.localDateTime();
    ASSERT_FALSE(local.empty());
    EXPECT_NE(local[0], '*');
    EXPECT_EQ(local.find_first_of("\r\n"), std::string::npos);
    const std::regex iso("[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}");
    EXPECT_TRUE(std::regex_match(host.isoDateTime(), iso)) << host.isoDateTime();
}

TEST_F(HostServicesTest, TheDefaultClockOnlyRises) {
    const HostServices host = DefaultHost();
    const double before = host.clockSeconds();
    host.pause();
    EXPECT_GT(host.clockSeconds(), before);
}

TEST_F(HostServicesTest, TheDefaultHostIsSilentAndHasAScreen) {
    const HostServices host = DefaultHost();
    EXPECT_NO_THROW({
        host.beep();
        host.failureBox("text");
        host.informationBox("text");
        host.playSound("file");
        host.servePendingEvents();
    });
    EXPECT_GT(host.screenSize().widthTwips, 0);
    EXPECT_GT(host.screenSize().heightTwips, 0);
}

} // namespace
} // namespace vernacle::test
