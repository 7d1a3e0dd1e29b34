// The graphic page: one picture on the plate, its file, place and size.
#pragma once

#include <vector>

#include "desktop/pages/drawingpage.h"

class QLabel;
class QPushButton;

namespace vernacle {

class Field;

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
    void Build();
    void Load();

    void LimitGraphicEntries();

    void MeasureChanged(const Field& measure);
    void PartnerChanged(const Field& measure);
    void cmdGetGraphicClicked();
    void cmdRemoveGraphicClicked();

    std::vector<Field*> measures_;
    QPushButton* cmdGetGraphic_ = nullptr;
    QPushButton* cmdRemoveGraphic_ = nullptr;
    QLabel* lblGraphicName_ = nullptr;
};

} // namespace vernacle
