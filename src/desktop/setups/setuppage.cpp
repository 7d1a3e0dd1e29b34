#include "desktop/setups/setuppage.h"

#include <QHBoxLayout>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/formkit.h"
#include "desktop/navigation/navigator.h"
#include "desktop/navigation/session.h"
#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/designfile/readwrite.h"
#include "engine/scale/scale.h"
#include "engine/scale/ticwalk.h"
#include "engine/setups/setup.h"

namespace vernacle {

namespace {

constexpr const char* kScalesPage = "frmScales";
constexpr const char* kLabelRemark = "lblLabelRemark"; // on the label that is typed

} // namespace

SetupPage::SetupPage(const SetupPageTraits& traits) : Page(traits.form), traits_(traits) {
    setWindowTitle(QString::fromUtf8(traits.title));
    lblWorking_ = MakeLabel("lblWorking", {});
    auto* line = new QHBoxLayout;
    line->addWidget(MakeHeading("lblHeading", QString::fromUtf8(traits.heading)));
    line->addSpacing(24);
    line->addWidget(lblWorking_);
    line->addStretch();
    Body().addLayout(line);
    if (Service.specialScales) {
        Body().addWidget(MakeLabel(kLabelRemark, {}));
    }
}

void SetupPage::EnterSetup() {
    KeepDesign();
    lblWorking_->setText(QString::fromStdString("Working with scale # " +
                                                PlainNumber(std::int32_t{Design.CurrentScale})));
    hasReadBack_ = ReadsBack();
    if (hasReadBack_) {
        ReadBack();
    } else {
        StartAnew();
    }
    ShowStored();
    if (!hasReadBack_ || !Service.specialScales) { // else the tics stand as they were made
        ComputeAt(kAtLoad);
    }
}

void SetupPage::KeepDesign() {
    if (Service.carefulFiles) {
        before_ = std::make_unique<const DesignRecord>(Design);
    } else {
        BackupDesign(Design);
    }
}

bool SetupPage::ReadsBack() const {
    return Service.specialScales ? HoldsTicsFor(Design, Scale(), traits_.kind)
                                 : traits_.readsBack && IsSpecial(Design, Scale());
}

void SetupPage::ShowSetupPreview() {
    if (CheckEntries(kAtPreview) && ComputeAt(kAtPreview)) {
        ShowModal("frmSetupPreview");
    }
}

bool SetupPage::AcceptSetup() {
    if (!CheckEntries(kAtAccept) || !ComputeAt(kAtAccept)) {
        return false;
    }
    if (traits_.marking == Marking::ByAccept) {
        MarkSpecial(Design, Scale());
    }
    RememberKind();
    if (traits_.acceptUnloads && !Service.specialScales) {
        GoToPageUnloading(kScalesPage, traits_.acceptUnloads);
    } else {
        GoToPage(kScalesPage);
    }
    return true;
}

void SetupPage::IgnoreSetup() {
    if (before_) {
        Design = *before_;
    } else {
        RestoreBackup(Design);
    }
    GoToPage(kScalesPage);
}

bool SetupPage::ComputeAt(SetupMoment moment) {
    const unsigned more = Service.specialScales ? traits_.computesInService : 0;
    const bool isDue = ((traits_.computes | more) & moment) != 0;
    return !isDue || StoreOrReport([this] { Compute(); });
}

bool SetupPage::ComputeOrReport(const std::function<void()>& compute) {
    try {
        compute();
    } catch (const ImpossibleEntry& entry) {
        ReportFailure(entry.what());
        return false;
    }
    return true;
}

bool SetupPage::StoreOrReport(const std::function<void()>& compute) {
    const bool stored = ComputeOrReport(compute);
    if (stored) {
        RememberKind();
    }
    return stored;
}

void SetupPage::RememberKind() {
    if (Service.specialScales) {
        RememberSetup(Design, Scale(), traits_.kind);
    }
}

void SetupPage::GuardLabel(EntryBox& box) {
    if (!Service.specialScales) {
        return;
    }
    static const QRegularExpression kWithoutSeparator(QStringLiteral("[^\\\\]*"));
    box.setValidator(new QRegularExpressionValidator(kWithoutSeparator, &box));
    box.setToolTip(QStringLiteral("any text without a \\, which parts the entries of a file"));
    connect(&box, &QLineEdit::inputRejected, &box, [] { Host.beep(); });
    connect(&box, &QLineEdit::textEdited, &box, [&box] {
        auto* remark = box.window()->findChild<QLabel*>(QLatin1String(kLabelRemark));
        remark->setText(QString::fromStdString(LabelRemark(box.Text())));
    });
}

void SetupPage::GuardNumber(EntryBox& box) {
    constexpr int kLongest = 10; // of an entry; what is longer would be passed over
    if (Service.specialScales) {
        box.setMaxLength(kLongest);
    }
}

void SetupPage::CloseBoxClicked() {
    SaveSessionAndEnd();
}

QPushButton* SetupPage::MakePreview() {
    QPushButton* preview = MakeButton("cmdPreview", QStringLiteral("Preview"));
    connect(preview, &QPushButton::clicked, this, &SetupPage::ShowSetupPreview);
    return preview;
}

QPushButton* SetupPage::MakeAccept() {
    accept_ = MakeButton("cmdAccept", QString::fromUtf8(traits_.acceptCaption));
    connect(accept_, &QPushButton::clicked, this, &SetupPage::AcceptSetup);
    return accept_;
}

QPushButton* SetupPage::MakeIgnore() {
    ignore_ = MakeButton(traits_.ignoreName, QString::fromUtf8(traits_.ignoreCaption));
    connect(ignore_, &QPushButton::clicked, this, &SetupPage::IgnoreSetup);
    return ignore_;
}

int SetupPage::Scale() {
    return Design.CurrentScale;
}

} // namespace vernacle
