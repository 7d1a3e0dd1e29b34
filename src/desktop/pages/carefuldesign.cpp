#include "desktop/pages/carefuldesign.h"

#include <algorithm>
#include <filesystem>
#include <memory>

#include "desktop/navigation/opendocument.h"
#include "desktop/pages/vernaclefile.h"
#include "desktop/system/messages.h"
#include "desktop/system/recentfiles.h"
#include "engine/base/codepage.h"
#include "engine/base/hostservices.h"
#include "engine/base/runtimeerror.h"
#include "engine/core/design.h"
#include "engine/designfile/formerfile.h"
#include "engine/designfile/readwrite.h"

namespace vernacle {

namespace {

// Empty where it cannot be read, which its reader tells.
std::string TextIn(const std::string& name) {
    try {
        return FromFileBytes(Host.readFile(name));
    } catch (const RunTimeError&) {
        return {};
    }
}

bool WasCareful(const std::string& name) {
    const std::vector<RecentFile> files = RecentFiles();
    return std::ranges::any_of(
        files, [&](const RecentFile& file) { return file.name == name && file.isCareful; });
}

// With its numbers held to their limits, as the pages hold them.
std::string HeldState(DesignRecord design) {
    NormalizeDesign(design);
    return StateOf(design);
}

// Whether a file of that name says what the design says.
bool HoldsDesign(const std::string& name) {
    const std::string text = name.empty() ? std::string() : TextIn(name);
    if (text.empty()) {
        return false;
    }
    const auto kept = std::make_unique<DesignRecord>(Design);
    try {
        ReadDesignText(*kept, text);
    } catch (const RunTimeError&) {
        return false;
    }
    return HeldState(*kept) == HeldState(Design);
}

// The name of the graphic when the design goes from one file to another: one that stands beside the
// first is found from elsewhere by its folder.
std::string PictureFrom(const std::string& former, const std::string& name) {
    const std::filesystem::path picture(Design.GraphicFileName);
    const std::filesystem::path folder = std::filesystem::path(former).parent_path();
    if (picture.empty() || picture.has_parent_path() || former.empty() ||
        folder == std::filesystem::path(name).parent_path()) {
        return Design.GraphicFileName;
    }
    return (folder / picture).string();
}

void NoteOpened(const std::string& name, bool isKept) {
    Design.DesignFileName = name;
    Design.ActiveScale = 1;
    NormalizeDesign(Design); // whatever page shows it first
    Document().Start(isKept);
}

} // namespace

bool MayGiveUpDesign(QWidget* parent) {
    Document().Commit();
    if (Document().IsKept()) {
        return true;
    }
    switch (AskAboutChanges("The design has changes that no file holds.\nSave it first?")) {
    case Leaving::Save:
        return SaveDesignByDialog(parent);
    case Leaving::Discard:
        return true;
    case Leaving::Stay:
        break;
    }
    return false;
}

void StartFromDefaults() {
    ResetDesign(Design);
    NoteOpened({}, true);
}

bool OpenDesignFile(const std::string& name) {
    if (!ReadDesign(Design, name)) {
        ForgetRecentFile(name);
        return false;
    }
    const bool isCareful = IsCareful(TextIn(name));
    if (!isCareful && WasCareful(name)) {
        Host.informationBox(
            "The everyday program has saved this design since: what its file cannot "
            "hold by its lines, as other curves, colours of scales above the first "
            "or tables behind a reverted one, is no longer there.");
    }
    NoteOpened(name, true);
    NoteRecentFile({name, isCareful});
    return true;
}

bool OpenDesignByDialog(QWidget* parent, const char* title) {
    const std::string name = AskForVernacleFile(parent, title);
    return !name.empty() && OpenDesignFile(name);
}

bool OpenSession(const std::string& session) {
    if (!ReadDesign(Design, session)) {
        return false;
    }
    const std::string name = DesignNameIn(TextIn(session));
    NoteOpened(name, HoldsDesign(name));
    return true;
}

bool SaveDesignByDialog(QWidget* parent) {
    const std::string name =
        AskForNewDesignFile(parent, "Save Vernacle file", Design.DesignFileName);
    if (name.empty()) {
        return false;
    }
    const std::string former = Design.DesignFileName;
    const std::string picture = Design.GraphicFileName;
    Design.DesignFileName = name;
    Design.GraphicFileName = PictureFrom(former, name);
    if (!WriteDesign(Design)) {
        Design.DesignFileName = former;
        Design.GraphicFileName = picture;
        return false;
    }
    Document().Keep();
    NoteRecentFile({name, true});
    return true;
}

} // namespace vernacle
