// The list of all tics with their labels and deflections, from which the percent of a highlight is
// read.
#pragma once

#include <QWidget>

namespace vernacle {

class TicList;

class frmShowTicInfo : public QWidget {
    Q_OBJECT

public:
    frmShowTicInfo();

private:
    void FillTicList();

    TicList* lstTicsData_ = nullptr;
};

} // namespace vernacle
