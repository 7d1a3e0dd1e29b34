// The page that the program starts on: an old design, the last session, or the way out; where it is
// in service, a new design too, and those that were worked on last.
#pragma once

#include <QWidget>

class QLayout;
class QListWidget;
class QListWidgetItem;

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
    QLayout* MakeRecent(); // null where there is nothing to go on with

    static void ShowDesign();
    void RecentChosen(const QListWidgetItem& item);
    void cmdOldClicked();
    void cmdLastSessionClicked();
    void cmdExitClicked();
};

} // namespace vernacle
