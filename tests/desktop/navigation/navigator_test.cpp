#include "desktop/navigation/navigator.h"

#include "desktop/app/apptest.h"

#include <QVBoxLayout>

#include "desktop/app/forms.h"

namespace vernacle::test {
namespace {

Strings happened; // "made first", "unloaded first", ...

// What the windows were when the page was made.
struct Sight {
    bool backdrop = false;
    bool oldPage = false;
} sight;

bool IsShown(const char* name) {
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String(name) && window->isVisible()) {
            return true;
        }
    }
    return false;
}

class TestPage : public QWidget {
public:
    explicit TestPage(const char* name) {
        sight = {IsShown("frmBlank"), IsShown("first")};
        happened.push_back(std::string("made ") + name);
        setObjectName(QLatin1String(name));
        auto* column = new QVBoxLayout(this);
        for (const char* control : {"greyed", "upper", "lower"}) {
            auto* edit = new QLineEdit(this);
            edit->setObjectName(QLatin1String(control));
            edit->setEnabled(control != std::string("greyed"));
            column->addWidget(edit);
        }
    }
    ~TestPage() override { happened.push_back("unloaded " + objectName().toStdString()); }
};

std::unique_ptr<QWidget> MakeFirst() {
    return std::make_unique<TestPage>("first");
}
std::unique_ptr<QWidget> MakeSecond() {
    return std::make_unique<TestPage>("second");
}
std::unique_ptr<QWidget> MakeBackdrop() {
    auto backdrop = std::make_unique<QWidget>();
    backdrop->setObjectName(QStringLiteral("frmBlank"));
    return backdrop;
}
std::unique_ptr<QWidget> MakeDialog() {
    auto dialog = std::make_unique<QDialog>();
    dialog->setObjectName(QStringLiteral("dialog"));
    return dialog;
}

constexpr FormRow kTestForms[] = {
    {"first", MakeFirst},
    {"second", MakeSecond},
    {"frmBlank", MakeBackdrop},
    {"dialog", MakeDialog},
};

class WalkTest : public AppTest {
protected:
    WalkTest() {
        SetForms(kTestForms);
        happened.clear();
        sight = {};
    }

    std::string Focused() const {
        return Page().focusWidget() ? NameOf(*Page().focusWidget()) : "nothing";
    }
};

TEST_F(WalkTest, TargetIsShownBeforeThePresentPageGoes) {
    OpenPage("first");
    OpenPage("second");
    EXPECT_TRUE(sight.oldPage) << "while the target was made";
    EXPECT_FALSE(sight.backdrop);
    EXPECT_EQ(happened, (Strings{"made first", "made second", "unloaded first"}));
    EXPECT_EQ(PageName(), "second");
    EXPECT_TRUE(Page().isVisible());
    EXPECT_FALSE(IsShown("first"));
}

TEST_F(WalkTest, PageFillsTheScreen) {
    EXPECT_TRUE(OpenPage("first").isMaximized());
    EXPECT_EQ(Page().size(), QSize(1920, 1080));
    EXPECT_TRUE(Page().isActiveWindow());
}

TEST_F(WalkTest, UnknownFormsDoNothing) {
    const QWidget* page = &OpenPage("first");
    GoToPage("nowhere");
    ShowModal("nowhere");
    ShowModal("second"); // a page is no dialog
    EXPECT_EQ(&Page(), page);
    EXPECT_FALSE(IsFormKnown("nowhere"));
    EXPECT_TRUE(IsFormKnown("dialog"));
    EXPECT_EQ(MakeForm("nowhere"), nullptr);
}

TEST_F(WalkTest, ReloadHappensBehindTheBackdrop) {
    OpenPage("first");
    happened.clear();
    ReloadPage();
    EXPECT_TRUE(sight.backdrop);
    EXPECT_FALSE(sight.oldPage) << "unloaded before";
    EXPECT_FALSE(IsShown("frmBlank")) << "goes at once";
    Settle();
    EXPECT_EQ(happened, (Strings{"made first", "unloaded first"}));
    EXPECT_EQ(PageName(), "first");
    EXPECT_TRUE(Page().isMaximized());
}

TEST_F(WalkTest, PageStartsInItsFirstUsableBox) {
    OpenPage("first");
    EXPECT_EQ(Focused(), "upper");
}

TEST_F(WalkTest, ReloadKeepsTheFocus) {
    OpenPage("first");
    Find("lower").setFocus();
    ReloadPage();
    Settle();
    EXPECT_EQ(Focused(), "lower");
    EXPECT_EQ(QApplication::focusWidget(), Page().focusWidget());
}

TEST_F(WalkTest, ModalFormStandsAboveThePage) {
    OpenPage("first");
    bool returned = false;
    Answer([&](QWidget& dialog) {
        EXPECT_EQ(NameOf(dialog), "dialog");
        EXPECT_EQ(dialog.parentWidget(), &Page());
        EXPECT_TRUE(dialog.isWindow());
        EXPECT_TRUE(dialog.isModal());
        EXPECT_FALSE(returned);
        Cancel(dialog);
    });
    ShowModal("dialog");
    returned = true;
    EXPECT_TRUE(AllAnswered());
    EXPECT_EQ(Page().findChild<QDialog*>(), nullptr) << "gone when closed";
}

TEST_F(WalkTest, ModalFormNeedsNoPage) {
    Answer(Cancel);
    ShowModal("dialog");
    EXPECT_TRUE(AllAnswered());
}

TEST_F(WalkTest, UnloadedPageGoesOnceItsHandlerHasReturned) {
    OpenPage("first");
    UnloadPage();
    EXPECT_EQ(CurrentPage(), nullptr);
    EXPECT_EQ(happened.back(), "made first");
    EXPECT_FALSE(IsShown("first"));
    Settle();
    EXPECT_EQ(happened.back(), "unloaded first");
    UnloadPage(); // none is shown
}

TEST_F(WalkTest, ProgramsFormsAreMadeUnderTheirNames) {
    SetForms(ProgramForms());
    for (const FormRow& row : ProgramForms()) {
        EXPECT_EQ(NameOf(*MakeForm(row.name)), row.name);
    }
    EXPECT_TRUE(IsFormKnown("frmBlank"));
}

} // namespace
} // namespace vernacle::test
