// From page to page: one page is shown at a time, modal forms stand above it. Forms know
// each other by name only; the program registers them.
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include <QDialog>
#include <QWidget>

namespace vernacle {

struct FormRow {
    const char* name = nullptr;
    std::unique_ptr<QWidget> (*make)() = nullptr; // builds and loads it
};

// The forms of the program; the rows must outlive their use. No page stays loaded behind.
void SetForms(std::span<const FormRow> forms);

// Whether a form of that name is registered.
bool IsFormKnown(std::string_view name);

// The form of that name, loaded and not shown; none if it is not registered.
std::unique_ptr<QWidget> MakeForm(std::string_view name);

// Shows the page of that name, filling the screen, and unloads the one that was shown. One that
// stayed loaded is shown as it was left. A name that is not registered does nothing.
void GoToPage(std::string_view name);

// The same for a page that is made already.
void GoToMadePage(std::unique_ptr<QWidget> page);

// The same as GoToPage, but it unloads the page of the other name, if that is loaded, and the one
// that was shown stays loaded behind.
void GoToPageUnloading(std::string_view name, std::string_view unloaded);

// Builds the page that is shown anew, behind a backdrop that keeps the desktop from flashing
// through. The control of the same name has the focus again.
void ReloadPage();

// The page that is shown; none before the first.
QWidget* CurrentPage();

// Shows the form of that name above the page and returns when it is closed.
void ShowModal(std::string_view name);

// Shows the form of that name beside the page, not modal, until it is closed. It stands where
// it covers least. There is one window of a name: what stood open is built anew at its place.
void ShowFormBeside(std::string_view name);

// Unloads the page that is shown.
void UnloadPage();

// Ends the process with success, once what runs now has returned.
void EndProcess();

} // namespace vernacle
