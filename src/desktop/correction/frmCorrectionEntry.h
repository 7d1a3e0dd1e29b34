// The correction entry: the movement's transfer curve as a plot with handles and as boxes. Works on
// the design itself: there is no undo.
#pragma once

#include <array>
#include <string>

#include "desktop/kit/form.h"
#include "engine/core/design.h"

class QLabel;
class QPoint;

namespace vernacle {

class CurvePicture;
class EntryBox;

class frmCorrectionEntry : public ModalForm {
    Q_OBJECT

public:
    frmCorrectionEntry();

private:
    static constexpr const char* kCurveAdvice =
        "Use either drag / drop or textbox entry to enter the new transfer function.";

    static float FractionOf(double percent) { return static_cast<float>(percent * 0.01); }

    void Build();
    QLayout* MakeBoxes();
    QLayout* MakeButtons();
    void MakeHandles();

    void SetPointFromDrop(int index, double x, double y);
    void RedrawCorrectionCurve();
    void FillBoxes();
    void FillBoxesPlainly();
    void TakeBoxes();
    std::string AskForCurve();
    void ResetToLinear();

    // Where the curve outlives the session
    void ShowKeptCurve();
    void MarkRows();
    void RefuseOnce();
    void TakeChangedBoxes();
    void ReadKeptCurve();

    void HandlePressed(int index);
    void HandleDropped(int index, const QPoint& at);
    void HandleStepped(int index, int across, int up);
    void cmdAcceptXYClicked();
    void cmdReadClicked();
    void cmdWriteClicked();
    void cmdRestoreClicked();
    void cmdShowTableClicked();

    // "Text1" to "Text14": of each point the current and the deflection.
    static constexpr int kTextBoxes = 2 * kCurvePoints;
    static constexpr int kFirstEntered = 3; // the boxes of the end points are not read
    static constexpr int kLastEntered = 12;
    EntryBox*& Text(int number) { return boxes_.at(static_cast<std::size_t>(number) - 1); }

    std::array<EntryBox*, kTextBoxes> boxes_{};
    CurvePicture* picture_ = nullptr;
    QLabel* Label10_ = nullptr;
    bool refused_ = false;          // the curve that is shown, and told so
    std::int16_t DraggedPoint_ = 0; // the handle last pressed
    std::string CorrectionFileName_;
};

} // namespace vernacle
