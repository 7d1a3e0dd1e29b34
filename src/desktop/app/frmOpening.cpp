#include "desktop/app/frmOpening.h"

#include <algorithm>

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QShortcut>
#include <QSvgRenderer>
#include <QVBoxLayout>

#include "desktop/kit/formkit.h"
#include "desktop/navigation/navigator.h"
#include "desktop/pages/vernaclefile.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/designfile/readwrite.h"
#include "engine/output/calibrate.h"

namespace vernacle {

namespace {

constexpr float kButtonDelay = 1; // seconds
constexpr double kTitleSize = 3;  // of the ordinary font
constexpr double kSubtitleSize = 1.4;

// The picture of a meter, as large as the page allows.
class MeterPicture : public QWidget {
public:
    MeterPicture() {
        setObjectName(QStringLiteral("Image1"));
        setAccessibleName(QStringLiteral("A panel meter"));
        setMinimumSize(240, 180);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QSvgRenderer meter(QStringLiteral(":/icons/meter.svg"));
        meter.setAspectRatioMode(Qt::KeepAspectRatio);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        meter.render(&painter, rect());
    }
};

QLabel* MakeLightLabel(const char* name, const QString& text, double size) {
    QLabel* label = MakeLabel(name, text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * size);
    label->setFont(font);
    QPalette colours = label->palette();
    colours.setColor(QPalette::WindowText, Qt::white); // on the blend, whatever the desktop is
    label->setPalette(colours);
    label->setAlignment(Qt::AlignHCenter);
    return label;
}

} // namespace

struct frmOpening::Button {
    const char* name;
    const char* caption;
    const char* tip;
    const char* shortcut;
    void (frmOpening::*clicked)();
};

const frmOpening::Button frmOpening::kButtons[] = {
    {"cmdOld", "Retrieve an old design", "Recall a previously-designed scale   ", "Ctrl+O",
     &frmOpening::cmdOldClicked},
    {"cmdLastSession", "Restart at last session", "Restart where you left off at your last session",
     "", &frmOpening::cmdLastSessionClicked},
    {"cmdExit", "Exit / Quit", "Exit or quit the program now   ", "Ctrl+Q",
     &frmOpening::cmdExitClicked},
};

frmOpening::frmOpening() {
    setObjectName(QStringLiteral("frmOpening"));
    SetVersionAndScreenScale(Design);
    setWindowTitle(QString::fromStdString(Design.ProgramName + " - Welcome !"));
    Build();
    if (!CurrentPage()) { // the program starts: who comes back from the wizard keeps the design
        SetOpeningValues(Design);
    }
    ReadCalibrate(Design);
}

void frmOpening::Build() {
    auto* column = new QVBoxLayout(this);
    column->addStretch(1);
    column->addWidget(new MeterPicture, 6);
    column->addLayout(MakeTexts());
    column->addStretch(1);
    column->addLayout(MakeButtons());
    column->addWidget(
        MakeLightLabel("lblBegin",
                       QStringLiteral("To begin a new design, press \"Retrieve an old "
                                      "design\" and cancel the dialog that opens."),
                       1));
    column->addStretch(1);
}

QLayout* frmOpening::MakeTexts() {
    auto* texts = new QVBoxLayout;
    texts->addWidget(
        MakeLightLabel("lblTitle", QString::fromStdString(Design.ProgramName), kTitleSize));
    texts->addWidget(MakeLightLabel(
        "lblSubtitle", QStringLiteral("True-size scale plates for analog panel meters"),
        kSubtitleSize));
    texts->addWidget(MakeLightLabel("lblVersion", QString::fromStdString(Design.VersionText), 1));
    return texts;
}

QLayout* frmOpening::MakeButtons() {
    auto* buttons = new QVBoxLayout;
    for (const Button& button : kButtons) {
        QPushButton* made = MakeButton(button.name, QString::fromUtf8(button.caption),
                                       QString::fromUtf8(button.tip));
        made->setMinimumSize(made->sizeHint() * 1.4);
        if (&button == &kButtons[0]) {
            made->setFocus();
        }
        connect(made, &QPushButton::clicked, this, button.clicked);
        if (*button.shortcut != '\0') {
            auto* shortcut = new QShortcut(QKeySequence(QLatin1String(button.shortcut)), this);
            connect(shortcut, &QShortcut::activated, made, [made] { made->click(); });
        }
        buttons->addWidget(made);
    }
    auto* centred = new QHBoxLayout;
    centred->addStretch();
    centred->addLayout(buttons);
    centred->addStretch();
    return centred;
}

// A blend from black to blue, line by line.
void frmOpening::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const int lines = height();
    for (int line = 1; line <= lines; ++line) {
        const int blue = std::clamp(254 * line / lines + 1, 1, 255);
        painter.fillRect(0, line - 1, width(), 1, QColor(1, 1, blue));
    }
}

void frmOpening::closeEvent(QCloseEvent* event) {
    event->ignore();
    cmdExitClicked();
}

void frmOpening::cmdOldClicked() {
    Delay(kButtonDelay);
    Design.DesignFileName = AskForVernacleFile(this, "Get Vernacle File");
    ResetDesign(Design);
    ReadDesign(Design, Design.DesignFileName);
    GoToPage("frmPreview");
}

void frmOpening::cmdLastSessionClicked() {
    Delay(kButtonDelay);
    Design.DesignFileName = LastSessionName();
    ReadDesign(Design, Design.DesignFileName);
    Design.ActiveScale = 1;
    GoToPage("frmPreview");
}

void frmOpening::cmdExitClicked() {
    UnloadPage();
    EndProcess();
}

void frmOpening::StartNewDesign() {
    ResetDesign(Design);
    Delay(kButtonDelay);
    GoToPage("frmWizard");
}

} // namespace vernacle
