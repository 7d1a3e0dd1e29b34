// The exit page: asks whether to go, and keeps the session.
#pragma once

#include "desktop/kit/form.h"

class QLabel;
class QPushButton;

namespace vernacle {

class frmExit : public ModalForm {
    Q_OBJECT

public:
    frmExit();

private:
    void cmdCancelClicked();
    void cmdExitClicked();

    double PixelsPerTwip() const;
    void ShowNotice();

    QLabel* Label1_;
    QPushButton* cmdCancel_;
    QPushButton* cmdExit_;
    bool failed_ = false; // to keep the session, when Exit was pressed before
};

} // namespace vernacle
