// The fixture of the forms' tests: the program's own forms under a platform without windows, on a
// screen of 1920 x 1080, driven by keys and clicks. Waits pass at once; messages are kept in said,
// and all other dialogs are the real ones.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QTest>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/kit/picturebox.h"
#include "desktop/navigation/navigator.h"
#include "engine/core/design.h"
#include "support/answers.h"
#include "support/enginetest.h"
#include "support/recordingsurface.h"

namespace vernacle::test {

using Strings = std::vector<std::string>;

// Controls by their names, and what each of them shows.
using ShownTexts = std::initializer_list<std::pair<const char*, const char*>>;

// The calls of which the picture consists now.
RecordingSurface Recorded(const PictureBox& picture);

class FormTest : public EngineTest {
protected:
    // The design as the program starts with it, and reset as a new one.
    FormTest();
    ~FormTest() override;

    // Walks to that page and gives it.
    QWidget& OpenPage(const std::string& name);
    QWidget& Page() const; // the one that is shown
    std::string PageName() const { return Page().objectName().toStdString(); }

    // The control of that name on the page, or on a form.
    template <typename Control>
    Control& On(const QWidget& form, const std::string& name) const {
        auto* control = form.findChild<Control*>(QString::fromStdString(name));
        if (!control) {
            throw std::runtime_error("no control " + name);
        }
        return *control;
    }
    template <typename Control = QWidget>
    Control& Find(const std::string& name) const {
        return On<Control>(Page(), name);
    }
    EntryBox& Box(const std::string& name) const;
    OptionButton& Option(const std::string& name) const;
    PictureBox& Picture(const std::string& name) const;

    // As a user: replaces the box's text by typed keys, presses a control, steps a box's arrows.
    void Type(const std::string& box, const std::string& text) const;
    void Click(const std::string& control) const;
    static void Click(QWidget& control);
    // With what comes of it: the page may be another then.
    void ClickAndSettle(const std::string& control) const;
    void StepUp(const std::string& upDown) const { Click(upDown + "Up"); }
    void StepDown(const std::string& upDown) const { Click(upDown + "Down"); }

    // Writes the text in one go, as a paste does.
    void Paste(const std::string& box, const std::string& text) const;

    std::string TextOf(const std::string& box) const;
    // The same of any control: a frame's title, else its text.
    std::string Shown(const std::string& control) const;
    bool IsSelected(const std::string& option) const { return Option(option).isChecked(); }
    bool IsEnabled(const std::string& control) const { return Find(control).isEnabled(); }

    void ExpectShown(ShownTexts texts) const { ExpectShown(Page(), texts); }
    void ExpectShown(const QWidget& form, ShownTexts texts) const;
    void ExpectEnabled(std::initializer_list<const char*> controls, bool enabled) const;
    void ExpectSelected(std::initializer_list<const char*> options, bool selected) const;

    // Tab walks over those controls in that order, from the first one on; blanks part the names.
    void ExpectTabOrder(const std::string& names) const { ExpectTabOrder(Page(), names); }
    void ExpectTabOrder(const QWidget& form, const std::string& names) const;

    // The calls of which the picture consists now, as the recording surface writes them.
    Strings CallsOf(const std::string& picture) const { return Recorded(Picture(picture)).calls; }
    Strings TextsOf(const std::string& picture) const { return Recorded(Picture(picture)).texts; }

    // Once the next modal dialog or form is open, answer is called with it; it has to close it.
    // Several answers wait for one dialog after the other.
    void Answer(std::function<void(QWidget& dialog)> answer);
    // A click, and one answer for each of the dialogs that come of it.
    template <typename... Answers>
    void ClickAndAnswer(const std::string& control, const Answers&... answers) {
        (Answer(answers), ...);
        ClickAndSettle(control);
        EXPECT_TRUE(AllAnswered());
    }
    // Whether all answers have been asked for.
    bool AllAnswered() const { return answers_.empty(); }

    // The user closes the window, by its close box or whatever gesture.
    static void CloseByUser(QWidget& window);

    // Whether code has asked for the process to end; asking takes it back.
    static bool TakeProcessEnd();

    // Lets deferred deletions and pending events happen.
    static void Settle();

private:
    void AnswerNext();

    std::vector<std::function<void(QWidget&)>> answers_;
    QObject context_;
    int answersGiven_ = 1;
    int waits_ = 0;
    double clock_ = 0;
};

} // namespace vernacle::test
