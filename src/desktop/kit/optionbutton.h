// One of several options. It tells that it is selected, by the user or by the program, also when it
// was selected already.
#pragma once

#include <string>

#include <QRadioButton>

namespace vernacle {

// The name of an option that is known by its number: "Option1".
std::string OptionName(int number);

class OptionButton : public QRadioButton {
    Q_OBJECT

public:
    OptionButton(const char* name, const QString& caption, QWidget* parent = nullptr);

    // Selects it as its user does.
    void Select();

    // Selects it and tells nobody.
    void ShowSelected() { setChecked(true); }

    // Leaves it unselected, and perhaps its whole group without a selection.
    void Unselect();

    // The colour of its caption. Where that would not read on what the option stands on, the option
    // has a ground of its own while it is enabled.
    void SetInk(const QColor& colour);

    // The ground behind the caption, whatever its colour is.
    void SetGround(const QColor& colour);

    // From now on a caption that could not be seen on its given ground is black or white.
    void KeepVisible() { keepsVisible_ = true; }

Q_SIGNALS:
    void Selected();

private:
    void SetReadableGround(const QColor& ink);
    QColor VisibleInk() const;

    QColor ink_;
    bool groundIsGiven_ = false;
    bool keepsVisible_ = false;
};

} // namespace vernacle
