#include "platform/entrybox.h"

#include <algorithm>

#include <QKeyEvent>

#include "core/entry.h"
#include "core/numbertext.h"
#include "platform/updown.h"

namespace vernacle {

namespace {

constexpr double kLargest = 1e30;

// Counts a handler that is under way, also when it is left by a failure.
class Running {
public:
    explicit Running(int& count) : count_(count) { ++count_; }
    ~Running() { --count_; }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

private:
    int& count_;
};

} // namespace

EntryBox::EntryBox(const char* name, const QString& accessibleName, QWidget* parent)
    : QLineEdit(parent) {
    setObjectName(QLatin1String(name));
    setAccessibleName(accessibleName);
    connect(this, &QLineEdit::textChanged, this, &EntryBox::Changed);
}

void EntryBox::Changed() {
    if (handler_) {
        const Running running(running_);
        handler_();
    }
}

float EntryBox::Number() const {
    return static_cast<float>(std::clamp(NumericValue(Text()), -kLargest, kLargest));
}

float EntryBox::SteppedNumber() const {
    std::string text = Text();
    float value = Number();
    if (reading_ == Reading::Entry) {
        ParseEntry(text, value);
    }
    return value;
}

void EntryBox::TellRange(const std::string& range) {
    setToolTip(QString::fromStdString(range));
    setAccessibleDescription(toolTip());
}

void EntryBox::Show(const std::string& text) {
    setText(QString::fromStdString(text));
}

void EntryBox::Write(const std::string& text) {
    const QString written = QString::fromStdString(text);
    if (written != this->text()) {
        setText(written);
    } else if (running_ == 0) {
        Changed();
    }
}

void EntryBox::SetBackground(const QColor& colour) {
    QPalette colours = palette();
    colours.setColor(QPalette::Base, colour);
    colours.setColor(QPalette::Text, Qt::black);
    setPalette(colours);
}

void EntryBox::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool steps = arrows_ && arrows_->isEnabled() && plain;
    if (steps && event->key() == Qt::Key_Up) {
        arrows_->Up();
    } else if (steps && event->key() == Qt::Key_Down) {
        arrows_->Down();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

} // namespace vernacle
