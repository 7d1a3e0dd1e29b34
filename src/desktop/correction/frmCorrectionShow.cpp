#include "desktop/correction/frmCorrectionShow.h"

#include <algorithm>

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "desktop/kit/formkit.h"
#include "engine/core/design.h"
#include "engine/correction/curvetable.h"

namespace vernacle {

namespace {

constexpr int kLeftRows = 26;

// Lines that can be selected and copied, in a font of one pitch, all of them in view.
QPlainTextEdit* MakeBlock(const char* name, const QString& accessibleName,
                          const QStringList& lines) {
    auto* block = new QPlainTextEdit(lines.join(QLatin1Char('\n')));
    block->setObjectName(QLatin1String(name));
    block->setAccessibleName(accessibleName);
    block->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    block->setTabChangesFocus(true);
    block->setLineWrapMode(QPlainTextEdit::NoWrap);
    block->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    block->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    block->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const QFontMetrics metrics = block->fontMetrics();
    const int frame =
        2 * (block->frameWidth() + static_cast<int>(block->document()->documentMargin()));
    const auto characters = static_cast<int>(lines.first().size()) + 1;
    block->setFixedSize(metrics.horizontalAdvance(QLatin1Char('0')) * characters + frame,
                        metrics.lineSpacing() * static_cast<int>(lines.size()) + frame);
    return block;
}

QStringList CurveLines(int first, int count) {
    QStringList lines{QString::fromUtf8(kCurveHeading)};
    for (int row = first; row < first + count; ++row) {
        const Slopes slopes = RefreshSlopes(Design);
        lines << QString::fromStdString(CurveRow(Design, row, slopes));
    }
    return lines;
}

QStringList SegmentLines() {
    QStringList lines{QString::fromUtf8(kSegmentHeading)};
    const int points = std::min<int>(Design.NumberOfCorrectionPoints, kCurvePoints);
    for (int segment = 1; segment < points; ++segment) {
        lines << QString::fromStdString(SegmentRow(Design, segment));
    }
    return lines;
}

QString Title() {
    std::string title = "Vernacle - Correction table";
    if (!Design.DesignFileName.empty()) {
        title += " - " + Design.DesignFileName;
    }
    return QString::fromStdString(title);
}

} // namespace

frmCorrectionShow::frmCorrectionShow() : ModalForm("frmCorrectionShow", Title()) {
    const QStringList left = CurveLines(0, kLeftRows);
    const QStringList right = CurveLines(kLeftRows, kTableRows - kLeftRows);
    const QStringList segments = SegmentLines(); // by the slopes that the rows have computed
    QPushButton* exit = MakeButton("cmdExit", QStringLiteral("Close"));
    connect(exit, &QPushButton::clicked, this, &QDialog::accept);
    auto* blocks = new QHBoxLayout;
    blocks->setSpacing(16);
    blocks->addWidget(MakeBlock("txtSegments", QStringLiteral("Segments"), segments), 0,
                      Qt::AlignVCenter);
    blocks->addWidget(MakeBlock("txtRows0", QStringLiteral("Points 0 to 25"), left), 0,
                      Qt::AlignTop);
    blocks->addWidget(MakeBlock("txtRows26", QStringLiteral("Points 26 to 50"), right), 0,
                      Qt::AlignTop);
    auto* column = new QVBoxLayout(this);
    column->addWidget(MakeHeading("Label5", QStringLiteral("Movement correction table")));
    column->addLayout(blocks);
    column->addStretch();
    column->addWidget(exit, 0, Qt::AlignRight);
}

} // namespace vernacle
