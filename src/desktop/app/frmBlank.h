// A blank page: the backdrop behind which a page is built anew.
#pragma once

#include <QWidget>

namespace vernacle {

class frmBlank : public QWidget {
    Q_OBJECT

public:
    frmBlank();
};

} // namespace vernacle
