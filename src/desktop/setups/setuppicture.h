// The picture of the scale that is being set up.
#pragma once

#include "desktop/kit/picturebox.h"
#include "engine/render/drawing.h"

namespace vernacle {

class SetupPicture : public PictureBox {
    Q_OBJECT

public:
    // Takes the sizes that its drawings work with. Nothing is drawn yet.
    SetupPicture();

    // A drawing that fails is reported once and stays as far as it came.
    void DrawScale();

private:
    void ShowTruePlate();

    const PageCopies sizes_;
};

} // namespace vernacle
