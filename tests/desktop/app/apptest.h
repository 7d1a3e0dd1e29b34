// What the tests of the program's flow share: waits that are watched, and design files.
#pragma once

#include "engine/base/hostservices.h"
#include "engine/designfile/readwrite.h"
#include "support/formtest.h"

namespace vernacle::test {

// The pages that the toolbar walks between.
constexpr const char* kDesignPages[] = {"frmPlate",   "frmScales",     "frmText",
                                        "frmGraphic", "frmHighlights", "frmPreview"};

class AppTest : public FormTest {
protected:
    // From now on the clock stands but for waits, which are counted; meanwhile runs at the first
    // turn of each.
    void WatchWaits(std::function<void()> meanwhile = [] {}) {
        constexpr double kTurn = 0.25; // seconds
        Host.clockSeconds = [this] { return waited; };
        Host.servePendingEvents = [this, serve = Host.servePendingEvents] {
            serve();
            turns_ = 0;
        };
        Host.pause = [this, meanwhile] {
            if (turns_++ == 0) {
                meanwhile();
            }
            waited += kTurn;
        };
    }
    double waited = 0;

    // A file of the design as it stands, with that width and height; the design keeps its own.
    std::string WriteDesignFile(const std::string& name, float width, float height = 50) const {
        const DesignRecord kept = Design;
        Design.PlateWidth = width;
        Design.PlateHeight = height;
        Design.DesignFileName = Path(name);
        WriteDesign(Design);
        Design = kept;
        return Path(name);
    }

    // The width that a design file holds.
    float WidthIn(const std::string& name) const {
        const DesignRecord kept = Design;
        ReadDesign(Design, Path(name));
        const float width = Design.PlateWidth;
        Design = kept;
        return width;
    }

    static std::string TitleOf(const QWidget& window) { return window.windowTitle().toStdString(); }
    static std::string NameOf(const QWidget& window) { return window.objectName().toStdString(); }

private:
    int turns_ = 0;
};

} // namespace vernacle::test
