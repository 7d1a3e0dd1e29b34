// What the tests of the setup pages share: a page that is entered as from the menu, and left.
#pragma once

#include <string>
#include <vector>

#include <QGroupBox>
#include <QHeaderView>
#include <QPushButton>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/kit/picturebox.h"
#include "desktop/setups/rowtable.h"
#include "engine/designfile/readwrite.h"
#include "engine/setups/setuptables.h"
#include "support/answers.h"
#include "support/formtest.h"
#include "support/recordingsurface.h"

namespace vernacle::test {

class SetupFormTest : public FormTest {
protected:
    // As the menu shows it, for that scale.
    QWidget& OpenSetup(const std::string& name, int scale = 1) {
        Design.CurrentScale = static_cast<std::int16_t>(scale);
        return OpenPage(name);
    }

    std::string PageName() const { return Page().objectName().toStdString(); }
    std::string Shown(const std::string& label) const {
        return Find<QLabel>(label).text().toStdString();
    }
    bool IsSelected(const std::string& option) const { return Option(option).isChecked(); }
    bool IsShown(const std::string& control) const { return Find(control).isVisible(); }
    bool IsEnabled(const std::string& control) const { return Find(control).isEnabled(); }

    // Those of the page's table.
    std::vector<std::string> Headings() const {
        const auto& headings = Find<QHeaderView>("tblTicsHeadings");
        std::vector<std::string> texts;
        for (int column = 0; column < headings.count(); ++column) {
            const QVariant text = headings.model()->headerData(column, Qt::Horizontal);
            texts.push_back(text.toString().toStdString());
        }
        return texts;
    }

    // A press, and what comes with it settled.
    void Press(const std::string& control) const {
        Click(control);
        Settle();
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

    static std::vector<std::string> TextsIn(const PictureBox& picture) {
        RecordingSurface surface;
        picture.Record().Replay(surface);
        return surface.texts;
    }
    static std::size_t CountIn(const PictureBox& picture, const std::string& call) {
        RecordingSurface surface;
        picture.Record().Replay(surface);
        return surface.Count(call);
    }
};

} // namespace vernacle::test
