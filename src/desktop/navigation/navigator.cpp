#include "desktop/navigation/navigator.h"

#include <algorithm>
#include <map>
#include <string>

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>

#include "desktop/kit/form.h"
#include "desktop/navigation/sidewindows.h"
#include "desktop/navigation/windowplacing.h"

namespace vernacle {

namespace {

constexpr std::string_view kBackdrop = "frmBlank";
constexpr int kFocusCheckMs = 300;

std::span<const FormRow> registeredForms;
QWidget* shownPage = nullptr;
std::map<std::string, QWidget*, std::less<>> pagesBehind; // loaded, not shown; owned here

const FormRow* FindForm(std::string_view name) {
    const auto found = std::find_if(registeredForms.begin(), registeredForms.end(),
                                    [name](const FormRow& row) { return row.name == name; });
    return found == registeredForms.end() ? nullptr : &*found;
}

// A page may be left by one of its own handlers: it goes once that has returned.
void Unload(QWidget* form) {
    if (form) {
        form->hide();
        form->deleteLater();
    }
}

void FocusOn(QWidget& page, const QString& controlName) {
    auto* control = controlName.isEmpty() ? nullptr : page.findChild<QWidget*>(controlName);
    if (!control) {
        const auto boxes = page.findChildren<QLineEdit*>();
        const auto usable = std::find_if(boxes.begin(), boxes.end(), [&](const QLineEdit* box) {
            return box->isEnabled() && box->isVisibleTo(&page);
        });
        control = usable == boxes.end() ? nullptr : *usable;
    }
    if (control) {
        control->setFocus();
    }
}

// A window manager that still deals with the dialog and the page that went may give the focus to
// neither: it is asked once more.
void ActivateSurely(QWidget& page) {
    page.activateWindow();
    QTimer::singleShot(kFocusCheckMs, &page, [&page] {
        const QWidget* active = QApplication::activeWindow();
        const bool free = !active || active == &page; // the toolkit's belief may be old
        if (free && page.isVisible() && !QApplication::activeModalWidget()) {
            page.activateWindow();
        }
    });
}

// Gives the page that was shown.
QWidget* ShowPage(std::unique_ptr<QWidget> page, const QString& focusedControl) {
    QWidget* left = shownPage;
    shownPage = page.release();
    FocusOn(*shownPage, focusedControl);
    shownPage->showMaximized();
    KeepBeside(*shownPage);
    ActivateSurely(*shownPage);
    return left;
}

std::unique_ptr<QWidget> LoadedPage(std::string_view name) {
    const auto behind = pagesBehind.find(name);
    if (behind == pagesBehind.end()) {
        return MakeForm(name);
    }
    std::unique_ptr<QWidget> page(behind->second);
    pagesBehind.erase(behind);
    return page;
}

// What had the focus on a page that was left loaded.
QString FocusedOn(const QWidget& page) {
    const QWidget* focused = page.focusWidget();
    return focused ? focused->objectName() : QString();
}

void UnloadPagesBehind() {
    for (const auto& [name, page] : pagesBehind) {
        delete page;
    }
    pagesBehind.clear();
}

} // namespace

void SetForms(std::span<const FormRow> forms) {
    registeredForms = forms;
    UnloadPagesBehind();
}

bool IsFormKnown(std::string_view name) {
    return FindForm(name) != nullptr;
}

std::unique_ptr<QWidget> MakeForm(std::string_view name) {
    InstallWindowSpeech();
    const FormRow* row = FindForm(name);
    return row ? row->make() : nullptr;
}

void GoToPage(std::string_view name) {
    if (IsFormKnown(name)) {
        GoToMadePage(LoadedPage(name));
    }
}

void GoToMadePage(std::unique_ptr<QWidget> page) {
    const QString focused = FocusedOn(*page);
    Unload(ShowPage(std::move(page), focused));
}

void GoToPageUnloading(std::string_view name, std::string_view unloaded) {
    if (!IsFormKnown(name)) {
        return;
    }
    QWidget* left = ShowPage(LoadedPage(name), {});
    if (const auto behind = pagesBehind.find(unloaded); behind != pagesBehind.end()) {
        delete behind->second;
        pagesBehind.erase(behind);
    }
    if (left) {
        left->hide();
        pagesBehind[left->objectName().toStdString()] = left;
    }
}

void ReloadPage() {
    const std::string name = shownPage->objectName().toStdString();
    const QString focusedControl = FocusedOn(*shownPage);
    const std::unique_ptr<QWidget> backdrop = MakeForm(kBackdrop);
    if (backdrop) {
        backdrop->showMaximized();
    }
    UnloadPage();
    static_cast<void>(ShowPage(MakeForm(name), focusedControl)); // none was left
}

QWidget* CurrentPage() {
    return shownPage;
}

void ShowModal(std::string_view name) {
    const std::unique_ptr<QWidget> form = MakeForm(name);
    auto* dialog = qobject_cast<QDialog*>(form.get());
    if (!dialog) {
        return;
    }
    if (shownPage) {
        dialog->setParent(shownPage, dialog->windowFlags()); // above it, and on its middle
    }
    dialog->exec();
}

void ShowFormBeside(std::string_view name) {
    static std::map<std::string, QPointer<QWidget>, std::less<>> open;
    std::unique_ptr<QWidget> form = MakeForm(name);
    if (!form || !shownPage) {
        return;
    }
    QPointer<QWidget>& former = open[std::string(name)];
    if (former) {
        form->setGeometry(former->geometry());
        former->close();
    } else {
        const QSize size = form->size();
        form->setGeometry(LeastCovering(*shownPage, {&size, 1}));
    }
    former = form.release();
    ShowBeside(*former, *shownPage);
}

void UnloadPage() {
    Unload(shownPage);
    shownPage = nullptr;
}

void EndProcess() {
    UnloadPagesBehind();
    QCoreApplication::exit(EXIT_SUCCESS);
}

} // namespace vernacle
