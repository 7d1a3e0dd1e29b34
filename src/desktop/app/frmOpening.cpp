#include "desktop/app/frmOpening.h"

#include <algorithm>

#include <QCloseEvent>
#include <QDateTime>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPainter>
#include <QShortcut>
#include <QSvgRenderer>
#include <QVBoxLayout>

#include "desktop/kit/formkit.h"
#include "desktop/navigation/navigator.h"
#include "desktop/navigation/opendocument.h"
#include "desktop/navigation/session.h"
#include "desktop/pages/carefuldesign.h"
#include "desktop/pages/vernaclefile.h"
#include "desktop/system/recentfiles.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/core/service.h"
#include "engine/designfile/readwrite.h"
#include "engine/output/calibrate.h"

namespace vernacle {

namespace {

constexpr float kButtonDelay = 1; // seconds
constexpr double kTitleSize = 3;  // of the ordinary font
constexpr double kSubtitleSize = 1.4;
constexpr int kRecentGap = 24; // pixels
constexpr int kRecentCharacters = 56;
constexpr int kRecentRows = 9;
constexpr int kIsSession = Qt::UserRole + 1;

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
    const char* name = nullptr;
    const char* caption = nullptr;
    const char* tip = nullptr;
    const char* shortcut = nullptr;
    void (frmOpening::*clicked)() = nullptr;
    LiftedBy standsWith = nullptr; // only where this is in service; none: always
};

const frmOpening::Button frmOpening::kButtons[] = {
    {"cmdNew", "Start a new design", "Enter a meter's measures one by one, with pictures", "Ctrl+N",
     &frmOpening::StartNewDesign, &ServiceState::wizard},
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
        if (Service.carefulFiles) {
            StartFromDefaults();
        }
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
    if (!Service.wizard) {
        column->addWidget(
            MakeLightLabel("lblBegin",
                           QStringLiteral("To begin a new design, press \"Retrieve an old "
                                          "design\" and cancel the dialog that opens."),
                           1));
    }
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
        if (button.standsWith && !IsLifted(button.standsWith)) {
            continue;
        }
        QPushButton* made = MakeButton(button.name, QString::fromUtf8(button.caption),
                                       QString::fromUtf8(button.tip));
        made->setMinimumSize(made->sizeHint() * 1.4);
        if (buttons->isEmpty()) {
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
    if (QLayout* recent = Service.carefulFiles ? MakeRecent() : nullptr) {
        centred->addSpacing(kRecentGap);
        centred->addLayout(recent);
    }
    centred->addStretch();
    return centred;
}

// Files by their names, then the sessions by their times.
QLayout* frmOpening::MakeRecent() {
    auto* list = new QListWidget;
    list->setObjectName(QStringLiteral("lstRecent"));
    const auto add = [list](const QString& text, const QString& file, int kind) {
        auto* item = new QListWidgetItem(text, list);
        item->setToolTip(file);
        item->setData(Qt::UserRole, file);
        item->setData(kIsSession, kind);
    };
    for (const RecentFile& file : RecentFiles()) {
        const QFileInfo info(QString::fromStdString(file.name));
        add(info.fileName() + QStringLiteral("  (%1)").arg(info.path()), info.filePath(), 0);
    }
    for (const std::string& file : KeptSessionNames()) {
        const QFileInfo info(QString::fromStdString(file));
        add(QStringLiteral("Session of ") +
                info.lastModified().toString(QStringLiteral("yyyy-MM-dd hh:mm")),
            info.filePath(), 1);
    }
    if (list->count() == 0) {
        delete list;
        return nullptr;
    }
    list->setMinimumWidth(list->fontMetrics().averageCharWidth() * kRecentCharacters);
    list->setMaximumHeight(list->fontMetrics().lineSpacing() * kRecentRows);
    connect(list, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem* item) { RecentChosen(*item); });
    auto* column = new QVBoxLayout;
    QLabel* caption = MakeLightLabel("lblRecent", QStringLiteral("Worked on last:"), 1);
    caption->setAlignment(Qt::AlignLeft);
    caption->setBuddy(list);
    list->setAccessibleName(QStringLiteral("Worked on last"));
    column->addWidget(caption);
    column->addWidget(list);
    return column;
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

// The preview makes the design ready; that is no step of its user.
void frmOpening::ShowDesign() {
    GoToPage("frmPreview");
    Document().Absorb();
}

void frmOpening::RecentChosen(const QListWidgetItem& item) {
    const std::string file = item.data(Qt::UserRole).toString().toStdString();
    const bool isSession = item.data(kIsSession).toInt() != 0;
    if (MayGiveUpDesign(this) && (isSession ? OpenSession(file) : OpenDesignFile(file))) {
        ShowDesign();
    }
}

void frmOpening::cmdOldClicked() {
    if (Service.carefulFiles) {
        if (MayGiveUpDesign(this) && OpenDesignByDialog(this, "Get Vernacle File")) {
            ShowDesign();
        }
        return;
    }
    Delay(kButtonDelay);
    Design.DesignFileName = AskForVernacleFile(this, "Get Vernacle File");
    ResetDesign(Design);
    ReadDesign(Design, Design.DesignFileName);
    GoToPage("frmPreview");
}

void frmOpening::cmdLastSessionClicked() {
    if (Service.carefulFiles) {
        if (MayGiveUpDesign(this) && OpenSession(LastSessionName())) {
            ShowDesign();
        }
        return;
    }
    Delay(kButtonDelay);
    Design.DesignFileName = LastSessionName();
    ReadDesign(Design, Design.DesignFileName);
    Design.ActiveScale = 1;
    GoToPage("frmPreview");
}

void frmOpening::cmdExitClicked() {
    if (Service.carefulFiles) {
        Document().Commit(); // of who came back from the wizard
        if (!Document().IsKept()) {
            SaveSessionAndEnd();
            return;
        }
    }
    UnloadPage();
    EndProcess();
}

void frmOpening::StartNewDesign() {
    if (Service.carefulFiles) {
        if (MayGiveUpDesign(this)) {
            StartFromDefaults();
            GoToPage("frmWizard");
        }
        return;
    }
    ResetDesign(Design);
    Delay(kButtonDelay);
    GoToPage("frmWizard");
}

} // namespace vernacle
