// The wizard's second page: the design in full, beside eleven values to nudge.
#pragma once

#include "desktop/kit/form.h"
#include "engine/render/drawing.h"

class QGridLayout;
class QLabel;

namespace vernacle {

class PictureBox;
struct Nudge;

class frmWizardPart2 : public Page {
    Q_OBJECT

public:
    frmWizardPart2();

protected:
    void CloseBoxClicked() override;

private:
    void Build();
    void AddNudge(const Nudge& nudge, QGridLayout& grid, int row);
    void Load();

    void Step(const Nudge& nudge, QLabel& number, double by);
    void TakeSize(const Nudge& nudge);
    void Redraw();
    void cmdAcceptClicked();

    PictureBox* plate_ = nullptr;
    PageCopies copies_;
};

} // namespace vernacle
