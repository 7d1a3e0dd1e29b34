#include "desktop/setups/setuppage.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
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
    BackupDesign();
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
        MarkSpecial(Scale());
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
    RestoreBackup();
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

QPushButton* SetupPage::MakeAccept() {
    QPushButton* accept = MakeButton("cmdAccept", QString::fromUtf8(traits_.acceptCaption));
    connect(accept, &QPushButton::clicked, this, &SetupPage::AcceptSetup);
    return accept;
}

QPushButton* SetupPage::MakeIgnore() {
    QPushButton* ignore = MakeButton(traits_.ignoreName, QString::fromUtf8(traits_.ignoreCaption));
    connect(ignore, &QPushButton::clicked, this, &SetupPage::IgnoreSetup);
    return ignore;
}

int SetupPage::Scale() {
    return Design.CurrentScale;
}

EntryBox& SetupPage::Box(const char* name) const {
    return *findChild<EntryBox*>(QLatin1String(name));
}

OptionButton& SetupPage::Option(const char* name) const {
    return *findChild<OptionButton*>(QLatin1String(name));
}

QWidget& SetupPage::Control(const char* name) const {
    return *findChild<QWidget*>(QLatin1String(name));
}

} // namespace vernacle
