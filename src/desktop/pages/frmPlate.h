// The plate page: the measures of plate, bearing, holes, pointer, tics, labels and arcs.
#pragma once

#include <string>

#include "desktop/pages/designpage.h"

class QGridLayout;
class QGroupBox;
class QLabel;
class QLayout;

namespace vernacle {

class EntryBox;
class PictureBox;

class frmPlate : public DesignPage {
    Q_OBJECT

public:
    frmPlate();

private:
    struct NumericItem;
    struct Option;
    struct OptionFrame;
    static const NumericItem kItems[];
    static const Option kOptions[];
    static const OptionFrame kFrames[];

    // Building
    void Build();
    QLayout* MakeItems();
    void AddItem(const NumericItem& item, QGridLayout& grid, int row);
    QLayout* MakeFrames();
    QGroupBox* MakeOptionFrame(const OptionFrame& frame);
    QLayout* MakeTools();

    // Loading
    void Load();
    void FillItems();
    void ShowOptionsOf(const char* frame);

    // Handlers
    void ItemChanged(const NumericItem& item);
    void Illustrate(const NumericItem& item);
    void optStyleClicked(std::int16_t style);
    void optGraphicClicked(const char* yesNo, const char* cleared);
    void cmdCalibrateClicked();
    void cmdLinearityClicked();
    void cmdGetFontClicked();
    void cmdGetBackgroundColorClicked();
    void cmdRotateHelpClicked();
    void cmdStyleHelpClicked();

    void RedrawSchematic();
    void WarnOfQuadrant();
    void ShowFont();
    void ShowBackground();
    EntryBox& Box(const char* name) const;

    PictureBox* schematic_ = nullptr;
    QLabel* lblShowFont_ = nullptr;
    QLabel* swatch_ = nullptr;
};

} // namespace vernacle
