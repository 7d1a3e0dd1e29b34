#include "render/frmHPGL.h"

#include <QLabel>
#include <QPointer>
#include <QPushButton>

#include "core/design.h"
#include "core/seam.h"
#include "platform/host.h"
#include "platform/programfiles.h"
#include "platform/walk.h"
#include "render/hpgl.h"
#include "scriptedsink.h"
#include "support/answers.h"
#include "support/formtest.h"

namespace vernacle::test {
namespace {

constexpr const char* kFailure = "failure: The HPGL file was not written correctly.";

class HpglPageTest : public FormTest {
protected:
    HpglPageTest() {
        OpenPage("frmPreview");
        Host.openForOutput = [this](const std::string& name) {
            opened.push_back(name);
            return OpenScriptedSink(script);
        };
    }

    // With the page open above the preview.
    void OnPage(const DialogAnswer& use) {
        Answer([&](QWidget& form) {
            ASSERT_EQ(form.objectName().toStdString(), "frmHPGL");
            use(form);
            EXPECT_TRUE(form.isVisible()) << "stays open";
            Click(On<QPushButton>(form, "cmdExit"));
            EXPECT_FALSE(form.isVisible());
        });
        Click("cmdHPGL");
        EXPECT_TRUE(AllAnswered());
        EXPECT_EQ(Page().objectName().toStdString(), "frmPreview");
    }

    void PressOnPage(const char* button) {
        OnPage([&](QWidget& form) { Click(On<QPushButton>(form, button)); });
    }

    static std::string Stream(HpglMode mode) {
        SinkScript expected;
        WriteHpglStream(*OpenScriptedSink(expected), mode);
        return expected.bytes;
    }

    SinkScript script;
    std::vector<std::string> opened;
};

TEST_F(HpglPageTest, FileGetsTheStream) {
    PressOnPage("cmdHPGL");
    EXPECT_EQ(opened, std::vector<std::string>{PlotterFileName()});
    EXPECT_TRUE(PlotterFileName().ends_with("/HPGLfile.HPGL"));
    EXPECT_EQ(script.bytes, Stream(HpglMode::File));
    EXPECT_TRUE(script.bytes.starts_with("IN"));
    EXPECT_EQ(script.closes, 1);
    EXPECT_EQ(said, std::vector<std::string>{
                        "information: THE HPGL FILE WAS SUCCESSFULLY WRITTEN TO\r\n" +
                        PlotterFileName()});
}

TEST_F(HpglPageTest, PrinterGetsTheWrappedStream) {
    PressOnPage("cmdPCL");
    EXPECT_EQ(opened, std::vector<std::string>{"LPT1"});
    EXPECT_EQ(script.bytes, Stream(HpglMode::PclPrinter));
    EXPECT_TRUE(script.bytes.starts_with("\x1B"
                                         "E\r\n"));
    EXPECT_EQ(said, std::vector<std::string>{
                        "information: THE HPGL FILE WITH PCL HEADER/FOOTER WAS SENT DIRECTLY TO "
                        "THE PCL PRINTER ON LPT1"});
}

struct FailureRow {
    const char* name;
    int failAtWrite;
    bool failAtClose;
    bool failToOpen;
};

constexpr FailureRow kFailures[] = {
    {"open", 0, false, true},
    {"first write", 1, false, false},
    {"close", 0, true, false},
};

TEST_F(HpglPageTest, FailuresAreReportedAndThePageStays) {
    for (const char* button : {"cmdHPGL", "cmdPCL"}) {
        for (const FailureRow& row : kFailures) {
            SCOPED_TRACE(std::string(button) + " " + row.name);
            said.clear();
            script = SinkScript();
            script.failAtWrite = row.failAtWrite;
            script.failAtClose = row.failAtClose;
            Host.openForOutput = [&](const std::string&) {
                if (row.failToOpen) {
                    throw FileFailure("no such place");
                }
                return OpenScriptedSink(script);
            };
            PressOnPage(button);
            EXPECT_EQ(said, (std::vector<std::string>{"beep", kFailure}));
            EXPECT_EQ(script.open, 0) << "closed";
        }
    }
}

TEST_F(HpglPageTest, RealFileIsWritten) {
    const std::string file = Path("HPGLfile.HPGL");
    Host.openForOutput = [&](const std::string&) { return OpenFileSink(file); };
    PressOnPage("cmdHPGL");
    EXPECT_EQ(ReadFile("HPGLfile.HPGL"), Stream(HpglMode::File));
}

// A machine without the port's device and without a print queue.
TEST_F(HpglPageTest, MachineWithoutAPrinterFailsAtOnce) {
    if (std::filesystem::exists("/dev/lp0")) {
        GTEST_SKIP() << "this machine has a parallel port";
    }
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QByteArray::fromStdString(Path("empty")));
    Host.openForOutput = DesktopHost().openForOutput;
    PressOnPage("cmdPCL");
    qputenv("PATH", path);
    EXPECT_EQ(said, (std::vector<std::string>{"beep", kFailure}));
}

TEST_F(HpglPageTest, BothButtonsWorkInOneVisit) {
    OnPage([this](QWidget& form) {
        Click(On<QPushButton>(form, "cmdPCL"));
        Click(On<QPushButton>(form, "cmdHPGL"));
        Click(On<QPushButton>(form, "cmdHPGL"));
    });
    EXPECT_EQ(opened, (std::vector<std::string>{"LPT1", PlotterFileName(), PlotterFileName()}));
    EXPECT_EQ(said.size(), 3U);
}

TEST_F(HpglPageTest, NamesAndTabOrder) {
    OnPage([this](QWidget& form) {
        EXPECT_FALSE(form.windowTitle().isEmpty());
        On<QPushButton>(form, "cmdHPGL").setFocus();
        for (const char* name : {"cmdHPGL", "cmdPCL", "cmdExit"}) {
            auto& button = On<QPushButton>(form, name);
            EXPECT_FALSE(button.text().isEmpty());
            EXPECT_EQ(button.accessibleName(), button.text());
            EXPECT_EQ(form.focusWidget(), &button);
            QTest::keyClick(&button, Qt::Key_Tab);
        }
    });
}

TEST_F(HpglPageTest, ReturnPressesTheButtonWithTheFocus) {
    OnPage([this](QWidget& form) {
        auto& button = On<QPushButton>(form, "cmdPCL");
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Return);
    });
    EXPECT_EQ(opened, std::vector<std::string>{"LPT1"});
}

TEST_F(HpglPageTest, CloseBoxJustCloses) {
    Answer([](QWidget& form) { CloseByUser(form); });
    Click("cmdHPGL");
    EXPECT_TRUE(AllAnswered());
    EXPECT_TRUE(opened.empty());
    EXPECT_FALSE(TakeProcessEnd());
    EXPECT_FALSE(Exists("LASTSESSION.VRN"));
}

} // namespace
} // namespace vernacle::test
