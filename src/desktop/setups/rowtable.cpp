#include "desktop/setups/rowtable.h"

#include <algorithm>

#include <QFrame>
#include <QGridLayout>
#include <QScrollArea>
#include <QStyle>

#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"

namespace vernacle {

namespace {

constexpr int kBetweenColumns = 18; // pixels
constexpr int kBetweenRows = 2;
constexpr int kMargin = 6;
constexpr int kSmallestHeight = 180;

OptionButton* MakeRowOption(const RowOption& option, const char* question, int row) {
    auto* button =
        new OptionButton(RowName(option.name, row).c_str(), QString::fromUtf8(option.caption));
    button->setAccessibleName(QStringLiteral("%1 %2: %3")
                                  .arg(QString::fromUtf8(question))
                                  .arg(row)
                                  .arg(QString::fromUtf8(option.caption)));
    return button;
}

void SetSpacing(QGridLayout& grid) {
    grid.setHorizontalSpacing(kBetweenColumns);
    grid.setVerticalSpacing(kBetweenRows);
    grid.setContentsMargins(kMargin, kBetweenRows, kMargin, kBetweenRows);
}

int WidthOf(const QGridLayout& grid, int row, int column) {
    const QLayoutItem* item = grid.itemAtPosition(row, column);
    return item ? item->widget()->sizeHint().expandedTo(item->widget()->minimumSize()).width() : 0;
}

} // namespace

std::string RowName(const char* control, int row) {
    return control + std::to_string(row);
}

void RowChoice::Show(Answer answer) const {
    (answer == Answer::Yes ? first : second)->ShowSelected();
}

Answer RowChoice::Chosen() const {
    return AnswerIf(first->isChecked());
}

RowChoice MakeRowChoice(const char* frame, const char* question, const RowOption& first,
                        const RowOption& second, int row) {
    const RowChoice choice{new QFrame, MakeRowOption(first, question, row),
                           MakeRowOption(second, question, row)};
    choice.frame->setObjectName(QString::fromStdString(RowName(frame, row)));
    auto* line = new QHBoxLayout(choice.frame);
    line->setContentsMargins({});
    line->addWidget(choice.first);
    line->addWidget(choice.second);
    return choice;
}

QLabel* MakeRowLabel(const char* name, int row) {
    QLabel* label = MakeLabel(RowName(name, row).c_str(), {});
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("8.888888E-88")));
    return label;
}

RowTable::RowTable(const char* name, std::span<const char* const> headings)
    : columns_(static_cast<int>(headings.size())) {
    setObjectName(QLatin1String(name));
    headings_ = new QGridLayout;
    SetSpacing(*headings_);
    for (int column = 0; column < columns_; ++column) {
        const auto index = static_cast<std::size_t>(column);
        const std::string heading = objectName().toStdString() + std::to_string(column);
        headings_->addWidget(MakeLabel(heading.c_str(), QString::fromUtf8(headings[index])), 0,
                             column, Qt::AlignLeft);
    }
    auto* content = new QWidget;
    rows_ = new QGridLayout;
    SetSpacing(*rows_);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->addLayout(rows_);
    column->addStretch();
    auto* scroller = new QScrollArea;
    scroller->setObjectName(objectName() + QStringLiteral("Scroller"));
    scroller->setWidgetResizable(true);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller->setFocusPolicy(Qt::NoFocus); // its rows have the keys
    scroller->setMinimumHeight(kSmallestHeight);
    scroller->setWidget(content);
    auto* parts = new QVBoxLayout(this);
    parts->setContentsMargins({});
    parts->setSpacing(0);
    parts->addLayout(headings_);
    parts->addWidget(scroller, 1);
}

void RowTable::AddRow(std::initializer_list<QWidget*> controls) {
    int column = 0;
    for (QWidget* control : controls) {
        rows_->addWidget(control, count_, column++);
    }
    ++count_;
}

void RowTable::AlignHeadings() {
    int whole = 0;
    for (int column = 0; column < columns_; ++column) {
        int width = WidthOf(*headings_, 0, column);
        for (int row = 0; row < count_; ++row) {
            width = std::max(width, WidthOf(*rows_, row, column));
        }
        headings_->setColumnMinimumWidth(column, width);
        rows_->setColumnMinimumWidth(column, width);
        whole += width + kBetweenColumns;
    }
    headings_->setColumnStretch(columns_, 1); // what is left over stands at the right
    rows_->setColumnStretch(columns_, 1);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    setMinimumWidth(whole + 2 * kMargin + bar);
}

} // namespace vernacle
