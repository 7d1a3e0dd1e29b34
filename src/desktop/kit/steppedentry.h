// A box with its arrows at its right side, as one widget. Without arrows their place stays free, so
// that the boxes of a column are of one width.
#pragma once

#include <QWidget>

namespace vernacle {

class EntryBox;
class UpDown;

class SteppedEntry : public QWidget {
    Q_OBJECT

public:
    explicit SteppedEntry(EntryBox& box, UpDown* arrows = nullptr);
};

} // namespace vernacle
