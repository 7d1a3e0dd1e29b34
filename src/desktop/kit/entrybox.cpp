#include "desktop/kit/entrybox.h"

#include <algorithm>

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>

#include "desktop/kit/updown.h"
#include "engine/base/numbertext.h"
#include "engine/core/entry.h"
#include "engine/core/service.h"

namespace vernacle {

namespace {

constexpr double kLargest = 1e30;
constexpr int kKeptMargin = 6; // pixels, beside the kept number

// Grey on paper, whichever of them is the light one.
QColor MiddleOf(const QColor& ink, const QColor& paper) {
    const auto mix = [](int one, int other) { return (one * 11 + other * 9) / 20; };
    return {mix(ink.red(), paper.red()), mix(ink.green(), paper.green()),
            mix(ink.blue(), paper.blue())};
}

// Counts what is under way, also when it is left by a failure.
class UnderWay {
public:
    explicit UnderWay(int& count) : count_(count) { ++count_; }
    ~UnderWay() { --count_; }
    UnderWay(const UnderWay&) = delete;
    UnderWay& operator=(const UnderWay&) = delete;

private:
    int& count_;
};

bool IsWithin(const QWidget& box, const QObject* object) {
    while (object && object != &box) {
        object = object->parent(); // such as the box's menu
    }
    return object != nullptr;
}

} // namespace

EntryBox::EntryBox(const char* name, const QString& accessibleName, QWidget* parent)
    : QLineEdit(parent) {
    setObjectName(QLatin1String(name));
    setAccessibleName(accessibleName);
    connect(this, &QLineEdit::textChanged, this, &EntryBox::RunHandler);
}

void EntryBox::RunHandler() {
    if (typing_ == 0) {
        Owe({}); // another text stands there
    }
    const UnderWay running(running_);
    Q_EMIT Changed();
}

float EntryBox::Number() const {
    return static_cast<float>(std::clamp(NumericValue(Text()), -kLargest, kLargest));
}

float EntryBox::SteppedNumber() const {
    if (!kept_.empty()) {
        return static_cast<float>(NumericValue(kept_));
    }
    std::string text = Text();
    float value = Number();
    if (reading_ == Reading::Entry) {
        ParseEntry(text, value);
    }
    return value;
}

void EntryBox::TellRange(const std::string& range) {
    range_ = range;
    setToolTip(QString::fromStdString(range));
    Describe();
}

void EntryBox::Describe() {
    const std::string parting = range_.empty() || kept_.empty() ? "" : ", ";
    const std::string kept = kept_.empty() ? "" : "kept as " + kept_;
    setAccessibleDescription(QString::fromStdString(range_ + parting + kept));
}

// The text keeps clear of it.
void EntryBox::ShowKept(const std::string& kept) {
    if (kept == kept_) {
        return;
    }
    kept_ = kept;
    const int room = fontMetrics().horizontalAdvance(QString::fromStdString(kept));
    setTextMargins(0, 0, kept.empty() ? 0 : room + kKeptMargin, 0);
    Describe();
    update();
}

void EntryBox::Show(const std::string& text) {
    Put(QString::fromStdString(text));
}

void EntryBox::Write(const std::string& text) {
    const QString written = QString::fromStdString(text);
    const bool same = written == this->text();
    Put(written);
    if (same && running_ == 0) {
        RunHandler();
    }
}

void EntryBox::ShowHeld(float entered, float held) {
    if (held != entered) {
        Write(PlainNumber(held));
    } else {
        Owe({});
    }
}

void EntryBox::Put(const QString& text) {
    if (text == this->text()) {
        Owe({});
    } else if (typing_ > 0 && (rewriting_ == Rewriting::WhenLeft || Service.carefulFiles)) {
        Owe(text);
    } else {
        setText(text);
    }
}

void EntryBox::Owe(const std::optional<QString>& text) {
    if (text && !owed_) {
        QCoreApplication::instance()->installEventFilter(this);
    } else if (!text && owed_) {
        QCoreApplication::instance()->removeEventFilter(this);
    }
    owed_ = text;
}

void EntryBox::FinishTyping() {
    if (owed_) {
        const QString text = *owed_;
        Owe({});
        setText(text);
    }
}

void EntryBox::SetArrows(UpDown* arrows) {
    arrows_ = arrows;
    connect(arrows, &UpDown::Stepping, this, &EntryBox::FinishTyping, Qt::UniqueConnection);
}

void EntryBox::SetBackground(const QColor& colour) {
    QPalette colours = palette();
    colours.setColor(QPalette::Base, colour);
    colours.setColor(QPalette::Text, Qt::black);
    setPalette(colours);
}

void EntryBox::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    if (kept_.empty()) {
        return;
    }
    QPainter painter(this);
    painter.setPen(MiddleOf(palette().color(QPalette::Text), palette().color(QPalette::Base)));
    painter.drawText(rect().adjusted(0, 0, -kKeptMargin, 0), Qt::AlignRight | Qt::AlignVCenter,
                     QString::fromStdString(kept_));
}

void EntryBox::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool steps = arrows_ && arrows_->isEnabled() && plain;
    if (steps && event->key() == Qt::Key_Up) {
        arrows_->Up();
    } else if (steps && event->key() == Qt::Key_Down) {
        arrows_->Down();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        FinishTyping();
        QLineEdit::keyPressEvent(event);
    } else if (!hasFocus() || event->matches(QKeySequence::Paste)) {
        QLineEdit::keyPressEvent(event);
    } else {
        const UnderWay typing(typing_);
        QLineEdit::keyPressEvent(event);
    }
}

// What the desktop puts together of several keys; it comes to the box that has the focus.
void EntryBox::inputMethodEvent(QInputMethodEvent* event) {
    const UnderWay typing(typing_);
    QLineEdit::inputMethodEvent(event);
}

void EntryBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    enteredByClick_ = event->reason() == Qt::MouseFocusReason;
}

// A menu above the box, or another window, does not leave it.
void EntryBox::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    enteredByClick_ = false;
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
        FinishTyping();
    }
}

// The click that enters the box selects its text, as Tab does; a drag selects what it is drawn
// over, and once the box is entered a click places the cursor.
void EntryBox::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (enteredByClick_ && event->button() == Qt::LeftButton && !hasSelectedText()) {
        selectAll();
    }
    enteredByClick_ = false;
}

bool EntryBox::eventFilter(QObject* watched, QEvent* event) {
    const bool leaves = event->type() == QEvent::Shortcut ||
                        (event->type() == QEvent::MouseButtonPress && watched->isWidgetType());
    if (leaves && !IsWithin(*this, watched)) {
        FinishTyping();
    }
    return QLineEdit::eventFilter(watched, event);
}

} // namespace vernacle
