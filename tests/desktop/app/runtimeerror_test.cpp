// The application's one handler: a failure that nothing traps shows its box, once, wherever it came
// from, and the process ends with a status of its own.
#include <functional>
#include <memory>
#include <optional>

#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include "desktop/app/application.h"
#include "desktop/app/forms.h"
#include "desktop/navigation/navigator.h"
#include "desktop/system/desktophost.h"
#include "engine/base/hostservices.h"
#include "engine/base/runtimeerror.h"
#include "engine/core/design.h"

namespace vernacle::test {

namespace {

constexpr int kPatienceMs = 20000;
constexpr int kNothingCame = 99;

using Handler = std::function<void()>;

// A widget that fails while it paints, again and again.
class FailingPicture : public QWidget {
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        ++paints;
        throw RunTimeError("the picture failed");
    }
};

// A process with an application of the program's kind. Its user presses OK on every message box.
class RunTimeErrorTest : public ::testing::Test {
protected:
    RunTimeErrorTest() {
        user_.setInterval(10);
        QObject::connect(&user_, &QTimer::timeout, &user_, [this] { Look(); });
        user_.start();
    }
    ~RunTimeErrorTest() override { Host = DefaultHost(); }

    // Runs it in the event loop; gives the status with which the process ends.
    int RunWith(const Handler& handler) {
        QTimer::singleShot(0, &application_, handler);
        QTimer::singleShot(kPatienceMs, &application_,
                           [] { QCoreApplication::exit(kNothingCame); });
        return QApplication::exec();
    }

    std::vector<std::string> texts;         // of the error boxes, in order
    std::function<void()> beforeOk = [] {}; // while a box is up

private:
    void Look() {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible()) {
            return;
        }
        EXPECT_EQ(box->objectName().toStdString(), "boxRunTimeError");
        EXPECT_EQ(box->icon(), QMessageBox::Critical);
        EXPECT_EQ(box->standardButtons(), QMessageBox::Ok);
        texts.push_back(box->text().toStdString());
        beforeOk();
        box->button(QMessageBox::Ok)->click();
    }

    int count_ = 1;
    char name_[9] = "vernacle";
    char* words_[2] = {name_, nullptr};
    Application application_{count_, words_};
    QTimer user_;
};

bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != text.npos;
}

TEST_F(RunTimeErrorTest, AProcessWithoutFailuresEndsWellAndShowsNothing) {
    EXPECT_EQ(RunWith([] { EndProcess(); }), EXIT_SUCCESS);
    EXPECT_TRUE(texts.empty());
}

TEST_F(RunTimeErrorTest, AHandlersFailureIsShownWithWhatFailedAndEndsTheProcess) {
    EXPECT_EQ(RunWith([] { throw RunTimeError("division by zero"); }), kRunTimeErrorStatus);
    EXPECT_EQ(kRunTimeErrorStatus, 3);
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_TRUE(Has(texts[0], "division by zero")) << texts[0];
}

TEST_F(RunTimeErrorTest, AButtonsFailureIsShown) {
    QPushButton button;
    QObject::connect(&button, &QPushButton::clicked, &button,
                     [] { throw RunTimeError("subscript out of range"); });
    button.show();
    EXPECT_EQ(RunWith([&button] { button.click(); }), kRunTimeErrorStatus);
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_TRUE(Has(texts[0], "subscript out of range")) << texts[0];
}

// What the libraries below throw is a failure like any other.
TEST_F(RunTimeErrorTest, EveryKindOfFailureIsShown) {
    EXPECT_EQ(RunWith([] { std::vector<int>().at(1); }), kRunTimeErrorStatus);
    EXPECT_EQ(texts.size(), 1U);
}

TEST_F(RunTimeErrorTest, TwoFailuresInARowGiveOneBoxWithTheFirst) {
    EXPECT_EQ(RunWith([] {
                  QTimer::singleShot(0, qApp, [] { throw RunTimeError("the second"); });
                  throw RunTimeError("the first");
              }),
              kRunTimeErrorStatus);
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_TRUE(Has(texts[0], "the first")) << texts[0];
}

TEST_F(RunTimeErrorTest, AFailureWhileTheBoxIsUpGivesNoOther) {
    beforeOk = [] {
        QTimer::singleShot(0, qApp, [] { throw RunTimeError("the second"); });
        QCoreApplication::processEvents();
    };
    EXPECT_EQ(RunWith([] { throw RunTimeError("the first"); }), kRunTimeErrorStatus);
    EXPECT_EQ(texts.size(), 1U);
}

// A box that opened inside the paint event would paint the picture again, and fail again.
TEST_F(RunTimeErrorTest, APaintEventsFailureGivesOneBox) {
    FailingPicture picture;
    beforeOk = [&picture] { picture.repaint(); };
    EXPECT_EQ(RunWith([&picture] { picture.show(); }), kRunTimeErrorStatus);
    EXPECT_GT(picture.paints, 1);
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_TRUE(Has(texts[0], "the picture failed")) << texts[0];
}

// The dialog returns as cancelled, and what stands behind it in its handler is no second start.
TEST_F(RunTimeErrorTest, AFailureAboveAModalDialogClosesItAsCancelled) {
    std::optional<int> result;
    EXPECT_EQ(RunWith([&result] {
                  QDialog outer;
                  QTimer::singleShot(0, &outer, [&result] {
                      QDialog inner;
                      QTimer::singleShot(0, &inner, [] { throw RunTimeError("in the dialog"); });
                      result = inner.exec();
                  });
                  EXPECT_EQ(outer.exec(), QDialog::Rejected);
              }),
              kRunTimeErrorStatus);
    EXPECT_EQ(result, QDialog::Rejected);
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_TRUE(Has(texts[0], "in the dialog")) << texts[0];
}

// The text is shown as it is: a file's name may hold what looks like markup.
TEST_F(RunTimeErrorTest, TheTextIsNoMarkup) {
    beforeOk = [] {
        const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
    };
    EXPECT_EQ(RunWith([] { throw RunTimeError("<b>plate & scale</b>"); }), kRunTimeErrorStatus);
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_TRUE(Has(texts[0], "<b>plate & scale</b>")) << texts[0];
}

// The tables of the scale divide by the number of tics, and no page catches that. The preview
// repairs a design before it draws it; the scales page does not.
TEST_F(RunTimeErrorTest, AScaleWithoutTicsEndsTheProgramWhereNothingRepairsIt) {
    Design = DesignRecord{};
    Host = DesktopHost();
    SetForms(ProgramForms());
    SetVersionAndScreenScale(Design);
    SetOpeningValues(Design);
    ResetDesign(Design);
    const int status = RunWith([] {
        Design.NrOfTicmarks[1] = 0;
        GoToPage("frmPreview");
        EXPECT_EQ(Design.NrOfTicmarks[1], 50);
        Design.NrOfTicmarks[1] = 0;
        GoToPage("frmScales");
    });
    EXPECT_EQ(status, kRunTimeErrorStatus);
    EXPECT_EQ(texts.size(), 1U);
    EXPECT_EQ(CurrentPage()->objectName(), QLatin1String("frmPreview")) << "the page that was left";
    UnloadPage();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

} // namespace vernacle::test

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS(); // each test makes the application's object itself
}
