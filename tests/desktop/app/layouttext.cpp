#include "layouttext.h"

#include <algorithm>
#include <sstream>
#include <tuple>
#include <vector>

#include <QAbstractButton>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QScrollArea>
#include <QTextBrowser>

namespace vernacle::test {

namespace {

constexpr int kLongText = 500; // characters

std::string Quoted(const QString& text) {
    QString line = text;
    line.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    return " \"" + line.toStdString() + "\"";
}

std::string ClassOf(const QWidget& widget) {
    QString name = QLatin1String(widget.metaObject()->className());
    return name.remove(QLatin1String("vernacle::")).toStdString();
}

std::string NameAndClassOf(const QWidget& widget) {
    const std::string name = widget.objectName().toStdString();
    return name.empty() ? ClassOf(widget) : name + " " + ClassOf(widget);
}

std::string AlignmentText(Qt::Alignment alignment) {
    static constexpr std::pair<Qt::AlignmentFlag, const char*> kWords[] = {
        {Qt::AlignLeft, " left"},
        {Qt::AlignRight, " right"},
        {Qt::AlignHCenter, " centred"},
        {Qt::AlignTop, " at the top"},
        {Qt::AlignBottom, " at the bottom"},
        {Qt::AlignVCenter, " at the middle"},
    };
    std::string text;
    for (const auto& [flag, word] : kWords) {
        text += alignment & flag ? word : "";
    }
    return text;
}

std::string LabelText(const QLabel& label) {
    std::string text = Quoted(label.text());
    if (label.buddy()) {
        text += " names " + label.buddy()->objectName().toStdString();
    }
    text += label.wordWrap() ? " wraps" : "";
    const Qt::Alignment usual = Qt::AlignLeft | Qt::AlignVCenter;
    return label.alignment() == usual ? text : text + ", text" + AlignmentText(label.alignment());
}

// What it shows beside what is typed into it.
std::string ShownBy(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return LabelText(*label);
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return Quoted(button->text());
    }
    if (const auto* frame = qobject_cast<const QGroupBox*>(&widget)) {
        return Quoted(frame->title());
    }
    if (const auto* headings = qobject_cast<const QHeaderView*>(&widget)) {
        QString text;
        for (int column = 0; column < headings->count(); ++column) {
            text += headings->model()->headerData(column, Qt::Horizontal).toString() +
                    QLatin1String("|");
        }
        return Quoted(text);
    }
    if (const auto* topic = qobject_cast<const QTextBrowser*>(&widget)) {
        const QString text = topic->toPlainText(); // the links to the others, and its heading
        return " reads" + Quoted(text.section(QLatin1Char('\n'), 0, 1)) +
               (text.size() > kLongText ? " and more" : "");
    }
    return {};
}

std::string GrowthOf(const QWidget& widget) {
    const QSizePolicy policy = widget.sizePolicy();
    std::string text;
    text += policy.horizontalPolicy() & QSizePolicy::ExpandFlag ? ", takes width" : "";
    text += policy.verticalPolicy() & QSizePolicy::ExpandFlag ? ", takes height" : "";
    return text;
}

class Writer {
public:
    void Form(const QWidget& form) {
        Put(NameAndClassOf(form) + Quoted(form.windowTitle()) + SizeOf(form));
        Inside(form);
    }

    std::string Text() const { return text_.str(); }

private:
    struct Deeper {
        explicit Deeper(int& depth) : depth_(depth) { ++depth_; }
        ~Deeper() { --depth_; }
        int& depth_;
    };

    void Put(const std::string& line) {
        text_ << std::string(static_cast<std::size_t>(2 * depth_), ' ') << line << "\n";
    }

    // A form has the size that it asks for, or a larger one; a page that of the screen.
    static std::string SizeOf(const QWidget& form) {
        if (form.windowType() == Qt::Window) {
            return {};
        }
        const QSize asked = form.sizeHint();
        std::string text = form.width() > asked.width() ? ", wider than it asks for" : "";
        text += form.height() > asked.height() ? ", higher than it asks for" : "";
        return text;
    }

    void Control(const std::string& place, const QWidget& widget) {
        Put(place + NameAndClassOf(widget) + ShownBy(widget) + GrowthOf(widget) +
            (widget.isHidden() ? ", hidden" : ""));
        Inside(widget);
    }

    void Inside(const QWidget& widget) {
        const Deeper deeper(depth_);
        const auto* scroller = qobject_cast<const QScrollArea*>(&widget);
        if (scroller) {
            Control("scrolls: ", *scroller->widget());
            return;
        }
        if (widget.layout()) {
            Layout("", *widget.layout());
        }
        if (!qobject_cast<const QAbstractScrollArea*>(&widget)) { // its parts are the toolkit's
            LooseParts(widget);
        }
    }

    // What stands in no layout, and so where code puts it.
    void LooseParts(const QWidget& widget) {
        for (const auto* part : widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            const bool laidOut = widget.layout() && widget.layout()->indexOf(part) >= 0;
            const bool nested = widget.layout() && IsBelow(*widget.layout(), *part);
            const bool ours = !part->objectName().isEmpty() &&
                              !part->objectName().startsWith(QLatin1String("qt_"));
            if (!laidOut && !nested && ours && !part->isWindow()) {
                Control("loose: ", *part);
            }
        }
    }

    static bool IsBelow(QLayout& layout, const QWidget& part) {
        for (int index = 0; index < layout.count(); ++index) {
            QLayoutItem& item = *layout.itemAt(index);
            if (item.widget() == &part || (item.layout() && IsBelow(*item.layout(), part))) {
                return true;
            }
        }
        return false;
    }

    void Layout(const std::string& place, QLayout& layout) {
        const QMargins edge = layout.contentsMargins();
        std::ostringstream head;
        auto* grid = qobject_cast<QGridLayout*>(&layout);
        auto* box = qobject_cast<QBoxLayout*>(&layout);
        auto* form = qobject_cast<QFormLayout*>(&layout);
        const bool across = box ? box->direction() == QBoxLayout::LeftToRight : !grid && !form;
        head << place << (across ? "row" : box ? "column" : "grid") << " spaced ";
        if (grid) {
            head << grid->horizontalSpacing() << " " << grid->verticalSpacing();
        } else {
            head << layout.spacing();
        }
        if (!edge.isNull()) {
            head << ", set in " << edge.left() << " " << edge.top() << " " << edge.right() << " "
                 << edge.bottom();
        }
        Put(head.str());
        const Deeper deeper(depth_);
        if (grid) {
            GridItems(*grid);
        } else if (box) {
            BoxItems(*box);
        } else if (form) {
            FormItems(*form);
        } else {
            RowItems(layout);
        }
    }

    void FormItems(QFormLayout& form) {
        for (int index = 0; index < form.count(); ++index) {
            int row = 0;
            QFormLayout::ItemRole role = QFormLayout::SpanningRole;
            form.getItemPosition(index, &row, &role);
            const int column = role == QFormLayout::FieldRole ? 1 : 0;
            Item(std::to_string(row) + "," + std::to_string(column) + ": ", *form.itemAt(index));
        }
    }

    // Of a toolbar.
    void RowItems(QLayout& row) {
        for (int index = 0; index < row.count(); ++index) {
            Item("", *row.itemAt(index));
        }
    }

    void BoxItems(QBoxLayout& box) {
        for (int index = 0; index < box.count(); ++index) {
            const int stretch = box.stretch(index);
            Item(stretch > 0 ? "stretched " + std::to_string(stretch) + ": " : "",
                 *box.itemAt(index));
        }
    }

    void GridItems(QGridLayout& grid) {
        for (int row = 0; row < grid.rowCount(); ++row) {
            if (grid.rowStretch(row) > 0) {
                Put("row " + std::to_string(row) + " stretched " +
                    std::to_string(grid.rowStretch(row)));
            }
        }
        for (int column = 0; column < grid.columnCount(); ++column) {
            if (grid.columnStretch(column) > 0) {
                Put("column " + std::to_string(column) + " stretched " +
                    std::to_string(grid.columnStretch(column)));
            }
        }
        std::vector<std::tuple<int, int, int, int, QLayoutItem*>> cells;
        for (int index = 0; index < grid.count(); ++index) {
            int row = 0;
            int column = 0;
            int rows = 0;
            int columns = 0;
            grid.getItemPosition(index, &row, &column, &rows, &columns);
            cells.emplace_back(row, column, rows, columns, grid.itemAt(index));
        }
        std::sort(cells.begin(), cells.end());
        for (const auto& [row, column, rows, columns, item] : cells) {
            std::string place = std::to_string(row) + "," + std::to_string(column);
            if (rows > 1 || columns > 1) {
                place += " over " + std::to_string(rows) + "x" + std::to_string(columns);
            }
            Item(place + ": ", *item);
        }
    }

    void Item(std::string place, QLayoutItem& item) {
        if (const std::string side = AlignmentText(item.alignment()); !side.empty()) {
            place += "(" + side.substr(1) + ") ";
        }
        if (item.widget() && HoldsTogether(*item.widget())) {
            Layout(place, *item.widget()->layout());
        } else if (item.widget()) {
            Control(place, *item.widget());
        } else if (item.layout()) {
            Layout(place, *item.layout());
        } else {
            Put(place + SpaceText(item));
        }
    }

    // One that shows nothing of its own, and has no name either, such as a box with its arrows.
    static bool HoldsTogether(const QWidget& widget) {
        return widget.objectName().isEmpty() && widget.layout() && !widget.isHidden();
    }

    static std::string SpaceText(const QLayoutItem& item) {
        const QSize size = item.sizeHint();
        const int pixels = std::max(size.width(), size.height());
        return item.expandingDirections() ? "free space" : "space " + std::to_string(pixels);
    }

    std::ostringstream text_;
    int depth_ = 0;
};

} // namespace

std::string LayoutText(const QWidget& form) {
    Writer writer;
    writer.Form(form);
    return writer.Text();
}

} // namespace vernacle::test
