// The scales page: which scale is edited, its range, tics, labels, title and place, with the plate
// drawn anew at every change.
#pragma once

#include <span>
#include <string>

#include "desktop/pages/drawingpage.h"
#include "engine/core/fieldplace.h"

class QGridLayout;
class QGroupBox;
class QLayout;
class QPushButton;

namespace vernacle {

class frmScales : public DrawingPage {
    Q_OBJECT

public:
    frmScales();

    // Illustrate an entry; no control leads there.
    void cmdBottomToTitleClicked();
    void cmdBottomToScaleCeilingClicked();

protected:
    void Redraw() override;

private:
    struct Entry;
    struct Option;
    struct Button;
    static const Entry kEntries[];
    static std::span<const Entry> Entries();
    static const Button kButtons[];
    static const Button kExponentHelp;
    static const Button kTicsHelp;

    // Building
    void Build();
    QLayout* MakeEntries();
    void AddEntry(const Entry& entry, QGridLayout& grid, int row);
    QLayout* MakeFrames();
    QPushButton* MakeButtonOf(const Button& button);
    QGroupBox* MakeYesNo(const char* name, const char* title, const Option& yes, const Option& no);
    QLayout* MakeButtons();

    // Loading
    void Load();
    void ShowScaleOptions();
    void Fill(const Entry& entry);
    void Fill(const char* box);
    void FillPartner();
    void ShowPrintTics();
    void EnableStandardEntries();

    // Handlers
    void NumberChanged(const Entry& entry);
    void txtLinearityExponentChanged(const Entry& entry);
    void txtRelFontsizeChanged(const Entry& entry);
    void txtRelFontSizeUpDownChanged();
    void txtScaleTitleChanged(const Entry& entry);
    void ScaleClicked(int scale);
    void Option7Clicked();
    void Option8Clicked();
    void Option9Clicked();
    void Option10Clicked();
    void cmdGetColorClicked();
    void cmdRevertToStandardClicked();
    void cmddBsetupClicked();
    void cmdSelectTicsClicked();
    void cmdSelectTicsHelpClicked();
    void cmdLinearityExponentClicked();

    QGroupBox* fraPrintTics_ = nullptr;
    float linearityExponent_ = 0; // as typed, before its limits
    float relativeSize_ = 0;      // as the arrows of the relative size ask for it
};

} // namespace vernacle
