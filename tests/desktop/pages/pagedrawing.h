// What the tests of the pages that draw the plate share: the drawing that a page must show, and
// whether it was drawn anew.
#pragma once

#include <string>
#include <vector>

#include <QGroupBox>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/kit/picturebox.h"
#include "engine/core/design.h"
#include "engine/render/drawing.h"
#include "support/formtest.h"
#include "support/recordingsurface.h"

namespace vernacle::test {

// A drawing of the design as it is now, with what the page copied at its load.
inline std::vector<std::string> DrawnPlate(const DrawingTraits& traits, const PageCopies& copies) {
    const std::int16_t currentScale = Design.CurrentScale;
    PictureBox picture("expected", {0, 0, 12000, 9000}, UnitShape::OfScreen);
    DrawPage(Design, picture.Surface(), traits, copies, Drawing);
    Design.CurrentScale = currentScale;
    RecordingSurface surface;
    picture.Record().Replay(surface);
    return surface.calls;
}

class DrawingPageTest : public FormTest {
protected:
    struct Caption {
        const char* control;
        const char* text;
        const char* tip;
    };

    // The frame of the entries: only the first six options have a tip, and it speaks of scales.
    void ExpectEditOptions(int count) const {
        EXPECT_EQ(Find<QGroupBox>("fraTextNumber").title(), QLatin1String("Edit"));
        EXPECT_EQ(Find("fraTextNumber").toolTip(), QLatin1String("Select the scale to edit"));
        for (int entry = 1; entry <= count; ++entry) {
            const QString number = QString::number(entry);
            const auto& option = Option("Option" + std::to_string(entry));
            EXPECT_EQ(option.text(), number);
            EXPECT_EQ(option.toolTip(),
                      entry <= 6 ? QStringLiteral("Edit scale #") + number : QString());
            EXPECT_TRUE(Find("fraTextNumber").isAncestorOf(&option));
        }
    }

    // Whatever the page starts with.
    void EnableAll() const {
        for (QWidget* control : Page().findChildren<QWidget*>()) {
            control->setEnabled(true);
        }
    }

    void ExpectEnabled(std::initializer_list<const char*> controls, bool enabled) const {
        for (const char* control : controls) {
            EXPECT_EQ(Find(control).isEnabled(), enabled) << control;
        }
    }

    std::string Shown(const std::string& label) const {
        return Find<QLabel>(label).text().toStdString();
    }

    std::vector<std::string> ShownPlate() const { return CallsOf("picPlate"); }

    void Wipe() const { Picture("picPlate").Surface().Clear(); }

    // Since it was wiped.
    bool WasRedrawn() const { return ShownPlate().size() > 30; }

    bool IsSelected(const std::string& option) const { return Option(option).isChecked(); }
};

} // namespace vernacle::test
