#include "desktop/setups/rowtable.h"

#include <algorithm>

#include <QGridLayout>
#include <QHeaderView>
#include <QScrollArea>
#include <QStandardItemModel>
#include <QStyle>

#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"

namespace vernacle {

namespace {

constexpr int kBetweenColumns = 18; // pixels
constexpr int kBetweenRows = 2;
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

// A heading stands as far into its section as the columns stand into theirs.
int MarginOf(const QHeaderView& headings) {
    return headings.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &headings);
}

// As high as its texts: the toolkit's own would be high enough for a scroll bar.
class HeadingsView : public QHeaderView {
public:
    HeadingsView() : QHeaderView(Qt::Horizontal) {
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    }
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }
};

QHeaderView* MakeHeadings(std::span<const char* const> headings) {
    QStringList texts;
    for (const char* heading : headings) {
        texts << QString::fromUtf8(heading);
    }
    auto* view = new HeadingsView;
    auto* model = new QStandardItemModel(view);
    model->setHorizontalHeaderLabels(texts);
    view->setModel(model);
    view->setAccessibleName(texts.join(QLatin1Char(' ')));
    view->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    view->setSectionResizeMode(QHeaderView::Fixed); // their columns would not follow
    view->setFocusPolicy(Qt::NoFocus);
    return view;
}

int WidthOf(const QGridLayout& grid, int row, int column) {
    const QWidget* control = grid.itemAtPosition(row, column)->widget();
    return control->sizeHint().expandedTo(control->minimumSize()).width();
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
    : headings_(MakeHeadings(headings)) {
    setObjectName(QLatin1String(name));
    setFrameShape(QFrame::StyledPanel);
    headings_->setObjectName(objectName() + QStringLiteral("Headings"));
    const int margin = MarginOf(*headings_);
    auto* content = new QWidget;
    rows_ = new QGridLayout;
    rows_->setHorizontalSpacing(kBetweenColumns);
    rows_->setVerticalSpacing(kBetweenRows);
    rows_->setContentsMargins(margin, kBetweenRows, margin, kBetweenRows);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->addLayout(rows_);
    column->addStretch();
    auto* scroller = new QScrollArea;
    scroller->setObjectName(objectName() + QStringLiteral("Scroller"));
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setWidgetResizable(true);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller->setFocusPolicy(Qt::NoFocus); // its rows have the keys
    scroller->setMinimumHeight(kSmallestHeight);
    scroller->setWidget(content);
    auto* parts = new QVBoxLayout(this);
    parts->setContentsMargins({});
    parts->setSpacing(0);
    parts->addWidget(headings_);
    parts->addWidget(scroller, 1);
}

void RowTable::AddRow(std::initializer_list<QWidget*> controls) {
    int column = 0;
    for (QWidget* control : controls) {
        rows_->addWidget(control, count_, column++);
    }
    ++count_;
}

void RowTable::ChangeRows(const std::function<void()>& change) {
    QLayout& layout = *rows_->parentWidget()->layout();
    layout.setEnabled(false);
    change();
    layout.setEnabled(true);
    layout.invalidate();
    layout.activate();
}

void RowTable::AlignHeadings() {
    for (int column = 0; column < headings_->count(); ++column) {
        int width = headings_->sectionSizeHint(column);
        for (int row = 0; row < count_; ++row) {
            width = std::max(width, WidthOf(*rows_, row, column) + kBetweenColumns);
        }
        headings_->resizeSection(column, width);
        rows_->setColumnMinimumWidth(column, width - kBetweenColumns);
    }
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    setMinimumWidth(headings_->length() + 2 * (MarginOf(*headings_) + frameWidth()) + bar);
    headings_->setStretchLastSection(true);
    rows_->setColumnStretch(headings_->count(), 1); // what is left over stands at the right
}

} // namespace vernacle
