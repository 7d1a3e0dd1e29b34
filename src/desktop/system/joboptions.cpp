#include "desktop/system/joboptions.h"

#include <algorithm>

#include <QPrintEngine>
#include <QPrinter>

namespace vernacle {

namespace {

// Where the toolkit's dialog leaves the queue's own options: names and values in turn.
constexpr auto kQueueOptions = QPrintEngine::PrintEnginePropertyKey(0xfe00);

struct Option {
    const char* name;
    QString value;
};

// One sheet to the page, at its own size.
const Option kUnscaled[] = {
    {"number-up", QStringLiteral("1")},
    {"print-scaling", QStringLiteral("none")},
};

// Those that would make the sheet smaller; a single sheet has nothing to share its paper with.
bool Scales(const QString& name) {
    return name.startsWith(QStringLiteral("number-up"));
}

// As a value stands in an argument: the spooler splits what is not quoted at its blanks.
QString Quoted(QString value) {
    value.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
    value.replace(QLatin1Char('\''), QStringLiteral("\\'"));
    return QLatin1Char('\'') + value + QLatin1Char('\'');
}

bool IsPlain(const QString& value) {
    return std::all_of(value.begin(), value.end(), [](QChar letter) {
        return letter.isLetterOrNumber() || QStringLiteral("-_.,:").contains(letter);
    });
}

QString SidesOf(const QPrinter& printer) {
    const bool isPortrait = printer.pageLayout().orientation() == QPageLayout::Portrait;
    switch (printer.duplex()) {
    case QPrinter::DuplexLongSide:
        return QStringLiteral("two-sided-long-edge");
    case QPrinter::DuplexShortSide:
        return QStringLiteral("two-sided-short-edge");
    case QPrinter::DuplexAuto:
        return isPortrait ? QStringLiteral("two-sided-long-edge")
                          : QStringLiteral("two-sided-short-edge");
    case QPrinter::DuplexNone:
        break;
    }
    return QStringLiteral("one-sided");
}

QString OrientationOf(const QPrinter& printer) {
    const bool isLandscape = printer.pageLayout().orientation() == QPageLayout::Landscape;
    return isLandscape ? QStringLiteral("4") : QStringLiteral("3");
}

QString ColourOf(const QPrinter& printer) {
    return printer.colorMode() == QPrinter::GrayScale ? QStringLiteral("monochrome") : QString();
}

QString RangeOf(const QPrinter& printer) {
    const bool isRange = printer.printRange() == QPrinter::PageRange;
    return isRange ? printer.pageRanges().toString() : QString();
}

// A later one of the same name counts.
std::vector<Option> OptionsOf(const QPrinter& printer) {
    return {
        {"media", printer.pageLayout().pageSize().key()},
        {"sides", SidesOf(printer)},
        {"orientation-requested", OrientationOf(printer)},
        {"print-color-mode", ColourOf(printer)},
        {"page-ranges", RangeOf(printer)},
        {"collate",
         printer.copyCount() > 1 && printer.collateCopies() ? QStringLiteral("true") : QString()},
    };
}

void Add(const QString& name, const QString& value, std::vector<std::string>& arguments) {
    if (!value.isEmpty()) {
        arguments.emplace_back("-o");
        arguments.push_back(
            (name + QLatin1Char('=') + (IsPlain(value) ? value : Quoted(value))).toStdString());
    }
}

} // namespace

std::vector<std::string> JobArguments(const QPrinter& printer) {
    std::vector<std::string> arguments = {"-s",
                                          "-d",
                                          printer.printerName().toStdString(),
                                          "-t",
                                          printer.docName().toStdString(),
                                          "-n",
                                          std::to_string(printer.copyCount())};
    for (const Option& option : OptionsOf(printer)) {
        Add(QLatin1String(option.name), option.value, arguments);
    }
    const QStringList own = printer.printEngine()->property(kQueueOptions).toStringList();
    for (qsizetype i = 0; i + 1 < own.size(); i += 2) {
        if (!Scales(own[i])) {
            Add(own[i], own[i + 1], arguments);
        }
    }
    for (const Option& option : kUnscaled) {
        Add(QLatin1String(option.name), option.value, arguments);
    }
    return arguments;
}

void PrintUnscaled(QPrinter& printer) {
    QPrintEngine& engine = *printer.printEngine();
    QStringList own = engine.property(kQueueOptions).toStringList();
    for (const Option& option : kUnscaled) {
        own << QLatin1String(option.name) << option.value;
    }
    engine.setProperty(kQueueOptions, own);
}

} // namespace vernacle
