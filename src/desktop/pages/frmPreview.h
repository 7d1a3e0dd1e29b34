// The preview page: the plate on the screen with a millimetre ruler, the aspect of the picture, and
// three overlays to check a plate against.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "desktop/pages/designpage.h"
#include "engine/core/design.h"
#include "engine/render/drawing.h"

class QLabel;
class QLayout;
class QPushButton;

namespace vernacle {

class Field;
class PictureBox;

class frmPreview : public DesignPage {
    Q_OBJECT

public:
    frmPreview();

private:
    struct Tool;
    static const Tool kTools[];

    void Build();
    QLayout* MakeAspect();
    QLayout* MakeTools();
    void Load();
    void CopyTexts();

    void txtAspectChanged();
    void txtAspectUpDownChanged();
    void UpDown1Stepped(int by);
    void cmdCircleClicked();
    void cmdGridClicked();
    void cmdPointerClicked();
    void cmdHPGLClicked();

    void Overlaid(std::int16_t& flag, void (frmPreview::*draw)());
    void OverlayCircle();
    void OverlayGrid();
    void OverlayPointer();

    void Draw();
    void ShowAspect();
    void ShowPercent();
    void ShowFlags();

    // A button that looks pressed while its flag is set.
    struct Overlay {
        QPushButton* button;
        std::int16_t& (*flag)();
    };

    Field* ratio_ = nullptr;
    Field* percent_ = nullptr;
    PictureBox* plate_ = nullptr;
    QLabel* remarks_ = nullptr; // on the true plate; none without it
    std::vector<Overlay> overlays_;
    PageCopies sizes_;
    Table<std::string, kTexts> texts_; // the design's free texts, as they were at the load
    int numberOfTexts_ = 0;
};

} // namespace vernacle
