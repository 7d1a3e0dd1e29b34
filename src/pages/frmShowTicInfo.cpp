#include "pages/frmShowTicInfo.h"

#include <QShortcut>
#include <QVBoxLayout>

#include "platform/formkit.h"
#include "platform/rowlist.h"

namespace vernacle {

namespace {

constexpr QSize kUsualSize(440, 560);

} // namespace

frmShowTicInfo::frmShowTicInfo() {
    setObjectName(QStringLiteral("frmShowTicInfo"));
    setWindowFlags(Qt::Dialog); // stands above the page it belongs to
    setWindowTitle(QStringLiteral("Vernacle - Show tic info"));
    auto* heading = MakeLabel("lblHeader", QStringLiteral("        Tic: Label: Defl%:"));
    lstTicsData_ = new RowList("lstTicsData", heading->text().simplified());
    heading->setFont(lstTicsData_->font());
    lstTicsData_->setSelectionMode(QAbstractItemView::NoSelection); // is read only
    QPushButton* exit = MakeButton("cmdExit", QStringLiteral("Close"));
    connect(exit, &QPushButton::clicked, this, &QWidget::close);
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(escape, &QShortcut::activated, this, &QWidget::close);
    auto* column = new QVBoxLayout(this);
    column->addWidget(heading);
    column->addWidget(lstTicsData_, 1);
    column->addWidget(exit, 0, Qt::AlignRight);
    resize(kUsualSize);
    FillTicList();
}

void frmShowTicInfo::FillTicList() {
    rows_.Fill(InformationRow);
    QStringList shown;
    for (int row = 1; row <= rows_.Count(); ++row) {
        shown << QString::fromStdString(rows_[row]);
    }
    lstTicsData_->SetRows(shown);
}

} // namespace vernacle
