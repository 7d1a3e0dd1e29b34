// The page that the program starts on: an old design, the last session, or the way out.
#pragma once

#include <QWidget>

class QLayout;

namespace vernacle {

class frmOpening : public QWidget {
    Q_OBJECT

public:
    frmOpening();

    // A new design by the guided path.
    void StartNewDesign();

protected:
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    struct Button;
    static const Button kButtons[];

    void Build();
    QLayout* MakeTexts();
    QLayout* MakeButtons();

    void cmdOldClicked();
    void cmdLastSessionClicked();
    void cmdExitClicked();
};

} // namespace vernacle
