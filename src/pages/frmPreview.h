// The preview page: the plate on the screen with a millimetre ruler, the aspect of the picture, and
// three overlays to check a plate against.
#pragma once

#include <cstdint>
#include <string>

#include "core/design.h"
#include "pages/designpage.h"
#include "render/drawing.h"

class QLayout;

namespace vernacle {

class EntryBox;
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
    void UpDown1Clicked(double aspect);
    void cmdCircleClicked();
    void cmdGridClicked();
    void cmdPointerClicked();
    void cmdHPGLClicked();

    void Draw();
    void ShowAspect();
    void ShowPercent();

    EntryBox* txtAspect_ = nullptr;
    EntryBox* txtAspectUpDown_ = nullptr;
    PictureBox* plate_ = nullptr;
    PageCopies sizes_;
    Table<std::string, kTexts> texts_; // the design's free texts, as they were at the load
    int numberOfTexts_ = 0;
};

} // namespace vernacle
