#include "layoutfaults.h"

#include <algorithm>
#include <set>
#include <tuple>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QStyleOptionFrame>
#include <QToolButton>

#include "desktop/kit/picturebox.h"

namespace vernacle::test {

namespace {

constexpr int kSmallestArrow = 9;  // pixels a side that can still be hit
constexpr int kLineEditMargin = 2; // pixels that a line edit keeps at both ends of its text

using Widgets = std::vector<const QWidget*>;

std::string NameOf(const QWidget& widget) {
    const std::string name = widget.objectName().toStdString();
    return name.empty() ? std::string("unnamed ") + widget.metaObject()->className() : name;
}

std::string SizeText(const QSize& size) {
    return std::to_string(size.width()) + "x" + std::to_string(size.height());
}

std::string RectText(const QRect& rect) {
    return SizeText(rect.size()) + " at " + std::to_string(rect.x()) + "," +
           std::to_string(rect.y());
}

// The toolkit's own parts: viewports, containers of scroll bars.
bool IsToolkitPart(const QWidget& widget) {
    return widget.objectName().startsWith(QLatin1String("qt_"));
}

Widgets ControlsOf(const QWidget& form) {
    Widgets controls;
    for (const QWidget* widget : form.findChildren<QWidget*>()) {
        if (!IsToolkitPart(*widget)) {
            controls.push_back(widget);
        }
    }
    return controls;
}

Widgets VisibleControlsOf(const QWidget& form) {
    Widgets controls = ControlsOf(form);
    std::erase_if(controls, [&](const QWidget* control) { return !control->isVisibleTo(&form); });
    return controls;
}

template <typename Control, typename Rule>
bool Applies(const QWidget& widget, const Rule& rule) {
    const auto* control = qobject_cast<const Control*>(&widget);
    return control && rule(*control);
}

bool TakesFocus(const QWidget& widget) {
    return widget.focusPolicy() != Qt::NoFocus;
}

bool ShowsText(const QWidget& widget) {
    const auto hasText = [](const auto& control) { return !control.text().isEmpty(); };
    const auto hasTitle = [](const QGroupBox& box) { return !box.title().isEmpty(); };
    return Applies<QLabel>(widget, hasText) || Applies<QAbstractButton>(widget, hasText) ||
           Applies<QLineEdit>(widget, hasText) || Applies<QGroupBox>(widget, hasTitle);
}

QSize NeededBy(const QLabel& label) {
    if (label.text().isEmpty() && label.pixmap(Qt::ReturnByValue).isNull()) {
        return {}; // its size is its own matter
    }
    const QSize least = label.minimumSizeHint();
    if (!label.wordWrap()) {
        return least;
    }
    return {least.width(), label.heightForWidth(label.width())};
}

// A button may be narrower than the style's usual width, but not than its caption.
QSize NeededBy(const QPushButton& button) {
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    const QRect contents =
        button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button);
    const int icon = button.icon().isNull() ? 0 : button.iconSize().width();
    const QSize caption(icon + button.fontMetrics().horizontalAdvance(button.text()),
                        button.fontMetrics().height());
    return caption + button.size() - contents.size();
}

QSize NeededBy(const QToolButton& button) {
    const bool isArrow = button.arrowType() != Qt::NoArrow && button.text().isEmpty();
    return isArrow ? QSize(kSmallestArrow, kSmallestArrow) : button.minimumSizeHint();
}

QSize NeededBy(const QLineEdit& box) {
    QStyleOptionFrame option;
    option.initFrom(&box);
    option.lineWidth = box.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &box);
    const QRect contents = box.style()->subElementRect(QStyle::SE_LineEditContents, &option, &box);
    const int around = box.width() - contents.width() + 2 * kLineEditMargin;
    const int text = box.fontMetrics().horizontalAdvance(box.text());
    return box.minimumSizeHint().expandedTo({around + text, 0});
}

template <typename Control>
bool Ask(const QWidget& widget, QSize& needed) {
    const auto* control = qobject_cast<const Control*>(&widget);
    if (control) {
        needed = NeededBy(*control);
    }
    return control != nullptr;
}

QSize NeededBy(const QWidget& widget) {
    QSize needed = widget.minimumSizeHint();
    Ask<QLabel>(widget, needed) || Ask<QPushButton>(widget, needed) ||
        Ask<QToolButton>(widget, needed) || Ask<QLineEdit>(widget, needed);
    return widget.layout() ? needed.expandedTo(widget.layout()->totalMinimumSize()) : needed;
}

// Takes down what the Tab key reaches. Of options side by side it reaches one; the arrow keys go on
// to the others.
class TabStops {
public:
    explicit TabStops(const QWidget& form) : form_(form) {}

    void Pass(const QWidget& widget) {
        const bool reached = (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus &&
                             widget.isEnabled() && widget.isVisibleTo(&form_);
        const bool isOption = qobject_cast<const QRadioButton*>(&widget) != nullptr;
        if (reached && (!isOption || groups_.insert(widget.parentWidget()).second)) {
            names.push_back(NameOf(widget));
        }
    }

    std::vector<std::string> names;

private:
    const QWidget& form_;
    std::set<const QWidget*> groups_; // whose options were reached
};

// Walks a form as one reads it.
class Reader {
public:
    explicit Reader(const QWidget& form) : stops(form) { ReadInside(form); }

    TabStops stops;

private:
    void Read(const QWidget& widget) {
        stops.Pass(widget);
        ReadInside(widget);
    }

    void ReadInside(const QWidget& widget) {
        if (const auto* scroller = qobject_cast<const QScrollArea*>(&widget)) {
            Read(*scroller->widget());
        } else if (widget.layout()) {
            ReadLayout(*widget.layout());
        } else if (qobject_cast<const PictureBox*>(&widget)) {
            for (const auto* part : widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
                Read(*part);
            }
        }
    }

    // Boxes keep their items in reading order; a grid's may have come in any.
    void ReadLayout(QLayout& layout) {
        std::vector<std::tuple<int, int, QLayoutItem*>> items; // row, column
        auto* grid = qobject_cast<QGridLayout*>(&layout);
        for (int index = 0; index < layout.count(); ++index) {
            int row = 0;
            int column = index;
            int rows = 0;
            int columns = 0;
            if (grid) {
                grid->getItemPosition(index, &row, &column, &rows, &columns);
            }
            items.emplace_back(row, column, layout.itemAt(index));
        }
        std::sort(items.begin(), items.end());
        for (const auto& [row, column, item] : items) {
            if (item->widget()) {
                Read(*item->widget());
            } else if (item->layout()) {
                ReadLayout(*item->layout());
            }
        }
    }
};

} // namespace

Faults CutOffControls(const QWidget& form) {
    Faults faults;
    Widgets all = VisibleControlsOf(form);
    all.push_back(&form);
    for (const QWidget* control : all) {
        const QSize needed = NeededBy(*control);
        if (control->width() < needed.width() || control->height() < needed.height()) {
            faults.push_back(NameOf(*control) + ": " + SizeText(control->size()) + ", needs " +
                             SizeText(needed));
        }
    }
    return faults;
}

Faults OverlappingControls(const QWidget& form) {
    Faults faults;
    const Widgets controls = VisibleControlsOf(form);
    for (std::size_t i = 0; i < controls.size(); ++i) {
        for (std::size_t j = i + 1; j < controls.size(); ++j) {
            const QWidget& one = *controls[i];
            const QWidget& other = *controls[j];
            if (one.parentWidget() == other.parentWidget() &&
                one.geometry().intersects(other.geometry())) {
                faults.push_back(NameOf(one) + " (" + RectText(one.geometry()) + ") and " +
                                 NameOf(other) + " (" + RectText(other.geometry()) + ")");
            }
        }
    }
    return faults;
}

Faults ControlsOutsideTheirParent(const QWidget& form) {
    Faults faults;
    for (const QWidget* control : VisibleControlsOf(form)) {
        const QWidget& parent = *control->parentWidget();
        const bool scrolls = parent.objectName() == QLatin1String("qt_scrollarea_viewport");
        if (!scrolls && !parent.rect().contains(control->geometry())) {
            faults.push_back(NameOf(*control) + ": " + RectText(control->geometry()) + " in " +
                             NameOf(parent) + " of " + SizeText(parent.size()));
        }
    }
    return faults;
}

Faults ScrollBarsShown(const QWidget& form) {
    Faults faults;
    for (const auto* bar : form.findChildren<QScrollBar*>()) {
        // A list of many rows scrolls down at any size.
        const bool isOfAList = bar->parentWidget()->parentWidget()->inherits("QListView") &&
                               bar->orientation() == Qt::Vertical;
        if (bar->isVisibleTo(&form) && !isOfAList) {
            const bool across = bar->orientation() == Qt::Horizontal;
            faults.push_back(std::string(across ? "across" : "down") + ", by " +
                             std::to_string(bar->maximum()) + " pixels");
        }
    }
    return faults;
}

Faults BadlyNamedControls(const QWidget& form) {
    Faults faults;
    std::set<std::string> names{NameOf(form)};
    for (const QWidget* control : ControlsOf(form)) {
        const std::string name = NameOf(*control);
        if (!control->objectName().isEmpty()) {
            if (!names.insert(name).second) {
                faults.push_back(name + ": twice");
            }
        } else if (TakesFocus(*control) || ShowsText(*control)) {
            const auto* label = qobject_cast<const QLabel*>(control);
            faults.push_back(name + (label ? " \"" + label->text().toStdString() + "\"" : ""));
        }
    }
    return faults;
}

Faults SilentControls(const QWidget& form) {
    Faults faults;
    for (const QWidget* control : ControlsOf(form)) {
        if (TakesFocus(*control) && control->accessibleName().trimmed().isEmpty()) {
            faults.push_back(NameOf(*control));
        }
    }
    return faults;
}

std::vector<std::string> ReadingOrder(const QWidget& form) {
    return Reader(form).stops.names;
}

std::vector<std::string> TabOrder(const QWidget& form) {
    TabStops stops(form);
    for (const QWidget* widget = form.nextInFocusChain(); widget != &form;
         widget = widget->nextInFocusChain()) {
        stops.Pass(*widget);
    }
    return stops.names;
}

} // namespace vernacle::test
