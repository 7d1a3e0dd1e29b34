// What all forms share: pages that fill the screen, and dialogs that stand above them.
#pragma once

#include <QDialog>
#include <QWidget>

class QScrollArea;
class QVBoxLayout;

namespace vernacle {

// A page: a window with a body that scrolls where the screen is too small for it. What has the
// focus is scrolled into sight.
class Page : public QWidget {
    Q_OBJECT

public:
    explicit Page(const char* name);

    // Whether its close box keeps the session.
    virtual bool KeepsSession() const { return true; }

    // Whether what its user does are steps that can be undone one by one; what is done on the
    // others is one step, behind them.
    virtual bool TakesSteps() const { return false; }

    // Gives the design what the page has kept apart so far.
    virtual void StoreEntries() {}

protected:
    // The columns that the page's parts stand in, from top to bottom: the body scrolls, what stands
    // above and below it never does.
    QVBoxLayout& Head();
    QVBoxLayout& Body() { return *body_; }
    QVBoxLayout& Foot();

    // The user asks for the page to be closed, by whatever gesture. Code unloads pages without it.
    virtual void CloseBoxClicked() = 0;

    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void ShowFocused();

    QScrollArea* scroller_;
    QVBoxLayout* frame_;
    QVBoxLayout* head_ = nullptr; // made when it is asked for
    QVBoxLayout* body_;
    QVBoxLayout* foot_ = nullptr;
};

// A form above a page. Its close box just closes it.
class ModalForm : public QDialog {
    Q_OBJECT

public:
    ModalForm(const char* name, const QString& title);

protected:
    // That of one whose pictures want room: most of the screen, but no more than they need.
    static QSize RoomySize();
};

// Makes a screen reader say of each window what it is. Behind the application object, and before
// the first window.
void InstallWindowSpeech();

// The height of a form with a list of many rows, pixels: most of the screen.
int TallHeight();

} // namespace vernacle
