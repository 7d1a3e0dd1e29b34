// The highlights page: ten coloured bands along the scale, by percent and millimetres.
#pragma once

#include "desktop/pages/drawingpage.h"
#include "desktop/pages/numberframe.h"
#include "engine/core/fieldplace.h"

namespace vernacle {

class frmHighlights : public TextKeepingPage {
    Q_OBJECT

public:
    frmHighlights();

protected:
    void Redraw() override;

private:
    struct Entry;
    static const Entry kEntries[];

    void Build();
    void Load();

    void FillHighlightEntry();

    void OptionClicked(int highlight);
    void EntryChanged(const Entry& entry);
    void txtLength1Changed(const Entry& entry);
    void txtLength10Changed();
    void cmdGetColorClicked();
    void cmdShowTicInfoClicked();

    void Store(const Entry& entry);
    void ShowTenfoldLength();

    NumberFrame numbers_;
    std::int16_t CurrentHighlight_ = 0; // none is selected
};

} // namespace vernacle
