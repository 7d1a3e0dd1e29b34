// The application object: its one handler shows a failure that no routine traps and ends the
// process. Behind a dialog it sees to it that a window has the keys again.
#pragma once

#include <string>

#include <QApplication>

namespace vernacle {

constexpr int kRunTimeErrorStatus = 3;

class Application : public QApplication {
    Q_OBJECT

public:
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

private:
    void EndWith(const std::string& failure);

    bool ending_ = false;
};

} // namespace vernacle
