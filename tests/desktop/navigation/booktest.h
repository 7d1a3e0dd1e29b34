// What the tests of the help book share: its window, which each of them closes.
#pragma once

#include <QApplication>

#include "support/formtest.h"

namespace vernacle::test {

// Of the design pages, in both books.
constexpr const char* kPageTopics[] = {
    "vplate.htm",   "vscales.htm",    "vpreview.htm",
    "vgraphic.htm", "vsignature.htm", "vhighlights.htm",
};

class BookTest : public FormTest {
protected:
    ~BookTest() override {
        if (QWidget* book = Book()) {
            book->close();
        }
    }

    // The one that is open; null if none is.
    static QWidget* Book() {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String("HelpViewer") && window->isVisible()) {
                return window;
            }
        }
        return nullptr;
    }
};

} // namespace vernacle::test
