// The design pages that draw the plate beside their entries.
#pragma once

#include <cstdint>

#include "desktop/pages/designpage.h"
#include "engine/core/freetexts.h"
#include "engine/geometry/logicalarea.h"
#include "engine/render/drawing.h"

class QLabel;
class QVBoxLayout;

namespace vernacle {

class PictureBox;

// What of the logical area shows the plate with its trim marks, at the widest aspect too.
constexpr LogicalArea kPagePlateArea{-400, 900, 7600, 7000};

class DrawingPage : public DesignPage {
    Q_OBJECT

protected:
    DrawingPage(const PageTraits& traits, const DrawingTraits& drawing,
                const LogicalArea& area = kPagePlateArea);

    // The column beside the plate, headed by the page's title; it ends with what is added last.
    QVBoxLayout& Column() { return *column_; }

    // The sizes that the drawing of this visit works with.
    void TakeSizes();

    virtual void Redraw();

    // Opens the illustrated help on that topic.
    static void Illustrate(std::int16_t topic);

    PictureBox& Plate() { return *plate_; }
    PageCopies copies_;

private:
    DrawingTraits drawing_;
    PictureBox* plate_;
    QVBoxLayout* column_;
    QLabel* remarks_ = nullptr; // of true plates
};

// One that keeps a copy of the free texts and gives it back when its toolbar is used.
class TextKeepingPage : public DrawingPage {
    Q_OBJECT

public:
    void StoreEntries() override;

protected:
    using DrawingPage::DrawingPage;

    // The sizes and the texts.
    void TakeCopies();

    void BeforeKey() override { TextKeepingPage::StoreEntries(); }

    FreeTexts texts_;
};

} // namespace vernacle
