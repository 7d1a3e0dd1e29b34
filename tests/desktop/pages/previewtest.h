// What the tests of the preview page share: the calls that its picture consists of.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "desktop/kit/entrybox.h"
#include "desktop/navigation/navigator.h"
#include "engine/core/design.h"
#include "engine/designfile/readwrite.h"
#include "engine/render/drawing.h"
#include "support/answers.h"
#include "support/formtest.h"
#include "support/recordingsurface.h"

namespace vernacle::test {

class PreviewTest : public FormTest {
protected:
    using Calls = std::vector<std::string>;

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

    // The picture's lines are those of the design as it stands, and no others. (Texts are placed by
    // their measures, which each surface has its own.)
    void ExpectPlainPicture() const {
        RecordingSurface expected;
        DrawPage(Design, expected, PreviewTraits(), {Design.FontSize, Design.LabelSpacing},
                 Drawing);
        EXPECT_EQ(LinesOf(Shown()), LinesOf(expected.calls));
        EXPECT_EQ(TextsOf("picPlate"), expected.texts);
    }

    // Where the control shows anything but white.
    QRect PaintedOn(const std::string& control) const {
        const QImage picture = Find(control).grab().toImage();
        QRect painted;
        for (int x = 0; x < picture.width(); ++x) {
            for (int y = 0; y < picture.height(); ++y) {
                if (picture.pixelColor(x, y) != QColor(Qt::white)) {
                    painted |= QRect(x, y, 1, 1);
                }
            }
        }
        return painted;
    }

    void ExpectAspect(float aspect, const std::string& ratio, const std::string& percent) const {
        EXPECT_FLOAT_EQ(Design.AspectRatio, aspect);
        EXPECT_EQ(TextOf("txtAspect"), ratio);
        EXPECT_EQ(TextOf("txtAspectUpDown"), percent);
    }
};

} // namespace vernacle::test
