// A box for one typed value. It tells of every change of its text, typed or written by the program
// alike; what is connected there is its handler.
//
// A handler may write another text into its own box: a limit, the number in its plain form. While
// the user types, that would stand between two keys and make ".8" a ".58". So what a key brings on
// waits until the box is left: by Tab, a click elsewhere, Return, a shortcut, or its arrows. All
// else that the handler does follows each key, and what is pasted is rewritten at once.
//
// Where the number that is kept is another than the one that is shown, it stands in grey at the
// right end of the box.
#pragma once

#include <optional>
#include <string>

#include <QLineEdit>

namespace vernacle {

class UpDown;

enum class Reading {
    Entry,   // a number by the rules of an entry, "2k2" and "1,5"
    Plain,   // the number that the text starts with
    Text,    // the text as it stands
    Trimmed, // the text without the blanks around it
};

// When the box shows what its handler wrote into it while a key was under way.
enum class Rewriting {
    WhenLeft,
    AtOnce, // but where kept numbers are shown in grey: where no number that is accepted is typed
            // through one that is not
};

class EntryBox : public QLineEdit {
    Q_OBJECT

public:
    EntryBox(const char* name, const QString& accessibleName, QWidget* parent = nullptr);

    std::string Text() const { return text().toStdString(); }

    // The number that the text starts with, else 0; held to what a float takes with ease.
    float Number() const;

    // The number that the box stands for, from which its arrows step. What the rules of an entry
    // ignore is read plainly.
    float SteppedNumber() const;

    void SetReading(Reading reading) { reading_ = reading; }
    void SetRewriting(Rewriting rewriting) { rewriting_ = rewriting; }

    // Tells the user, by the box's tip and to a screen reader, what numbers it takes.
    void TellRange(const std::string& range);

    // Writes from the program, and runs the handler only if the text is another: for a pair of
    // boxes that tell each other until they agree.
    void Show(const std::string& text);

    // Writes from the program. The text that the box holds already runs the handler too, unless it
    // is running: two boxes that show the same value in two forms would else never end.
    void Write(const std::string& text);

    // From a handler that has held the entered number to its limits: the box shows where it was
    // held, and else goes on showing what was entered.
    void ShowHeld(float entered, float held);

    // Shows in grey the number that is kept instead of the one in the box, from which the arrows
    // step then; none if empty.
    void ShowKept(const std::string& kept);
    const std::string& Kept() const { return kept_; }

    // The box is left: shows what waits to be shown.
    void FinishTyping();

    // The Up and Down keys step these.
    void SetArrows(UpDown* arrows);

    // A warning colour, or white, with a text that reads on it whatever the desktop's colours are.
    void SetBackground(const QColor& colour);

Q_SIGNALS:
    void Changed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

    // Of the whole program, while a text waits: a click or a shortcut leaves the box also where it
    // takes no focus.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void RunHandler();
    void Put(const QString& text);
    void Owe(const std::optional<QString>& text);
    void Describe();

    UpDown* arrows_ = nullptr;
    Reading reading_ = Reading::Entry;
    Rewriting rewriting_ = Rewriting::WhenLeft;
    int running_ = 0; // handlers under way
    int typing_ = 0;  // keys under way
    std::string range_;
    std::string kept_;
    std::optional<QString> owed_; // waits until the box is left
    bool enteredByClick_ = false; // which has not ended yet
};

} // namespace vernacle
