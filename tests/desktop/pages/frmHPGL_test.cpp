#include "desktop/pages/frmHPGL.h"

#include <QInputDialog>
#include <QTimer>

#include "desktop/system/desktophost.h"
#include "desktop/system/programfiles.h"
#include "engine/base/hostservices.h"
#include "engine/output/hpgl.h"
#include "support/environment.h"
#include "support/formtest.h"
#include "support/scriptedsink.h"

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
        ClickAndAnswer("cmdHPGL", [&](QWidget& form) {
            ASSERT_EQ(form.objectName().toStdString(), "frmHPGL");
            use(form);
            EXPECT_TRUE(form.isVisible()) << "stays open";
            Click(On<QPushButton>(form, "cmdExit"));
            EXPECT_FALSE(form.isVisible());
        });
        EXPECT_EQ(PageName(), "frmPreview");
    }

    void PressOnPage(const char* button) {
        OnPage([&](QWidget& form) { Click(On<QPushButton>(form, button)); });
    }

    static std::string Stream(HpglMode mode) {
        SinkScript expected;
        WriteHpglStream(Design, *OpenScriptedSink(expected), mode);
        return expected.bytes;
    }

    SinkScript script;
    Strings opened;

private:
    const EnvironmentVariable path_{"PATH", Path("bin")}; // the machine's queues stay out
};

TEST_F(HpglPageTest, FileGetsTheStream) {
    PressOnPage("cmdHPGL");
    EXPECT_EQ(opened, Strings{PlotterFileName()});
    EXPECT_TRUE(PlotterFileName().ends_with("/HPGLfile.HPGL"));
    EXPECT_EQ(script.bytes, Stream(HpglMode::File));
    EXPECT_TRUE(script.bytes.starts_with("IN"));
    EXPECT_EQ(script.closes, 1);
    EXPECT_EQ(said, Strings{"information: THE HPGL FILE WAS SUCCESSFULLY WRITTEN TO\r\n" +
                            PlotterFileName()});
}

TEST_F(HpglPageTest, PrinterGetsTheWrappedStream) {
    PressOnPage("cmdPCL");
    EXPECT_EQ(opened, Strings{"LPT1"});
    EXPECT_EQ(script.bytes, Stream(HpglMode::PclPrinter));
    EXPECT_TRUE(script.bytes.starts_with("\x1B"
                                         "E\r\n"));
    EXPECT_EQ(said,
              Strings{"information: THE HPGL FILE WITH PCL HEADER/FOOTER WAS SENT DIRECTLY TO "
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
            EXPECT_EQ(said, (Strings{"beep", kFailure}));
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
    Host.openForOutput = DesktopHost().openForOutput;
    PressOnPage("cmdPCL");
    EXPECT_EQ(said, (Strings{"beep", kFailure}));
    ASSERT_EQ(reasons.size(), 1U);
    EXPECT_NE(reasons[0].find("/dev/lp0: "), std::string::npos) << reasons[0];
    EXPECT_NE(reasons[0].find("lp: not found"), std::string::npos) << reasons[0];
}

TEST_F(HpglPageTest, BothButtonsWorkInOneVisit) {
    OnPage([this](QWidget& form) {
        Click(On<QPushButton>(form, "cmdPCL"));
        Click(On<QPushButton>(form, "cmdHPGL"));
        Click(On<QPushButton>(form, "cmdHPGL"));
    });
    EXPECT_EQ(opened, (Strings{"LPT1", PlotterFileName(), PlotterFileName()}));
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
    EXPECT_EQ(opened, Strings{"LPT1"});
}

TEST_F(HpglPageTest, CloseBoxJustCloses) {
    ClickAndAnswer("cmdHPGL", [](QWidget& form) { CloseByUser(form); });
    EXPECT_TRUE(opened.empty());
    EXPECT_FALSE(TakeProcessEnd());
    EXPECT_FALSE(Exists("LASTSESSION.VRN"));
}

// On a machine whose spooler has these programs instead of its own.
class QueuePageTest : public HpglPageTest {
protected:
    void SetUp() override {
        if (std::filesystem::exists("/dev/lp0")) {
            GTEST_SKIP() << "this machine has a parallel port";
        }
        std::filesystem::create_directories(Path("bin"));
        Host.openForOutput = DesktopHost().openForOutput;
        Program("lpstat", "echo one; echo two; echo 'system default destination: two'");
        Program("lp",
                "/bin/cat > '" + Path("job") + "'; echo \"$@\" > '" + Path("arguments") + "'");
    }

    void Program(const std::string& name, const std::string& text) const {
        const std::string path = WriteFile("bin/" + name, "#!/bin/sh\n" + text + "\n");
        std::filesystem::permissions(path, std::filesystem::perms(0755));
    }

    static DialogAnswer Choose(const QString& queue) {
        return [queue](QWidget& dialog) {
            auto& question = dynamic_cast<QInputDialog&>(dialog);
            EXPECT_EQ(question.objectName(), QLatin1String("dlgQueue"));
            EXPECT_EQ(question.comboBoxItems(),
                      (QStringList{QLatin1String("one"), QLatin1String("two")}));
            EXPECT_EQ(question.textValue(), QLatin1String("two")) << "the default one";
            question.setTextValue(queue);
            question.accept();
        };
    }

    void Send(const std::vector<DialogAnswer>& answers) {
        OnPage([&](QWidget& form) {
            for (const DialogAnswer& answer : answers) {
                Answer(answer);
            }
            Click(On<QPushButton>(form, "cmdPCL"));
        });
    }
};

TEST_F(QueuePageTest, TheChosenQueueGetsTheStreamUnderTheDesignsName) {
    struct Row {
        const char* file;
        const char* queue;
        const char* arguments;
    };
    const Row rows[] = {
        {"/plates/VOLTS 0.5.VRN", "one", "-o raw -s -t VOLTS 0.5.VRN -d one\n"},
        {"", "two", "-o raw -s -t Vernacle -d two\n"},
    };
    for (const Row& row : rows) {
        said.clear();
        Design.DesignFileName = row.file;
        Send({Choose(QLatin1String(row.queue))});
        EXPECT_EQ(ReadFile("arguments"), row.arguments);
        EXPECT_EQ(ReadFile("job"), Stream(HpglMode::PclPrinter));
        ASSERT_EQ(said.size(), 1U);
        EXPECT_EQ(said[0].rfind("information: ", 0), 0U);
    }
}

TEST_F(QueuePageTest, ACancelledChoiceSendsNothing) {
    Send({Cancel});
    EXPECT_TRUE(said.empty());
    EXPECT_FALSE(Exists("arguments"));
}

TEST_F(QueuePageTest, AFailureHasItsReasonBesideTheText) {
    Program("lp", "echo 'lp: Destination \"one\" is not accepting jobs.' >&2; exit 1");
    Send({Choose(QStringLiteral("one"))});
    EXPECT_EQ(said, (Strings{"beep", kFailure}));
    EXPECT_EQ(reasons, Strings{"lp: Destination \"one\" is not accepting jobs."});
}

// The program lives on while it waits: its clocks run, and no page takes what is pressed.
TEST_F(QueuePageTest, ASpoolerThatHangsIsLeftByCancel) {
    Program("lp", "exec /bin/sleep 120");
    int turns = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&turns] { ++turns; });
    timer.start(10);
    const auto cancel = [this](QWidget& window) {
        EXPECT_EQ(window.objectName(), QLatin1String("boxWaiting"));
        EXPECT_EQ(window.windowModality(), Qt::ApplicationModal);
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        EXPECT_TRUE(said.empty());
        auto* button = window.findChild<QPushButton*>();
        ASSERT_NE(button, nullptr);
        EXPECT_EQ(button->text(), QLatin1String("Cancel"));
        button->click();
    };
    Send({Choose(QStringLiteral("one")), cancel});
    EXPECT_GT(turns, 10);
    EXPECT_EQ(said, (Strings{"beep", kFailure}));
    EXPECT_EQ(reasons, Strings{"lp: cancelled"});
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);

    // One that does not even tell its queues.
    Program("lpstat", "exec /bin/sleep 120");
    said.clear();
    reasons.clear();
    Send({cancel});
    EXPECT_EQ(said, (Strings{"beep", kFailure}));
    ASSERT_EQ(reasons.size(), 1U);
    EXPECT_NE(reasons[0].find("lpstat: cancelled"), std::string::npos) << reasons[0];
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// As the answer to a close box or the Escape key.
TEST_F(QueuePageTest, TheWaitingWindowIsLeftByEscapeToo) {
    Program("lp", "exec /bin/sleep 120");
    Send({Choose(QStringLiteral("one")),
          [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); }});
    EXPECT_EQ(said, (Strings{"beep", kFailure}));
}

} // namespace
} // namespace vernacle::test
