#include "desktop/setups/setuppage.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/kit/formkit.h"
#include "desktop/navigation/navigator.h"
#include "desktop/navigation/session.h"
#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/core/design.h"
#include "engine/designfile/readwrite.h"
#include "engine/scale/scale.h"
#include "engine/setups/setup.h"

namespace vernacle {

namespace {

constexpr const char* kScalesPage = "frmScales";

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
}

void SetupPage::EnterSetup() {
    BackupDesign(Design);
    lblWorking_->setText(QString::fromStdString("Working with scale # " +
                                                PlainNumber(std::int32_t{Design.CurrentScale})));
    if (traits_.readsBack && IsSpecial(Design, Scale())) {
        ReadBack();
    } else {
        StartAnew();
    }
    ShowStored();
    if ((traits_.computes & kAtLoad) != 0) {
        Compute();
    }
}

void SetupPage::ShowSetupPreview() {
    CheckEntries(kAtPreview);
    if ((traits_.computes & kAtPreview) != 0) {
        Compute();
    }
    ShowModal("frmSetupPreview");
}

void SetupPage::AcceptSetup() {
    CheckEntries(kAtAccept);
    if (traits_.marking == Marking::ByAccept) {
        MarkSpecial(Design, Scale());
    }
    if ((traits_.computes & kAtAccept) != 0) {
        Compute();
    }
    if (traits_.acceptUnloads) {
        GoToPageUnloading(kScalesPage, traits_.acceptUnloads);
    } else {
        GoToPage(kScalesPage);
    }
}

void SetupPage::IgnoreSetup() {
    RestoreBackup(Design);
    GoToPage(kScalesPage);
}

void SetupPage::ComputeOrReport(const std::function<void()>& compute) {
    try {
        compute();
    } catch (const ImpossibleEntry& entry) {
        ReportFailure(entry.what());
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
