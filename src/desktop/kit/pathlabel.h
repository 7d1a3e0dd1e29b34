// A label for the path of a file: it breaks anywhere, as a path has no blanks to break at, and
// never widens its form.
#pragma once

#include <QLabel>

namespace vernacle {

class PathLabel : public QLabel {
    Q_OBJECT

public:
    explicit PathLabel(const char* name);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override { return minimumSizeHint(); }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace vernacle
