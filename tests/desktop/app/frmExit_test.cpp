#include "apptest.h"

#include <QPixmap>

#include "support/pixels.h"

namespace vernacle::test {
namespace {

constexpr const char* kNotice = "This design has been saved (as 'LASTSESSION.VRN')";

class ExitTest : public AppTest {
protected:
    ExitTest() {
        Design.DesignFileName = "/designs/mine.VRN";
        OpenPage("frmPreview");
    }

    // The exit page comes by the toolbar's key; answer has to close it.
    void Exit(const DialogAnswer& answer) { ClickAndAnswer("Exit", answer); }

    void ConfirmExit() {
        Exit([this](QWidget& form) { Click(On<QPushButton>(form, "cmdExit")); });
    }

    // Exits, and looks at the page at the first turn of its wait.
    void ExitAndLook(const std::function<void(QWidget& form, QLabel& notice)>& look) {
        int looks = 0;
        WatchWaits([&] {
            ++looks;
            QWidget& form = *QApplication::activeModalWidget();
            look(form, On<QLabel>(form, "Label1"));
        });
        ConfirmExit();
        EXPECT_EQ(looks, 1);
        EXPECT_TRUE(TakeProcessEnd());
    }
};

TEST_F(ExitTest, CaptionsAndStart) {
    Exit([this](QWidget& form) {
        EXPECT_EQ(NameOf(form), "frmExit");
        EXPECT_TRUE(form.isModal());
        EXPECT_FALSE(On<QLabel>(form, "Label1").isVisible());
        const auto& cancel = On<QPushButton>(form, "cmdCancel");
        const auto& exit = On<QPushButton>(form, "cmdExit");
        EXPECT_EQ(cancel.text().toStdString(), "Cancel and continue");
        EXPECT_EQ(exit.text().toStdString(), "Exit / quit");
        EXPECT_EQ(cancel.accessibleName(), cancel.text());
        EXPECT_EQ(exit.accessibleName(), exit.text());
        EXPECT_TRUE(cancel.isEnabled() && exit.isEnabled());
        Cancel(form);
    });
}

TEST_F(ExitTest, TabGoesFromCancelToExit) {
    Exit([this](QWidget& form) {
        auto& cancel = On<QPushButton>(form, "cmdCancel");
        EXPECT_EQ(form.focusWidget(), &cancel);
        QTest::keyClick(&cancel, Qt::Key_Tab);
        EXPECT_EQ(NameOf(*form.focusWidget()), "cmdExit");
        Cancel(form);
    });
}

struct WayBack {
    const char* name;
    void (*go)(QWidget& form);
};

TEST_F(ExitTest, WaysBackLeaveEverythingAsItIs) {
    const WayBack ways[] = {
        {"cmdCancel",
         [](QWidget& form) { Click(*form.findChild<QPushButton*>(QStringLiteral("cmdCancel"))); }},
        {"close box", [](QWidget& form) { CloseByUser(form); }},
        {"Escape", [](QWidget& form) { QTest::keyClick(&form, Qt::Key_Escape); }},
        {"Return", [](QWidget& form) { QTest::keyClick(form.focusWidget(), Qt::Key_Return); }},
    };
    const QWidget* page = &Page();
    for (const WayBack& way : ways) {
        SCOPED_TRACE(way.name);
        Exit(way.go);
        EXPECT_EQ(&Page(), page);
        EXPECT_TRUE(Page().isVisible());
        EXPECT_FALSE(TakeProcessEnd());
        EXPECT_FALSE(Exists("LASTSESSION.VRN"));
        EXPECT_EQ(Design.DesignFileName, "/designs/mine.VRN");
    }
}

TEST_F(ExitTest, KeepsTheSessionAndEnds) {
    Design.PlateWidth = 61;
    WatchWaits();
    ConfirmExit();
    EXPECT_EQ(waited, 2);
    EXPECT_EQ(WidthIn("LASTSESSION.VRN"), 61);
    EXPECT_EQ(Design.DesignFileName, Path("LASTSESSION.VRN"));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(TakeProcessEnd());
    EXPECT_TRUE(said.empty());
}

TEST_F(ExitTest, ReturnPressesTheExitButtonThatHasTheFocus) {
    Exit([this](QWidget& form) {
        On<QPushButton>(form, "cmdExit").setFocus();
        QTest::keyClick(&On<QPushButton>(form, "cmdExit"), Qt::Key_Return);
    });
    EXPECT_TRUE(TakeProcessEnd());
    EXPECT_TRUE(Exists("LASTSESSION.VRN"));
}

TEST_F(ExitTest, NoticeDuringTheWait) {
    ExitAndLook([this](QWidget& form, QLabel& notice) {
        EXPECT_TRUE(Exists("LASTSESSION.VRN")) << "saved before";
        EXPECT_FALSE(On<QPushButton>(form, "cmdCancel").isEnabled());
        EXPECT_FALSE(On<QPushButton>(form, "cmdExit").isEnabled());
        EXPECT_TRUE(notice.isVisible());
        EXPECT_EQ(notice.text().toStdString(), kNotice);
        EXPECT_TRUE(notice.font().bold());
        EXPECT_NEAR(notice.font().pointSizeF(), 1080 * 15 * 0.0008, 0.01);
        EXPECT_EQ(notice.palette().color(QPalette::WindowText), QColor(0, 0, 255));
    });
}

TEST_F(ExitTest, NoticeStandsAtItsPlace) {
    ExitAndLook([](QWidget& form, QLabel& notice) {
        const double perTwip = notice.width() / 8700.;
        EXPECT_NEAR(notice.x(), 60 * perTwip, 1);
        EXPECT_NEAR(notice.y(), 200 * perTwip, 1);
        EXPECT_NEAR(notice.height(), 400 * perTwip, 1);
        EXPECT_GE(perTwip, 1 / 15.);
        EXPECT_TRUE(form.rect().contains(notice.geometry()));
        EXPECT_LE(notice.fontMetrics().horizontalAdvance(notice.text()), notice.width());
        EXPECT_LE(notice.fontMetrics().height(), notice.height());
        for (const auto* button : form.findChildren<QPushButton*>()) {
            EXPECT_FALSE(button->geometry().intersects(notice.geometry()));
        }
    });
}

TEST_F(ExitTest, NoticeIsBlueOnPaleGround) {
    ExitAndLook([](QWidget& form, QLabel& notice) {
        const QImage picture = form.grab(notice.geometry()).toImage();
        EXPECT_EQ(picture.pixelColor(picture.width() - 2, 1), QColor(0xEE, 0xFF, 0xFF));
        EXPECT_EQ(picture.pixelColor(picture.width() - 2, picture.height() - 2),
                  QColor(0xEE, 0xFF, 0xFF));
        EXPECT_TRUE(HasColour(picture, QColor(0, 0, 255)));
    });
}

TEST_F(ExitTest, NoticeIsPaintedBeforeTheWait) {
    class PaintCounter : public QObject {
    public:
        int paints = 0;
        bool eventFilter(QObject* watched, QEvent* event) override {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return QObject::eventFilter(watched, event);
        }
    } counter;
    int paintsAtWait = 0;
    WatchWaits([&] { paintsAtWait = counter.paints; });
    Exit([&](QWidget& form) {
        On<QLabel>(form, "Label1").installEventFilter(&counter);
        Click(On<QPushButton>(form, "cmdExit"));
    });
    EXPECT_GE(paintsAtWait, 1);
    EXPECT_TRUE(TakeProcessEnd());
}

TEST_F(ExitTest, NoticeFollowsTheScreensHeight) {
    for (const float height : {768.F, 1080.F, 2160.F}) {
        Design.ScreenScaleY = height * 15 / 9000;
        ExitAndLook([&](QWidget& form, QLabel& notice) {
            EXPECT_NEAR(notice.font().pointSizeF(), double{height} * 15 * 0.0008, 0.01);
            EXPECT_LE(notice.fontMetrics().horizontalAdvance(notice.text()), notice.width());
            EXPECT_TRUE(form.rect().contains(notice.geometry()));
        });
    }
}

// Exit is pressed on a page that cannot keep the session; then goes on.
class FailedExitTest : public ExitTest {
protected:
    FailedExitTest() {
        Host.besideProgram = [this](const std::string& name) { return Path("none/" + name); };
        WatchWaits();
    }

    void FailToExit(const DialogAnswer& then) {
        Exit([=, this](QWidget& form) {
            Click(On<QPushButton>(form, "cmdExit"));
            EXPECT_TRUE(form.isVisible());
            EXPECT_TRUE(On<QPushButton>(form, "cmdCancel").isEnabled());
            EXPECT_TRUE(On<QPushButton>(form, "cmdExit").isEnabled());
            EXPECT_FALSE(On<QLabel>(form, "Label1").isVisible());
            EXPECT_EQ(On<QLabel>(form, "Label1").text(), QString());
            EXPECT_EQ(said, notKept);
            EXPECT_EQ(waited, 0);
            said.clear();
            then(form);
        });
    }

    const Strings notKept = {
        "beep", "failure: The Vernacle file was not written correctly.\nReadWrite 364"};
};

TEST_F(FailedExitTest, ASecondExitEndsAllTheSame) {
    FailToExit([this](QWidget& form) {
        Click(On<QPushButton>(form, "cmdExit"));
        EXPECT_FALSE(form.isVisible());
    });
    EXPECT_EQ(said, notKept) << "it was tried again";
    EXPECT_EQ(waited, 0) << "for nothing";
    EXPECT_TRUE(TakeProcessEnd());
}

TEST_F(FailedExitTest, ASecondExitKeepsTheSessionWhereThereIsRoomNow) {
    Design.PlateWidth = 61;
    FailToExit([this](QWidget& form) {
        std::filesystem::create_directory(Path("none"));
        Click(On<QPushButton>(form, "cmdExit"));
    });
    EXPECT_TRUE(said.empty());
    EXPECT_EQ(waited, 2) << "for the notice";
    EXPECT_EQ(WidthIn("none/LASTSESSION.VRN"), 61);
    EXPECT_TRUE(TakeProcessEnd());
}

TEST_F(FailedExitTest, TheWayBackLeadsToTheDesignUnderItsName) {
    for (const char* button : {"cmdCancel", ""}) {
        FailToExit([&](QWidget& form) {
            if (*button != '\0') {
                Click(On<QPushButton>(form, button));
            } else {
                CloseByUser(form);
            }
        });
        EXPECT_FALSE(TakeProcessEnd());
        EXPECT_EQ(PageName(), "frmPreview");
        EXPECT_EQ(Design.DesignFileName, "/designs/mine.VRN");
    }
}

TEST_F(FailedExitTest, TheNextVisitAsksAnew) {
    FailToExit([](QWidget& form) { Cancel(form); });
    FailToExit([](QWidget& form) { Cancel(form); });
    EXPECT_FALSE(TakeProcessEnd());
}

// A full disk takes a file's name and not its bytes.
TEST_F(FailedExitTest, AFullDiskIsAFailureToo) {
    Host.besideProgram = [](const std::string&) { return "/dev/full"; };
    FailToExit([](QWidget& form) { Cancel(form); });
}

TEST_F(ExitTest, NextStartBringsTheDesignBack) {
    Design.PlateWidth = 61;
    Design.ScaleTitle[1] = "Ampères";
    Design.PointerDeflection = 87.5F;
    Design.PlateStyle = 1; // is forced on reading
    ConfirmExit();
    EXPECT_TRUE(TakeProcessEnd());
    Design = DesignRecord{};
    OpenPage("frmOpening");
    ClickAndSettle("cmdLastSession");
    EXPECT_EQ(Design.PlateWidth, 61);
    EXPECT_EQ(Design.ScaleTitle[1], "Ampères");
    EXPECT_EQ(Design.PointerDeflection, 87.5F);
    EXPECT_EQ(Design.PlateStyle, 0);
}

} // namespace
} // namespace vernacle::test
