// A box for one typed value. Its handler runs at every change of the text, typed or written by the
// program alike.
#pragma once

#include <functional>
#include <string>

#include <QLineEdit>

namespace vernacle {

class UpDown;

enum class Reading {
    Entry, // by the rules of an entry, "2k2" and "1,5"
    Plain, // the number that the text starts with
};

class EntryBox : public QLineEdit {
    Q_OBJECT

public:
    EntryBox(const char* name, const QString& accessibleName, QWidget* parent = nullptr);

    void OnChange(std::function<void()> handler) { handler_ = std::move(handler); }

    std::string Text() const { return text().toStdString(); }

    // The number that the text starts with, else 0; held to what a float takes with ease.
    float Number() const;

    // The number that the box stands for, from which its arrows step. What the rules of an entry
    // ignore is read plainly.
    float SteppedNumber() const;

    void SetReading(Reading reading) { reading_ = reading; }

    // Tells the user, by the box's tip and to a screen reader, what numbers it takes.
    void TellRange(const std::string& range);

    // Writes from the program, and runs the handler only if the text is another: for a pair of
    // boxes that tell each other until they agree.
    void Show(const std::string& text);

    // Writes from the program. The text that the box holds already runs the handler too, unless it
    // is running: two boxes that show the same value in two forms would else never end.
    void Write(const std::string& text);

    // The Up and Down keys step these.
    void SetArrows(UpDown* arrows) { arrows_ = arrows; }

    // A warning colour, or white, with a text that reads on it whatever the desktop's colours are.
    void SetBackground(const QColor& colour);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Changed();

    std::function<void()> handler_;
    UpDown* arrows_ = nullptr;
    Reading reading_ = Reading::Entry;
    int running_ = 0; // handlers under way
};

} // namespace vernacle
