#include "desktop/help/illustrationform.h"

#include <QGridLayout>

#include "desktop/kit/formkit.h"
#include "desktop/kit/picturebox.h"

namespace vernacle {

namespace {

QLabel* MakeText(const char* name, const char* text) {
    QLabel* label = MakeLabel(name, QString::fromUtf8(text));
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    return label;
}

} // namespace

IllustrationForm::IllustrationForm(const IllustrationTraits& traits)
    : ModalForm(traits.form, QString::fromUtf8(traits.title)) {
    auto* grid = new QGridLayout(this);
    grid->setSpacing(10);
    int place = 0;
    for (const Illustration& illustration : traits.illustrations) {
        auto* picture = new PictureBox(illustration.picture, SampleArea(illustration.sample),
                                       UnitShape::Square);
        picture->setMinimumSize(200, 130);
        picture->setAccessibleName(QString::fromUtf8(illustration.text));
        DrawSample(picture->Surface(), illustration.sample);
        const int row = place / traits.columns * 2;
        const int column = place % traits.columns;
        grid->addWidget(picture, row, column);
        grid->addWidget(MakeText(illustration.label, illustration.text), row + 1, column);
        grid->setRowStretch(row, 1);
        grid->setColumnStretch(column, 1);
        ++place;
    }
    if (*traits.note != '\0') {
        grid->addWidget(MakeText("lblNote", traits.note), grid->rowCount(), 0, 1, traits.columns);
    }
    QPushButton* button = MakeButton(traits.button, QString::fromUtf8(traits.buttonCaption));
    button->setDefault(true);
    connect(button, &QPushButton::clicked, this, &QDialog::accept);
    grid->addWidget(button, grid->rowCount(), 0, 1, traits.columns, Qt::AlignRight);
    resize(RoomySize());
}

} // namespace vernacle
