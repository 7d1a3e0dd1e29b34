#include "desktop/pages/frmShowTicInfo.h"

#include <QShortcut>
#include <QVBoxLayout>

#include "desktop/kit/form.h"
#include "desktop/kit/formkit.h"
#include "desktop/pages/ticlist.h"

namespace vernacle {

namespace {

constexpr int kShowTicInfoColumns = 40; // characters of a row, and room for the scroll bar

} // namespace

frmShowTicInfo::frmShowTicInfo() {
    setObjectName(QStringLiteral("frmShowTicInfo"));
    setWindowFlags(Qt::Dialog); // stands above the page it belongs to
    setWindowTitle(QStringLiteral("Vernacle - Show tic info"));
    auto* heading = MakeLabel("lblHeader", QStringLiteral("        Tic: Label: Defl%:"));
    lstTicsData_ = new TicList(heading->text());
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
    const int character = lstTicsData_->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    lstTicsData_->setMinimumWidth(kShowTicInfoColumns * character);
    resize(sizeHint().width(), TallHeight());
    FillTicList();
}

void frmShowTicInfo::FillTicList() {
    lstTicsData_->Fill(Design, InformationRow);
    StandBehindRows(Design);
}

} // namespace vernacle
