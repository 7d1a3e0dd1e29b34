// The graphic page: one picture on the plate, its file, place and size.
#pragma once

#include "desktop/pages/drawingpage.h"

class QLabel;

namespace vernacle {

class frmGraphic : public TextKeepingPage {
    Q_OBJECT

public:
    frmGraphic();

    // Illustrate an entry; no control leads there.
    void cmdLeftToImageClicked();
    void cmdBottomToImageClicked();
    void cmdGraphicWidthClicked();
    void cmdGraphicHeightClicked();

protected:
    void BeforeKey() override;

private:
    struct Measure;
    static const Measure kMeasures[];

    void Build();
    void Load();

    void LimitGraphicEntries();

    void MeasureChanged(const Measure& measure);
    void PartnerChanged(const Measure& measure);
    void cmdGetGraphicClicked();
    void cmdRemoveGraphicClicked();

    QLabel* lblGraphicName_ = nullptr;
};

} // namespace vernacle
