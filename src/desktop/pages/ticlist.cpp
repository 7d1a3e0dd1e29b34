#include "desktop/pages/ticlist.h"

namespace vernacle {

TicList::TicList(const QString& heading) : RowList("lstTicsData", heading.simplified()) {}

void TicList::Fill(const DesignRecord& design, const TicRows::RowText& row) {
    clear();
    rows_.Fill(design, row);
    QStringList shown;
    for (int number = 1; number <= rows_.Count(); ++number) {
        shown << QString::fromStdString(rows_[number]);
    }
    addItems(shown);
}

} // namespace vernacle
