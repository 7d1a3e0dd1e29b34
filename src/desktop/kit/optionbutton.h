// One of several options. Selecting it, by the user or by the program, runs its handler, also when
// it was selected already.
#pragma once

#include <functional>
#include <string>

#include <QRadioButton>

namespace vernacle {

// The name of an option that is known by its number: "Option1".
std::string OptionName(int number);

class OptionButton : public QRadioButton {
    Q_OBJECT

public:
    OptionButton(const char* name, const QString& caption, QWidget* parent = nullptr);

    void OnSelect(std::function<void()> handler) { handler_ = std::move(handler); }

    // Selects it and runs its handler.
    void Select();

    // Selects it and runs nothing.
    void ShowSelected() { setChecked(true); }

    // Leaves it unselected, and perhaps its whole group without a selection.
    void Unselect();

    // The colour of its caption. Where that would not read on what the option stands on, the option
    // has a ground of its own while it is enabled.
    void SetInk(const QColor& colour);

    // The ground behind the caption, whatever its colour is.
    void SetGround(const QColor& colour);

private:
    void SetReadableGround(const QColor& ink);

    std::function<void()> handler_ = [] {};
    bool groundIsGiven_ = false;
};

} // namespace vernacle
