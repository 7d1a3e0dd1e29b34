#include "pages/frmShowTicInfo.h"

#include <QShortcut>
#include <QVBoxLayout>

#include "pages/ticlist.h"
#include "platform/formkit.h"

namespace vernacle {

namespace {

constexpr QSize kUsualSize(440, 560);

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
    resize(kUsualSize);
    FillTicList();
}

void frmShowTicInfo::FillTicList() {
    lstTicsData_->Fill(InformationRow);
}

} // namespace vernacle
