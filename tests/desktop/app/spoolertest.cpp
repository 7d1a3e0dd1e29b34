#include "desktop/app/spoolertest.h"

#include <cstdlib>

#include <QComboBox>
#include <QRadioButton>
#include <QSpinBox>

#include "support/pdfreader.h"
#include "support/process.h"

namespace vernacle::test {

namespace {

template <typename Widget>
Widget& In(QWidget& dialog, const char* name) {
    auto* widget = dialog.findChild<Widget*>(QLatin1String(name));
    if (!widget) {
        throw std::runtime_error(std::string("no ") + name);
    }
    return *widget;
}

void PressOk(QWidget& dialog) {
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
}

void Select(QComboBox& box, const QString& text) {
    const int index = box.findText(text, Qt::MatchStartsWith);
    ASSERT_GE(index, 0) << text.toStdString();
    box.setCurrentIndex(index);
}

// Of the queue's own options, the one that can have that value.
void SetOwnOption(QWidget& dialog, const QString& value) {
    for (auto* box : In<QWidget>(dialog, "cupsPropertiesPage").findChildren<QComboBox*>()) {
        if (box->findText(value) >= 0) {
            Select(*box, value);
            return;
        }
    }
    ADD_FAILURE() << "no option " << value.toStdString();
}

void ChooseProperties(QWidget& dialog, const PrintChoice& choice) {
    if (!choice.paper.empty()) {
        Select(In<QComboBox>(dialog, "pageSizeCombo"), QString::fromStdString(choice.paper));
    }
    const bool isLandscape = choice.orientation == QPageLayout::Landscape;
    In<QRadioButton>(dialog, isLandscape ? "landscape" : "portrait").click();
    if (choice.fromLowerTray) {
        SetOwnOption(dialog, QStringLiteral("Lower Tray"));
    }
    PressOk(dialog);
}

} // namespace

Spooler& TheSpooler() {
    static Spooler spooler;
    return spooler;
}

std::string WhyNoSpooler() {
    const std::string missing = Spooler::Missing();
    return missing.empty() ? "" : "not installed:" + missing;
}

void SpoolerTest::SetUp() {
    const std::string why = WhyNoSpooler();
    if (!why.empty()) {
        const char* wanted = std::getenv("VERNACLE_SPOOLER");
        ASSERT_FALSE(wanted) << why;
        GTEST_SKIP() << why;
    }
    for (const std::string& setting : TheSpooler().Environment()) {
        const std::size_t sign = setting.find('=');
        qputenv(setting.substr(0, sign).c_str(), setting.substr(sign + 1).c_str());
    }
    TheSpooler().Start();
}

void SpoolerTest::TearDown() {
    if (WhyNoSpooler().empty()) {
        TheSpooler().End();
    }
}

void SpoolerTest::Choose(const PrintChoice& choice) {
    Answer([choice](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName().toStdString(), "PrintDialog");
        Select(In<QComboBox>(dialog, "printers"), QString::fromStdString(choice.queue));
        In<QAbstractButton>(dialog, "properties").click(); // answered below
        In<QSpinBox>(dialog, "copies").setValue(choice.copies);
        if (choice.onBothSides) {
            In<QRadioButton>(dialog, "duplexLong").click();
        }
        if (choice.firstPageOnly) {
            In<QRadioButton>(dialog, "printRange").click();
            In<QSpinBox>(dialog, "to").setValue(1);
        }
        if (choice.meanwhile) {
            choice.meanwhile();
        }
        PressOk(dialog);
    });
    Answer([choice](QWidget& dialog) { ChooseProperties(dialog, choice); });
}

SvgPicture SpoolerTest::PageOf(const PrintJob& job) const {
    return ReadPdf(WriteFile("job.pdf", job.bytes));
}

std::string SpoolerTest::AboutPageOf(const PrintJob& job) const {
    return RunProgram("pdfinfo", {WriteFile("job.pdf", job.bytes)}).out;
}

} // namespace vernacle::test
