#include "desktop/navigation/changewatch.h"

#include <utility>
#include <vector>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QTimer>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/form.h"
#include "desktop/kit/updown.h"
#include "desktop/navigation/navigator.h"
#include "desktop/navigation/opendocument.h"
#include "engine/core/design.h"

namespace vernacle {

namespace {

constexpr int kBehindDialogMs = 50; // for whoever has opened it to go on

// What a step is called, and which steps are one.
struct Visited {
    std::string name;
    std::string key;
};

bool IsOneVisit(const QWidget& control) {
    return qobject_cast<const EntryBox*>(&control) ||
           qobject_cast<const UpDown*>(control.parentWidget());
}

// A caption without its colon; an arrow is known by its box.
QString NameOf(const QWidget& control) {
    const auto* arrows = qobject_cast<const UpDown*>(control.parentWidget());
    QString name = (arrows ? *arrows : control).accessibleName();
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    if (name.isEmpty() && button) {
        name = button->text();
    }
    name = name.trimmed();
    return name.endsWith(QLatin1Char(':')) ? name.chopped(1) : name;
}

Visited VisitTo(const QWidget& control) {
    const QWidget& window = *control.window();
    const auto* page = qobject_cast<const Page*>(&window);
    if (!page || !page->TakesSteps()) {
        const QString title = window.windowTitle();
        return {title.section(QStringLiteral(" - "), 1, 1).toStdString(), {}};
    }
    const QString name = NameOf(control);
    if (!IsOneVisit(control)) {
        return {name.toStdString(), {}};
    }
    const QString key = page->objectName() + QLatin1Char('/') + name + QLatin1Char('/') +
                        QString::number(Design.ActiveScale);
    return {name.toStdString(), key.toStdString()};
}

// A box would take them for the last keys in it alone.
bool IsUndoKey(const QWidget& control, const QEvent& event) {
    const auto* page = qobject_cast<const Page*>(control.window());
    if (!qobject_cast<const EntryBox*>(&control) || !page || !page->TakesSteps()) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
}

class ChangeWatch : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* control = qobject_cast<QWidget*>(watched);
        if (!control) {
            return false;
        }
        switch (event->type()) {
        case QEvent::ShortcutOverride:
            if (IsUndoKey(*control, *event)) {
                event->ignore();
                return true;
            }
            break;
        case QEvent::MouseButtonPress:
        case QEvent::KeyPress:
            LookAtAll(); // so that what this one does is not taken for what was done before it
            break;
        case QEvent::MouseButtonRelease:
        case QEvent::KeyRelease:
            if (IsFirstOf(static_cast<const QInputEvent&>(*event))) {
                LookAtAll();
                LookBehind({VisitTo(*control), false});
            }
            break;
        case QEvent::InputMethod:
            LookBehind({VisitTo(*control), false});
            break;
        case QEvent::FocusOut:
            if (qobject_cast<const EntryBox*>(control)) {
                LookBehind({VisitTo(*control), true});
            }
            break;
        case QEvent::Hide:
            if (qobject_cast<const QDialog*>(control)) {
                QTimer::singleShot(kBehindDialogMs, this, [this] { Look({last_, true}); });
            }
            break;
        default:
            break;
        }
        return false;
    }

private:
    struct Glance {
        Visited visited;
        bool isEnd; // of the visit
    };

    // An event that a control does not want goes to what stands around it too.
    bool IsFirstOf(const QInputEvent& event) {
        const bool isFirst = event.timestamp() == 0 || event.timestamp() != stamp_;
        stamp_ = event.timestamp();
        return isFirst;
    }

    // Once whoever the event is for has dealt with it.
    void LookBehind(const Glance& glance) {
        glances_.push_back(glance);
        QTimer::singleShot(0, this, &ChangeWatch::LookAtAll);
    }

    void LookAtAll() {
        for (const Glance& glance : std::exchange(glances_, {})) {
            Look(glance);
        }
    }

    // What a form above the page has done is seen when it has gone.
    void Look(const Glance& glance) {
        last_ = glance.visited;
        auto* page = qobject_cast<Page*>(CurrentPage());
        if (!page || !page->TakesSteps() || QApplication::activeModalWidget()) {
            return;
        }
        page->StoreEntries();
        Document().Visit(glance.visited.name, glance.visited.key);
        if (glance.isEnd) {
            Document().EndVisit();
        }
    }

    std::vector<Glance> glances_;
    ulong stamp_ = 0;
    Visited last_;
};

} // namespace

void WatchChanges() {
    static ChangeWatch* watch = nullptr;
    if (!watch) {
        watch = new ChangeWatch(qApp);
    }
    qApp->removeEventFilter(watch);
    qApp->installEventFilter(watch);
}

} // namespace vernacle
