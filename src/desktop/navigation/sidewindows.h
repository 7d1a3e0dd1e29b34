// Windows that stay beside the pages: the help book, the tic information. They stand above whatever
// page is shown, are not modal, and stay open until the user closes them.
#pragma once

class QWidget;

namespace vernacle {

// Shows the window above the page. It goes when it is closed.
void ShowBeside(QWidget& window, const QWidget& page);

// Puts the open ones above the page that is shown now, without taking the keys from it.
void KeepBeside(const QWidget& page);

} // namespace vernacle
