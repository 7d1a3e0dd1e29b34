#include "desktop/pages/designpage.h"

#include <string_view>

#include <QAction>
#include <QVBoxLayout>

#include "desktop/kit/toolbar.h"
#include "desktop/navigation/helpviewer.h"
#include "desktop/navigation/navigator.h"
#include "desktop/navigation/opendocument.h"
#include "desktop/navigation/session.h"
#include "desktop/pages/carefuldesign.h"
#include "desktop/pages/plateprint.h"
#include "desktop/pages/vernaclefile.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/designfile/readwrite.h"

namespace vernacle {

// A key goes to a page or does something here.
struct DesignPage::Key {
    ToolbarKey face = {};
    const char* page = nullptr;
    void (DesignPage::*clicked)() = nullptr;
    LiftedBy standsWith = nullptr; // only where this is in service; none: always
};

const DesignPage::Key DesignPage::kKeys[] = {
    {{"New", "New", "Start a new design from the defaults", "new", "Ctrl+N"},
     nullptr,
     &DesignPage::NewClicked,
     &ServiceState::carefulFiles},
    {{"Open", "Open", "Open a file", "open", "Ctrl+O"}, nullptr, &DesignPage::OpenClicked},
    {{"Save", "Save", "Save a file", "save", "Ctrl+S"}, nullptr, &DesignPage::SaveClicked},
    {{"Undo", "Undo", "Undo", "undo", "Ctrl+Z"},
     nullptr,
     &DesignPage::UndoClicked,
     &ServiceState::carefulFiles},
    {{"Redo", "Redo", "Redo", "redo", "Ctrl+Shift+Z"},
     nullptr,
     &DesignPage::RedoClicked,
     &ServiceState::carefulFiles},
    {{"Plate", "Plate", "Go to the Plate Design page", "plate", "Ctrl+1"}, "frmPlate", nullptr},
    {{"Scales", "Scales", "Go to the Scale Design page", "scales", "Ctrl+2"}, "frmScales", nullptr},
    {{"Text", "Text", "Go to the Text Entry page", "text", "Ctrl+3"}, "frmText", nullptr},
    {{"Graphic", "Graphic", "Go to the Graphic Entry page", "graphic", "Ctrl+4"},
     "frmGraphic",
     nullptr},
    {{"Highlights", "Highlights", "Go to the Highlight Entry page", "highlights", "Ctrl+5"},
     "frmHighlights",
     nullptr},
    {{"Preview", "Preview", "Preview the design", "preview", "Ctrl+6"}, "frmPreview", nullptr},
    {{"Print", "Print", "Print the design", "print", "Ctrl+P"}, nullptr, &DesignPage::PrintClicked},
    {{"Help", "Help", "Help", "help", "F1"}, nullptr, &DesignPage::HelpClicked},
    {{"Exit", "Exit", "Exit the program", "exit", "Ctrl+Q"}, nullptr, &DesignPage::ExitClicked},
    {{"About", "About Vernacle", "", "about", ""}, nullptr, &DesignPage::AboutClicked},
};

namespace {

QString TitleOf(const PageTraits& traits) {
    std::string title = std::string(ServiceName()) + " - " + traits.title;
    if (!Design.DesignFileName.empty()) {
        title += " - " + Design.DesignFileName;
    } else if (Service.carefulFiles) {
        title += " - new design";
    }
    return QString::fromStdString(title + (Service.carefulFiles ? "[*]" : ""));
}

const char* TipOf(const PageTraits& traits, const ToolbarKey& key) {
    for (const OwnTip& own : traits.ownTips) {
        if (own.key == std::string_view(key.key)) {
            return own.tip;
        }
    }
    return key.tip;
}

KeyState StateOf(const PageTraits& traits, const ToolbarKey& key) {
    const bool greyed = key.key == std::string_view("Print") &&
                        traits.printing != Printing::Offered && !Service.truePlate;
    return greyed ? KeyState::Greyed : KeyState::Enabled;
}

} // namespace

DesignPage::DesignPage(const PageTraits& traits) : Page(traits.form), traits_(traits) {
    ShowTitle();
    AddToolbar();
    if (Service.carefulFiles) {
        connect(&Document(), &OpenDocument::Changed, this, &DesignPage::ShowDocument);
        ShowDocument();
    }
}

bool DesignPage::KeepsSession() const {
    return Service.carefulFiles || traits_.closeBox == CloseBox::SavesSession;
}

bool DesignPage::TakesSteps() const {
    return Service.carefulFiles;
}

void DesignPage::ShowTitle() {
    setWindowTitle(TitleOf(traits_));
}

void DesignPage::AddToolbar() {
    auto* toolbar = new Toolbar("Toolbar1");
    for (const Key& key : kKeys) {
        if (key.standsWith && !IsLifted(key.standsWith)) {
            continue;
        }
        ToolbarKey face = key.face;
        face.tip = TipOf(traits_, face);
        QAction* action = toolbar->AddKey(face, StateOf(traits_, face));
        connect(action, &QAction::triggered, this, [this, &key] { KeyClicked(key); });
        if (key.clicked == &DesignPage::UndoClicked) {
            undo_ = action;
        } else if (key.clicked == &DesignPage::RedoClicked) {
            redo_ = action;
        }
    }
    Head().addWidget(toolbar);
}

void DesignPage::ShowDocument() {
    setWindowModified(!Document().IsKept());
    const auto show = [](QAction* action, bool isEnabled, const char* what,
                         const std::string& name) {
        action->setEnabled(isEnabled);
        const std::string tip = what + (name.empty() ? "" : ": " + name);
        action->setToolTip(QString::fromStdString(tip));
    };
    const History& steps = Document().Steps();
    show(undo_, steps.CanUndo(), "Undo", steps.UndoneName());
    show(redo_, steps.CanRedo(), "Redo", steps.RedoneName());
}

void DesignPage::KeyClicked(const Key& key) {
    if (!TakesSteps()) {
        BeforeKey();
        FollowKey(key);
        return;
    }
    if (key.clicked == &DesignPage::UndoClicked || key.clicked == &DesignPage::RedoClicked) {
        StoreEntries(); // what the page would hold to its limits now would be a step itself
    } else {
        BeforeKey();
    }
    Document().Commit();
    FollowKey(key);
    if (key.page) {
        Document().Absorb(); // what that page's load has changed
    }
}

void DesignPage::FollowKey(const Key& key) {
    if (key.clicked) {
        (this->*key.clicked)();
    } else if (key.page != std::string_view(traits_.form)) {
        GoToPage(key.page);
    }
}

void DesignPage::ShowAnew() {
    ReloadPage();
    Document().Absorb();
}

void DesignPage::NewClicked() {
    if (MayGiveUpDesign(this)) {
        StartFromDefaults();
        GoToPage("frmPreview");
        Document().Absorb();
    }
}

void DesignPage::UndoClicked() {
    Document().Undo();
    ShowAnew();
}

void DesignPage::RedoClicked() {
    Document().Redo();
    ShowAnew();
}

void DesignPage::OpenClicked() {
    if (Service.carefulFiles) {
        if (MayGiveUpDesign(this) && OpenDesignByDialog(this, "Read Vernacle file")) {
            ShowAnew();
        }
        return;
    }
    Design.DesignFileName = AskForVernacleFile(this, "Read Vernacle file");
    if (Design.DesignFileName.empty()) {
        return;
    }
    ReadDesign(Design, Design.DesignFileName);
    Design.ActiveScale = 1;
    ReloadPage();
}

void DesignPage::SaveClicked() {
    if (Service.carefulFiles) {
        SaveDesignByDialog(this);
        ShowTitle();
        return;
    }
    Design.DesignFileName =
        AskForNewVernacleFile(this, "Save Vernacle file", Design.DesignFileName);
    SaveDesign(Design, Design.DesignFileName);
}

void DesignPage::PrintClicked() {
    if (traits_.printing != Printing::GreyedAndDead || Service.truePlate) {
        AskAndPrintPlate(this);
    }
}

void DesignPage::showEvent(QShowEvent* event) {
    Page::showEvent(event);
    TurnHelpTo(*this, traits_.helpTopic);
}

void DesignPage::resizeEvent(QResizeEvent* event) {
    Page::resizeEvent(event);
    if (isVisible()) {
        TurnHelpTo(*this, traits_.helpTopic);
    }
}

void DesignPage::HelpClicked() {
    ShowHelp(*this, traits_.helpTopic);
}

void DesignPage::ExitClicked() {
    ShowModal("frmExit");
}

void DesignPage::AboutClicked() {
    ShowModal("frmAbout");
}

void DesignPage::CloseBoxClicked() {
    if (KeepsSession()) {
        SaveSessionAndEnd();
    } else {
        JustEnd();
    }
}

} // namespace vernacle
