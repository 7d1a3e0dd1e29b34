// The picture of the scale that is being set up.
#pragma once

#include "platform/picturebox.h"
#include "render/drawing.h"

namespace vernacle {

class SetupPicture : public PictureBox {
    Q_OBJECT

public:
    // Takes the sizes that its drawings work with. Nothing is drawn yet.
    SetupPicture();

    // A drawing that fails is reported once and stays as far as it came.
    void DrawScale();

private:
    const PageCopies sizes_;
};

} // namespace vernacle
