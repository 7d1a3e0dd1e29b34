// A wait on the world outside that keeps the program alive: nothing freezes, no page takes input,
// and the user may give up.
#pragma once

#include <memory>

#include <QElapsedTimer>
#include <QString>

class QProgressDialog;

namespace vernacle {

// Shows the wait cursor while it lives and, after a second, the window "boxWaiting" with a button
// Cancel.
class Patience {
public:
    explicit Patience(const QString& waitingFor);
    ~Patience();
    Patience(const Patience&) = delete;
    Patience& operator=(const Patience&) = delete;

    // One turn of the wait, which deals with what happens in the program; false once the user has
    // cancelled.
    bool Turn();

private:
    std::unique_ptr<QProgressDialog> box_;
    QElapsedTimer since_;
};

} // namespace vernacle
