// The scales page: which scale is edited, its range, tics, labels, title and place, with the plate
// drawn anew at every change.
#pragma once

#include <initializer_list>
#include <span>
#include <string>

#include "core/slot.h"
#include "pages/designpage.h"
#include "render/drawing.h"

class QGridLayout;
class QGroupBox;
class QLayout;
class QPushButton;

namespace vernacle {

class EntryBox;
class OptionButton;
class PictureBox;

class frmScales : public DesignPage {
    Q_OBJECT

public:
    frmScales();

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
    EntryBox& MakePartner(const Entry& entry);
    QLayout* MakeFrames();
    QPushButton* MakeButtonOf(const Button& button);
    QGroupBox* MakeScaleNumbers();
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

    void Redraw();
    EntryBox& Box(const char* name) const;
    OptionButton& OptionNumber(int number) const;
    void SetEnabled(std::initializer_list<const char*> controls, bool enabled);

    PictureBox* plate_ = nullptr;
    QGroupBox* fraPrintTics_ = nullptr;
    PageSizes sizes_;
    float linearityExponent_ = 0; // as typed, before its limits
    float relativeSize_ = 0;      // as the arrows of the relative size ask for it
};

} // namespace vernacle
