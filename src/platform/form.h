// What all forms share: pages that fill the screen, and dialogs that stand above them.
#pragma once

#include <QDialog>
#include <QWidget>

class QVBoxLayout;

namespace vernacle {

// A page: a window with a body that scrolls where the screen is too small for it.
class Page : public QWidget {
    Q_OBJECT

public:
    explicit Page(const char* name);

    // Whether its close box keeps the session.
    virtual bool KeepsSession() const { return true; }

protected:
    // The column that the page's parts stand in, from top to bottom.
    QVBoxLayout& Body() { return *body_; }

    // The user asks for the page to be closed, by whatever gesture. Code unloads pages without it.
    virtual void CloseBoxClicked() = 0;

    void closeEvent(QCloseEvent* event) override;

private:
    QVBoxLayout* body_;
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

} // namespace vernacle
