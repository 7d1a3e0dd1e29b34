// What the tests of the pages that draw the plate share: the drawing that a page must show, and
// whether it was drawn anew.
#pragma once

#include <QColorDialog>
#include <QGroupBox>

#include "engine/render/drawing.h"
#include "support/formtest.h"

namespace vernacle::test {

// A drawing of the design as it is now, with what the page copied at its load.
inline Strings DrawnPlate(const DrawingTraits& traits, const PageCopies& copies) {
    const std::int16_t currentScale = Design.CurrentScale;
    PictureBox picture("expected", {0, 0, 12000, 9000}, UnitShape::OfScreen);
    DrawPage(Design, picture.Surface(), traits, copies, Drawing);
    Design.CurrentScale = currentScale;
    return Recorded(picture).calls;
}

// A text or graphic page's plate of these stages, as an image that is so wide.
inline QImage ImageOfPlate(std::span<const DrawingStage> stages, int pixelsAcross) {
    DrawingTraits traits = TextTraits();
    traits.stages = stages;
    PictureBox picture("drawn", {0, 0, 12000, 9000}, UnitShape::OfScreen);
    picture.resize(pixelsAcross, pixelsAcross * 9 / 16);
    DrawPage(Design, picture.Surface(), traits, {Design.FontSize, Design.LabelSpacing}, Drawing);
    return picture.grab().toImage();
}

// Takes the colour of that name from the dialog of that title, or cancels it without one; start is
// the colour that it started with.
inline DialogAnswer ChooseColour(const char* title, const char* colour, QColor& start) {
    return [=, &start](QWidget& dialog) {
        auto& chooser = dynamic_cast<QColorDialog&>(dialog);
        EXPECT_EQ(dialog.windowTitle(), QLatin1String(title));
        start = chooser.currentColor();
        if (!colour) {
            return chooser.reject();
        }
        chooser.setCurrentColor(QColor(QLatin1String(colour)));
        chooser.accept();
    };
}

// The keys of the toolbar that these pages leave enabled.
constexpr const char* kPageKeys[] = {"Open",       "Save",    "Plate", "Scales", "Text", "Graphic",
                                     "Highlights", "Preview", "Help",  "Exit",   "About"};

// Whether it opens a form or a dialog above the page.
inline bool OpensADialog(const std::string& key) {
    return key == "Open" || key == "Save" || key == "Exit" || key == "About";
}

class DrawingPageTest : public FormTest {
protected:
    void ExpectOnlyPrintIsGreyed() const {
        for (const char* key : kPageKeys) {
            EXPECT_TRUE(IsEnabled(key)) << key;
        }
        EXPECT_FALSE(IsEnabled("Print"));
    }

    // The arrows step by one, and stop at the ends of their range.
    void ExpectRange(const std::string& arrows, const std::string& box, const std::string& lowest,
                     const std::string& highest) const {
        SCOPED_TRACE(arrows);
        Type(box, "10");
        StepUp(arrows);
        EXPECT_EQ(TextOf(box), "11");
        Type(box, highest);
        StepUp(arrows);
        EXPECT_EQ(TextOf(box), highest);
        Type(box, lowest);
        StepDown(arrows);
        EXPECT_EQ(TextOf(box), lowest);
    }

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

    Strings ShownPlate() const { return CallsOf("picPlate"); }

    void Wipe() const { Picture("picPlate").Surface().Clear(); }

    // Since it was wiped.
    bool WasRedrawn() const { return ShownPlate().size() > 30; }
};

} // namespace vernacle::test
