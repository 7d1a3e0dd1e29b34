// Every form of the register, at small and large fonts on small and large screens: nothing is cut
// off, nothing covers anything, everything has a name, and the Tab key goes as one reads.
#include <QAccessible>
#include <QScrollBar>
#include <QToolButton>
#include <QWindow>

#include "desktop/app/forms.h"
#include "engine/base/hostservices.h"
#include "layoutfaults.h"
#include "layouttext.h"
#include "support/formtest.h"
#include "support/kepttext.h"

namespace vernacle::test {

namespace {

constexpr float kTwipsPerPixel = 15;
constexpr int kSmallFont = 9; // points
constexpr int kLargeFont = 14;
constexpr QSize kSmallScreen(1024, 768);
constexpr QSize kUsualScreen(1920, 1080);

std::string Lines(const Strings& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += "\n  " + line;
    }
    return text;
}

void ExpectNone(const Faults& faults, const char* what) {
    EXPECT_TRUE(faults.empty()) << what << ":" << Lines(faults);
}

void ExpectRoomForAll(const QWidget& form) {
    ExpectNone(CutOffControls(form), "cut off");
    ExpectNone(OverlappingControls(form), "covering each other");
    ExpectNone(ControlsOutsideTheirParent(form), "over the edge");
}

// A form as its user sees it on a screen of that size, with the desktop's font of that size.
class ShownFormTest : public FormTest {
protected:
    ShownFormTest() : usualFont_(QApplication::font()) {}
    ~ShownFormTest() override { QApplication::setFont(usualFont_); }

    QWidget& Show(const std::string& name, int fontPoints, const QSize& screen) {
        QFont font = usualFont_;
        font.setPointSize(fontPoints);
        QApplication::setFont(font);
        Host.screenSize = [screen] {
            return ScreenSize{static_cast<float>(screen.width()) * kTwipsPerPixel,
                              static_cast<float>(screen.height()) * kTwipsPerPixel};
        };
        SetVersionAndScreenScale(Design);
        form_ = MakeForm(name);
        if (qobject_cast<QDialog*>(form_.get())) {
            form_->show();
        } else {
            form_.reset();
            OpenPage(name);
            Page().setWindowState(Qt::WindowNoState);
            Settle();
            Page().resize(screen);
        }
        SettleLayout();
        return form_ ? *form_ : Page();
    }

    bool IsModal() const { return form_ != nullptr; }

    static void SettleLayout() {
        for (int turn = 0; turn < 5; ++turn) { // a layout may ask for another
            Settle();
            QCoreApplication::sendPostedEvents();
        }
    }

private:
    QFont usualFont_;
    std::unique_ptr<QWidget> form_;
};

struct LayoutCase {
    std::string form;
    int fontPoints;
    QSize screen;
};

std::vector<LayoutCase> AllLayoutCases() {
    std::vector<LayoutCase> cases;
    for (const FormRow& row : ProgramForms()) {
        for (const int font : {kSmallFont, kLargeFont}) {
            for (const QSize& screen : {kSmallScreen, kUsualScreen}) {
                cases.push_back({row.name, font, screen});
            }
        }
    }
    return cases;
}

std::string CaseName(const LayoutCase& layout) {
    return layout.form + "At" + std::to_string(layout.fontPoints) + "PointsOn" +
           std::to_string(layout.screen.width()) + "x" + std::to_string(layout.screen.height());
}

void PrintTo(const LayoutCase& layout, std::ostream* stream) {
    *stream << CaseName(layout);
}

class LayoutTest : public ShownFormTest, public ::testing::WithParamInterface<LayoutCase> {};

TEST_P(LayoutTest, EverythingHasItsPlace) {
    const auto& [name, font, screen] = GetParam();
    const QWidget& form = Show(name, font, screen);
    if (IsModal()) {
        EXPECT_LE(form.width(), screen.width());
        EXPECT_LE(form.height(), screen.height());
    } else {
        ASSERT_EQ(form.size(), screen);
    }
    ExpectRoomForAll(form);
    const bool mayScroll = font == kLargeFont && screen == kSmallScreen;
    if (!mayScroll) {
        ExpectNone(ScrollBarsShown(form), "scrolls");
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, LayoutTest, ::testing::ValuesIn(AllLayoutCases()),
                         [](const auto& row) { return CaseName(row.param); });

// What shows itself only later has its place too, at every font and on every screen.
class LaterLayoutTest : public ShownFormTest {
protected:
    template <typename Check>
    void AtEveryFontAndScreen(const std::string& form, const Check& check) {
        for (const LayoutCase& layout : AllLayoutCases()) {
            if (layout.form == form) {
                SCOPED_TRACE(CaseName(layout));
                check(Show(layout.form, layout.fontPoints, layout.screen));
            }
        }
    }
};

TEST_F(LaterLayoutTest, TheStepsOfTheCalibrationStandOnItsForm) {
    AtEveryFontAndScreen("frmCalibrate", [this](QWidget& form) {
        const std::string file = Path("square.pdf");
        std::filesystem::remove(file);
        Answer(test::PrintTo(file));
        Click(On<QWidget>(form, "cmdPrint"));
        SettleLayout();
        ASSERT_TRUE(On<QWidget>(form, "txtActualHeight").isVisible());
        ExpectRoomForAll(form);
        EXPECT_EQ(TabOrder(form), ReadingOrder(form));
    });
}

TEST_F(LaterLayoutTest, TheNoticeOfTheExitPageCoversNothing) {
    AtEveryFontAndScreen("frmExit", [this](QWidget& form) {
        int looks = 0;
        const auto clock = Host.clockSeconds;
        Host.clockSeconds = [&] { // is looked at while the notice is shown
            EXPECT_TRUE(On<QLabel>(form, "Label1").isVisible());
            ExpectRoomForAll(form);
            ++looks;
            return clock();
        };
        Click(On<QWidget>(form, "cmdExit"));
        Host.clockSeconds = clock;
        EXPECT_GT(looks, 0);
        EXPECT_TRUE(TakeProcessEnd());
    });
}

// Whatever has the focus is in sight, whole, by whatever way it came there.
class FocusTest : public ShownFormTest {
protected:
    static void ExpectInSight(const QWidget& form, const char* how) {
        SettleLayout();
        const QWidget* focused = form.focusWidget();
        ASSERT_NE(focused, nullptr);
        EXPECT_EQ(focused->visibleRegion().boundingRect(), focused->rect())
            << focused->objectName().toStdString() << " " << how;
    }

    static void EnableAll(QWidget& form) {
        for (auto* control : form.findChildren<QWidget*>()) {
            control->setEnabled(true);
        }
    }
};

TEST_F(FocusTest, IsInSightWhereTheScreenIsTooSmall) {
    for (const FormRow& row : ProgramForms()) {
        QWidget& form = Show(row.name, kLargeFont, kSmallScreen);
        EnableAll(form);
        const Strings reached = ReadingOrder(form);
        for (const std::string& name : reached) {
            On<QWidget>(form, name).setFocus();
            ExpectInSight(form, "by the program");
        }
        for (std::size_t press = 0; press < reached.size(); ++press) {
            QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
            ExpectInSight(form, "by Tab");
        }
    }
}

// A page that scrolled under a pressed mouse would lose the click.
TEST_F(FocusTest, WaitsUntilTheMouseIsLetGo) {
    QWidget& page = Show("frmScales", kLargeFont, kSmallScreen);
    auto& button = On<QPushButton>(page, "cmdSelectTics");
    button.setEnabled(true);
    button.disconnect();
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, &button, [&clicks] { ++clicks; });
    const QPoint middle = button.mapTo(&page, button.rect().center());
    page.resize(page.width(), middle.y()); // cut at the window's edge
    SettleLayout();
    const QRect shown = button.visibleRegion().boundingRect();
    ASSERT_LT(shown.height(), button.height());
    const QPoint at = button.mapTo(&page, shown.center());
    QTest::mousePress(page.windowHandle(), Qt::LeftButton, {}, at);
    SettleLayout();
    EXPECT_EQ(page.focusWidget(), &button);
    QTest::mouseRelease(page.windowHandle(), Qt::LeftButton, {}, at);
    EXPECT_EQ(clicks, 1);
    QTest::qWait(200);
    ExpectInSight(page, "after the click");
}

TEST_F(FocusTest, StaysInSightWhenTheWindowShrinks) {
    QWidget& page = Show("frmScales", kLargeFont, kUsualScreen);
    On<QWidget>(page, "cmdSelectTics").setEnabled(true);
    On<QWidget>(page, "cmdSelectTics").setFocus();
    page.resize(kSmallScreen);
    ExpectInSight(page, "in the smaller window");
}

TEST_F(FocusTest, IsInSightAtEachStepOfTheWizard) {
    QWidget& page = Show("frmWizard", kLargeFont, kSmallScreen);
    const char* const values[] = {"75", "50", "10", "15", "50", "90", "30", "3",  "2",
                                  "4",  "2",  "2",  "35", "8",  "6",  "30", "50", "5"};
    for (const char* value : values) {
        ExpectInSight(page, value);
        QTest::keyClicks(page.focusWidget(), QLatin1String(value));
        QTest::keyClick(page.focusWidget(), Qt::Key_Return);
    }
    ExpectInSight(page, "at the end");
    for (const char* button : {"cmdAccept", "cmdExit"}) {
        const auto& way = On<QWidget>(page, button);
        EXPECT_EQ(way.visibleRegion().boundingRect(), way.rect()) << button;
    }
    EXPECT_TRUE(said.empty());
    EXPECT_TRUE(On<QWidget>(page, "Label2").isVisible()) << "all are entered";
}

// The keys of the toolbar, and the arrows beside the boxes, which take no focus.
TEST_F(FocusTest, NoPageOfEntriesIsTooWideForTheSmallestScreen) {
    for (const char* name : {"frmText", "frmGraphic", "frmHighlights", "frmScales", "frmPreview"}) {
        const QWidget& page = Show(name, kLargeFont, kSmallScreen);
        EXPECT_EQ(page.width(), kSmallScreen.width()) << name;
        for (const auto* bar : page.findChildren<QScrollBar*>()) {
            EXPECT_FALSE(bar->orientation() == Qt::Horizontal && bar->isVisible()) << name;
        }
        for (const auto* key : page.findChildren<QToolButton*>()) {
            if (key->objectName().startsWith(QLatin1String("qt_"))) {
                EXPECT_FALSE(key->isVisible()) << name << " has keys that find no room";
                continue;
            }
            const QRect shown = key->visibleRegion().boundingRect();
            EXPECT_EQ(shown.width(), key->width())
                << name << " " << key->objectName().toStdString();
        }
    }
}

Strings AllForms() {
    Strings names;
    for (const FormRow& row : ProgramForms()) {
        names.emplace_back(row.name);
    }
    return names;
}

class FormNamesTest : public ShownFormTest, public ::testing::WithParamInterface<std::string> {
protected:
    QWidget& ShowUsual() { return Show(GetParam(), kSmallFont, kUsualScreen); }
};

TEST_P(FormNamesTest, EveryControlHasItsName) {
    const QWidget& form = ShowUsual();
    EXPECT_EQ(form.objectName().toStdString(), GetParam());
    EXPECT_FALSE(form.windowTitle().isEmpty());
    ExpectNone(BadlyNamedControls(form), "badly named");
    ExpectNone(SilentControls(form), "nothing to say for a screen reader");
}

// What a screen reader says of the window itself.
TEST_P(FormNamesTest, WindowIsAFrameOrADialogOfItsTitle) {
    QWidget& form = ShowUsual();
    const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&form);
    ASSERT_NE(spoken, nullptr);
    const bool stands = IsModal() || form.windowType() == Qt::Dialog;
    EXPECT_EQ(spoken->role(), stands ? QAccessible::Dialog : QAccessible::Window);
    EXPECT_EQ(spoken->text(QAccessible::Name), form.windowTitle());
}

TEST_P(FormNamesTest, TheTabKeyGoesAsOneReads) {
    QWidget& form = ShowUsual();
    const Strings reading = ReadingOrder(form);
    EXPECT_EQ(TabOrder(form), reading);
    if (reading.empty()) {
        return;
    }
    // And by the real key, once around from the first.
    On<QWidget>(form, reading.front()).setFocus();
    Strings reached;
    for (std::size_t press = 0; press < reading.size(); ++press) {
        ASSERT_NE(form.focusWidget(), nullptr);
        reached.push_back(form.focusWidget()->objectName().toStdString());
        QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(reached, reading);
    EXPECT_EQ(form.focusWidget()->objectName().toStdString(), reading.front());
}

INSTANTIATE_TEST_SUITE_P(Forms, FormNamesTest, ::testing::ValuesIn(AllForms()),
                         [](const auto& row) { return row.param; });

// How each form is laid out stands in tests/data/layouts.
class KeptLayoutTest : public FormNamesTest {};

TEST_P(KeptLayoutTest, FormIsLaidOutAsKept) {
    EXPECT_TRUE(IsAsKept("layouts/" + GetParam() + ".txt", LayoutText(ShowUsual())));
}

INSTANTIATE_TEST_SUITE_P(Forms, KeptLayoutTest, ::testing::ValuesIn(AllForms()),
                         [](const auto& row) { return row.param; });

class KeptBookTest : public ShownFormTest {};

TEST_F(KeptBookTest, HelpBookIsLaidOutAsKept) {
    std::string text;
    for (const char* page :
         {"frmPlate", "frmScales", "frmText", "frmGraphic", "frmHighlights", "frmPreview"}) {
        QTest::keyClick(&Show(page, kSmallFont, kUsualScreen), Qt::Key_F1);
        SettleLayout();
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String("HelpViewer")) {
                text += LayoutText(*window);
                window->close();
            }
        }
        Settle();
    }
    EXPECT_TRUE(IsAsKept("layouts/HelpViewer.txt", text));
}

} // namespace

} // namespace vernacle::test
