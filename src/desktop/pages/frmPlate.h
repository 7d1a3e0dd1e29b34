// The plate page: the measures of plate, bearing, holes, pointer, tics, labels and arcs.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "desktop/pages/designpage.h"

class QGroupBox;
class QLabel;
class QLayout;

namespace vernacle {

class Field;
class OptionButton;
class PictureBox;

class frmPlate : public DesignPage {
    Q_OBJECT

public:
    frmPlate();

private:
    static constexpr std::int16_t kQuadrant = 1; // plate style

    enum class Group;
    enum class Frame;
    enum class Help;
    struct Option;
    struct OptionFrame;
    static const Option kOptions[];
    static const OptionFrame kFrames[];

    // Building
    void Build();
    QLayout* MakeMeasures();
    QLayout* MakeFrames();
    QGroupBox* MakeOptionFrame(const OptionFrame& frame);
    OptionButton* MakeOption(const Option& option);
    QLayout* MakeTools();

    // Loading
    void Load();
    void FillMeasures();
    void ShowSound();
    void ShowOptions(); // the others

    // Handlers
    void Changed(const Field& measure);
    void Illustrate(const Field& measure);
    void optStyleClicked(std::int16_t style);
    void optGraphicClicked(const char* yesNo, OptionButton& cleared);
    void cmdCalibrateClicked();
    void cmdLinearityClicked();
    void cmdGetFontClicked();
    void cmdGetBackgroundColorClicked();
    void cmdRotateHelpClicked();
    void cmdStyleHelpClicked();

    void RedrawSchematic();
    void WarnOfQuadrant();
    void EnableBearing();
    void ShowFont();
    void ShowBackground();

    std::vector<Field*> measures_;
    QGroupBox* fraGraphic_ = nullptr;
    std::map<const Option*, OptionButton*> options_;
    OptionButton* optPrintTextYes_ = nullptr;
    OptionButton* optPrintTextNo_ = nullptr;
    PictureBox* schematic_ = nullptr;
    QLabel* lblShowFont_ = nullptr;
    QLabel* swatch_ = nullptr;
};

} // namespace vernacle
