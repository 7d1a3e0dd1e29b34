#include "desktop/navigation/opendocument.h"

#include "engine/core/design.h"

namespace vernacle {

void OpenDocument::Start(bool isKept) {
    history_.Start(StateOf(Design), isKept);
    name_.clear();
    key_.clear();
    Q_EMIT Changed();
}

void OpenDocument::Visit(const std::string& name, const std::string& key) {
    name_ = name;
    key_ = key;
    history_.Record(StateOf(Design), name, key);
    Q_EMIT Changed();
}

void OpenDocument::Absorb() {
    history_.Absorb(StateOf(Design));
    Q_EMIT Changed();
}

void OpenDocument::Keep() {
    history_.Keep();
    Q_EMIT Changed();
}

void OpenDocument::Undo() {
    RestoreState(Design, history_.Undo());
    Q_EMIT Changed();
}

void OpenDocument::Redo() {
    RestoreState(Design, history_.Redo());
    Q_EMIT Changed();
}

OpenDocument& Document() {
    static OpenDocument document;
    return document;
}

} // namespace vernacle
