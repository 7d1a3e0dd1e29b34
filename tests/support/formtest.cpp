#include "support/formtest.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QTimer>
#include <QWindow>

#include "desktop/app/forms.h"
#include "desktop/system/desktophost.h"
#include "engine/base/hostservices.h"

namespace vernacle::test {

namespace {

constexpr int kRetryMs = 5;
constexpr int kMostWaits = 200;           // for a dialog to be active, as a user's would be
constexpr const char* kAnswer = "answer"; // a dialog's property: the number of its last answer
constexpr double kClockStep = 10;         // seconds: longer than any wait

std::string ShownBy(const QWidget& control) {
    const QVariant title = control.property("title");
    return (title.isValid() ? title : control.property("text")).toString().toStdString();
}

} // namespace

RecordingSurface Recorded(const PictureBox& picture) {
    RecordingSurface surface;
    picture.Record().Replay(surface);
    return surface;
}

FormTest::FormTest() {
    const HostServices desktop = DesktopHost();
    Host.screenSize = desktop.screenSize;
    Host.servePendingEvents = desktop.servePendingEvents;
    Host.pause = [] {};
    Host.clockSeconds = [this] { return clock_ += kClockStep; };
    SetForms(ProgramForms());
    SetVersionAndScreenScale(Design);
    SetOpeningValues(Design);
    ResetDesign(Design);
    Design.ActiveScale = 1;
    Design.CalibrationX = Design.CalibrationY = 1;
}

FormTest::~FormTest() {
    UnloadPage();
    Settle();
    EXPECT_TRUE(answers_.empty()) << "a dialog that was to be answered never came";
    answers_.clear();
}

QWidget& FormTest::OpenPage(const std::string& name) {
    GoToPage(name);
    Settle();
    return Page();
}

QWidget& FormTest::Page() const {
    if (!CurrentPage()) {
        throw std::runtime_error("no page is shown");
    }
    return *CurrentPage();
}

EntryBox& FormTest::Box(const std::string& name) const {
    return Find<EntryBox>(name);
}

OptionButton& FormTest::Option(const std::string& name) const {
    return Find<OptionButton>(name);
}

PictureBox& FormTest::Picture(const std::string& name) const {
    return Find<PictureBox>(name);
}

void FormTest::Type(const std::string& box, const std::string& text) const {
    EntryBox& entry = Box(box);
    entry.setFocus();
    entry.selectAll();
    QTest::keyClick(&entry, Qt::Key_Delete);
    QTest::keyClicks(&entry, QString::fromStdString(text));
}

void FormTest::Paste(const std::string& box, const std::string& text) const {
    EntryBox& entry = Box(box);
    entry.selectAll();
    entry.insert(QString::fromStdString(text));
}

void FormTest::Click(const std::string& control) const {
    Click(Find(control));
}

void FormTest::ClickAndSettle(const std::string& control) const {
    Click(control);
    Settle();
}

void FormTest::Click(QWidget& control) {
    // Beside its left edge, where an option has its mark.
    const QPoint at(std::min(control.width() / 2, 10), control.height() / 2);
    QTest::mouseClick(&control, Qt::LeftButton, {}, at);
}

std::string FormTest::TextOf(const std::string& box) const {
    return Box(box).Text();
}

std::string FormTest::Shown(const std::string& control) const {
    return ShownBy(Find(control));
}

void FormTest::ExpectShown(const QWidget& form, ShownTexts texts) const {
    for (const auto& [control, text] : texts) {
        EXPECT_EQ(ShownBy(On<QWidget>(form, control)), text) << control;
    }
}

void FormTest::ExpectEnabled(std::initializer_list<const char*> controls, bool enabled) const {
    for (const char* control : controls) {
        EXPECT_EQ(IsEnabled(control), enabled) << control;
    }
}

void FormTest::ExpectSelected(std::initializer_list<const char*> options, bool selected) const {
    for (const char* option : options) {
        EXPECT_EQ(IsSelected(option), selected) << option;
    }
}

void FormTest::ExpectTabOrder(const QWidget& form, const std::string& names) const {
    const QStringList expected = QString::fromStdString(names).split(QLatin1Char(' '));
    On<QWidget>(form, expected.first().toStdString()).setFocus();
    QStringList walked;
    while (walked.size() < expected.size() && form.focusWidget()) {
        walked.push_back(form.focusWidget()->objectName());
        QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(walked.join(QLatin1Char(' ')).toStdString(), names);
}

void FormTest::Answer(std::function<void(QWidget&)> answer) {
    answers_.push_back(std::move(answer));
    if (answers_.size() == 1) {
        AnswerNext();
    }
}

void FormTest::AnswerNext() {
    QTimer::singleShot(kRetryMs, &context_, [this] {
        QWidget* dialog = QApplication::activeModalWidget();
        // One that waits in the middle of its answer is not asked for the next.
        const bool underWay = dialog && dialog->property(kAnswer).toInt() == answersGiven_;
        const bool ready = dialog && dialog->isVisible() && !underWay;
        const bool hasKeys = ready && (dialog->isActiveWindow() || ++waits_ > kMostWaits);
        if (!hasKeys) {
            AnswerNext();
            return;
        }
        waits_ = 0;
        dialog->setProperty(kAnswer, ++answersGiven_);
        const auto answer = answers_.front();
        answers_.erase(answers_.begin());
        if (!answers_.empty()) {
            AnswerNext();
        }
        answer(*dialog);
    });
}

void FormTest::CloseByUser(QWidget& window) {
    QCloseEvent event; // as the window system sends it
    QApplication::sendEvent(window.windowHandle(), &event);
}

bool FormTest::TakeProcessEnd() {
    constexpr int kGoesOn = 5;
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&loop] { loop.exit(kGoesOn); });
    const bool ended = loop.exec() != kGoesOn; // a loop of an ending process returns at once
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
    QApplication::exec(); // takes the end back
    return ended;
}

void FormTest::Settle() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

} // namespace vernacle::test
