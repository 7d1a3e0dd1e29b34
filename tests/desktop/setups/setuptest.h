// What the tests of the setup pages share: a page that is entered as from the menu, and left.
#pragma once

#include <QGroupBox>
#include <QHeaderView>

#include "desktop/setups/rowtable.h"
#include "engine/designfile/readwrite.h"
#include "engine/setups/setuptables.h"
#include "support/formtest.h"

namespace vernacle::test {

class SetupFormTest : public FormTest {
protected:
    // As the menu shows it, for that scale.
    QWidget& OpenSetup(const std::string& name, int scale = 1) {
        Design.CurrentScale = static_cast<std::int16_t>(scale);
        return OpenPage(name);
    }

    bool IsShown(const std::string& control) const { return Find(control).isVisible(); }

    // Those of the page's table.
    Strings Headings() const {
        const auto& headings = Find<QHeaderView>("tblTicsHeadings");
        Strings texts;
        for (int column = 0; column < headings.count(); ++column) {
            const QVariant text = headings.model()->headerData(column, Qt::Horizontal);
            texts.push_back(text.toString().toStdString());
        }
        return texts;
    }

    // Presses the button; the form above is looked at and left by its button.
    void PressPreview(const std::function<void(QWidget& form)>& look = [](QWidget&) {}) {
        Answer([this, look](QWidget& form) {
            EXPECT_EQ(form.objectName(), QLatin1String("frmSetupPreview"));
            EXPECT_TRUE(form.isModal());
            look(form);
            Click(On<QPushButton>(form, "cmdExit"));
        });
        Click("cmdPreview");
        EXPECT_TRUE(AllAnswered());
    }

    // The texts of the drawing on a form above.
    static Strings TextsOn(const QWidget& form) {
        return Recorded(*form.findChild<PictureBox*>(QStringLiteral("picPlate"))).texts;
    }
};

} // namespace vernacle::test
