// What the tests of the preview page share: the calls that its picture consists of.
#pragma once

#include <algorithm>

#include "engine/designfile/readwrite.h"
#include "engine/render/drawing.h"
#include "support/formtest.h"
#include "support/pixels.h"

namespace vernacle::test {

class PreviewTest : public FormTest {
protected:
    using Calls = Strings;

    QWidget& OpenPreview() { return OpenPage("frmPreview"); }

    // Opens it over a design with that aspect.
    QWidget& OpenPreviewAt(float aspect) {
        Design.AspectRatio = aspect;
        return OpenPreview();
    }

    Calls Shown() const { return CallsOf("picPlate"); }

    static Calls LinesOf(Calls calls) {
        std::erase_if(calls, [](const std::string& call) { return !call.starts_with("Line "); });
        return calls;
    }

    // The design as it stands, without overlays.
    static RecordingSurface PlainPicture() {
        RecordingSurface surface;
        DrawPage(Design, surface, PreviewTraits(), {Design.FontSize, Design.LabelSpacing}, Drawing);
        return surface;
    }

    // The picture's lines are those of the design as it stands, and no others. (Texts are placed by
    // their measures, which each surface has its own.)
    void ExpectPlainPicture() const {
        const RecordingSurface expected = PlainPicture();
        EXPECT_EQ(LinesOf(Shown()), LinesOf(expected.calls));
        EXPECT_EQ(TextsOf("picPlate"), expected.texts);
    }

    // Where the control shows anything but white.
    QRect PaintedOn(const std::string& control) const {
        return InkOf(Find(control).grab().toImage(), 255);
    }

    void ExpectAspect(float aspect, const std::string& ratio, const std::string& percent) const {
        EXPECT_FLOAT_EQ(Design.AspectRatio, aspect);
        EXPECT_EQ(TextOf("txtAspect"), ratio);
        EXPECT_EQ(TextOf("txtAspectUpDown"), percent);
    }
};

} // namespace vernacle::test
