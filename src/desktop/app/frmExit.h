// The exit page: asks whether to go, and keeps the session.
#pragma once

#include "desktop/kit/form.h"

class QLabel;
class QLayout;
class QPushButton;

namespace vernacle {

class frmExit : public ModalForm {
    Q_OBJECT

public:
    frmExit();

private:
    void cmdCancelClicked();
    void cmdExitClicked();
    void cmdSaveClicked();

    QLayout* MakeButtons();
    double PixelsPerTwip() const;
    void ShowNotice();

    QLabel* Label1_;
    QPushButton* cmdCancel_;
    QPushButton* cmdExit_;
    QPushButton* cmdSave_ = nullptr; // where there are changes that no file holds
    bool failed_ = false;            // to keep the session, when Exit was pressed before
};

} // namespace vernacle
