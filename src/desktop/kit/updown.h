// The two arrows beside a box, one above the other.
#pragma once

#include <QWidget>

namespace vernacle {

class EntryBox;

struct StepRange {
    double lowest = 0;
    double highest = 0;
    double step = 1;
};

class UpDown : public QWidget {
    Q_OBJECT

public:
    static constexpr int kWidth = 20; // pixels

    UpDown(const char* name, const QString& accessibleName, QWidget* parent = nullptr);

    // From then on the arrows step the number that the box shows and land inside the range; the
    // box's own handler does the rest. The box steps by its Up and Down keys too.
    void AttachTo(EntryBox& box, const StepRange& range);

    // Makes the arrows stops of the Tab key, where no box has the keys.
    void TakeKeys();

    void Up();
    void Down();

Q_SIGNALS:
    void Stepping();      // before each step
    void Stepped(int by); // 1 or -1
};

} // namespace vernacle
