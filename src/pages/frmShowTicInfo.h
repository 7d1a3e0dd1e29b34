// The list of all tics with their labels and deflections, from which the percent of a highlight is
// read.
#pragma once

#include <QWidget>

#include "scale/ticrows.h"

namespace vernacle {

class RowList;

class frmShowTicInfo : public QWidget {
    Q_OBJECT

public:
    frmShowTicInfo();

private:
    void FillTicList();

    RowList* lstTicsData_ = nullptr;
    TicRows rows_;
};

} // namespace vernacle
