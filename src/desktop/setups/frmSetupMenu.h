// The menu of the special scales: five kinds, each with a picture.
#pragma once

#include "desktop/kit/form.h"

namespace vernacle {

class frmSetupMenu : public Page {
    Q_OBJECT

public:
    frmSetupMenu();

protected:
    void CloseBoxClicked() override;

private:
    struct Entry;
    static const Entry kEntries[];

    QLayout* MakeEntry(const Entry& entry);
    void EntryClicked(const Entry& entry);
};

} // namespace vernacle
