// The list of every tic of every scale, with the rows' texts.
#pragma once

#include "desktop/kit/rowlist.h"
#include "engine/scale/ticrows.h"

namespace vernacle {

class TicList : public RowList {
    Q_OBJECT

public:
    // The heading that stands above its columns is its name for a screen reader.
    explicit TicList(const QString& heading);

    // Shows the row of every tic, as TicRows::Fill takes them.
    void Fill(const DesignRecord& design, const TicRows::RowText& row);

    const std::string& Row(int row) const { return rows_[row]; }

private:
    TicRows rows_;
};

} // namespace vernacle
