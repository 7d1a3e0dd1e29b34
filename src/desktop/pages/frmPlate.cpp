#include "desktop/pages/frmPlate.h"

#include <string_view>

#include <QGridLayout>
#include <QHBoxLayout>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/kit/picturebox.h"
#include "desktop/kit/steppedentry.h"
#include "desktop/kit/updown.h"
#include "desktop/navigation/navigator.h"
#include "desktop/system/dialogs.h"
#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/base/text.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/illustrations/schematic.h"
#include "surfaces/colours.h"

namespace vernacle {

namespace {

using D = DesignRecord;

constexpr int kItemsPerColumn = 7;
constexpr int kFontNameWidth = 16; // characters
constexpr std::int16_t kQuadrant = 1;
constexpr QSize kSwatchSize(48, 22);
constexpr QColor kWarning(0xFF, 0xEE, 0xEE);

constexpr PageTraits kTraits = {
    .form = "frmPlate", .title = "Plate design", .helpTopic = "vplate.htm"};

} // namespace

// A measure: the limits of what is typed, the range of its arrows, the illustration that shows it.
struct frmPlate::NumericItem {
    const char* caption = nullptr;
    float D::*field = nullptr;
    const char* box = nullptr;
    EntryLimits limits = {};
    const char* unit = nullptr;
    StepRange arrows;
    std::int16_t topic = 0;
};

// clang-format off
const frmPlate::NumericItem frmPlate::kItems[] = {
    {"Plate width, mm",           &D::PlateWidth,            "txtPlateWidth",           {20, 180},                         "mm",            {20, 180},           1},
    {"Plate height, mm",          &D::PlateHeight,           "txtPlateHeight",          {10, 180},                         "mm",            {10, 180},           2},
    {"Bottom to bearing, mm",     &D::BottomToBearing,       "txtBottomToBearing",      {-100000, 100000},                 "mm",            {-100000, 100000},   3},
    {"Bottom to mounting, mm",    &D::BottomToHoles,         "txtBottomToHoles",        {-1000, 150},                      "mm",            {-1000, 150},        4},
    {"Hole separation, mm",       &D::HoleSeparation,        "txtHoleSeparation",       {5, 180},                          "mm",            {5, 180},            5},
    {"Pointer deflection, deg ",  &D::PointerDeflection,     "txtPointerDeflection",    {0.1, 360},                        "degrees",       {1, 360},            6},
    {"Actual/virtual offset, mm", &D::ActualVirtualOffset,   "txtActualVirtualOffset",  {-EntryLimits::kNone, 1000000},    "mm",            {0, 100000},         7},
    {"Minor tic length, mm",      &D::MinorTicLength,        "txtMinorTicLength",       {0.5, 15},                         "mm",            {1, 15},             9},
    {"Major tic length, mm",      &D::MajorTicLength,        "txtMajorTicLength",       {0.5, 15},                         "mm",            {1, 15},             10},
    {"Minor tic width, .1 mm",    &D::MinorTicWidth,         "txtMinorTicWidth",        {1, 20},                           "tenths of mm",  {1, 20},             11},
    {"Major tic width, .1 mm",    &D::MajorTicWidth,         "txtMajorTicWidth",        {1, 20},                           "tenths of mm",  {0, 10},             12},
    {"Font size",                 &D::FontSize,              "txtFontSize",             {2, 20},                           "points",        {2, 20},             13},
    {"Label-arc spacing, mm",     &D::LabelSpacing,          "txtLabelSpacing",         {-200, 200},                       "mm",            {-200, 200},         14},
    {"Arc thickness, mm",         &D::ArcWidth,              "txtArcWidth",             {0.5, 20},                         "tenths of mm",  {1, 20},             25},
};
// clang-format on

// An option of a frame: what selecting it does, and whether the design stands so.
struct frmPlate::Option {
    const char* frame;
    const char* name;
    const char* caption;
    void (*select)(frmPlate& page);
    bool (*holds)();
};

namespace {

void TakeScales(std::int16_t count) {
    Design.NumberOfScales = count;
    Design.ActiveScale = 1;
}

} // namespace

// In the order in which a load sets them: the graphic's options clear those of the labels, which
// come last to show the field.
// clang-format off
const frmPlate::Option frmPlate::kOptions[] = {
    {"fraSound",         "optSoundOff",                "Off",         [](frmPlate&) { Design.MessageLevel = 0; },                           [] { return Design.MessageLevel == 0; }},
    {"fraSound",         "optSoundWarn",               "Warn",        [](frmPlate&) { Design.MessageLevel = 1; },                           [] { return Design.MessageLevel == 1; }},
    {"fraSound",         "optSoundAll",                "All",         [](frmPlate&) { Design.MessageLevel = 2; },                           [] { return Design.MessageLevel == 2; }},
    {"fraGraphic",       "optGraphicYes",              "Yes",         [](frmPlate& page) { page.optGraphicClicked("Y", "optPrintTextNo"); },  [] { return Design.DrawGraphic == "Y"; }},
    {"fraGraphic",       "optGraphicNo",               "No",          [](frmPlate& page) { page.optGraphicClicked("N", "optPrintTextYes"); }, [] { return Design.DrawGraphic == "N"; }},
    {"fraArcs",          "optArcsYes",                 "Yes",         [](frmPlate&) { Design.DrawArcs = "Y"; },                             [] { return Design.DrawArcs == "Y"; }},
    {"fraArcs",          "optArcsNo",                  "No",          [](frmPlate&) { Design.DrawArcs = "N"; },                             [] { return Design.DrawArcs == "N"; }},
    {"fraLabelRotation", "optLabelRotationHorizontal", "Horizontal",  [](frmPlate&) { Design.LabelRotation = "H"; },                        [] { return Design.LabelRotation == "H"; }},
    {"fraLabelRotation", "optLabelRotationBearing",    "Bearing",     [](frmPlate&) { Design.LabelRotation = "B"; },                        [] { return Design.LabelRotation == "B"; }},
    {"fraStyle",         "optNormal",                  "Standard",    [](frmPlate& page) { page.optStyleClicked(0); },                      [] { return Design.PlateStyle == 0; }},
    {"fraStyle",         "optDINquad",                 "Quadrant",    [](frmPlate& page) { page.optStyleClicked(kQuadrant); },              [] { return Design.PlateStyle == kQuadrant; }},
    {"fraNumber",        "Option1",                    "1",           [](frmPlate&) { TakeScales(1); },                                     [] { return Design.NumberOfScales == 1; }},
    {"fraNumber",        "Option2",                    "2",           [](frmPlate&) { TakeScales(2); },                                     [] { return Design.NumberOfScales == 2; }},
    {"fraNumber",        "Option3",                    "3",           [](frmPlate&) { TakeScales(3); },                                     [] { return Design.NumberOfScales == 3; }},
    {"fraNumber",        "Option4",                    "4",           [](frmPlate&) { TakeScales(4); },                                     [] { return Design.NumberOfScales == 4; }},
    {"fraNumber",        "Option5",                    "5",           [](frmPlate&) { TakeScales(5); },                                     [] { return Design.NumberOfScales == 5; }},
    {"fraNumber",        "Option6",                    "6",           [](frmPlate&) { TakeScales(6); },                                     [] { return Design.NumberOfScales == 6; }},
    {"fraPlate",         "optCircular",                "Circular",    [](frmPlate&) { Design.PlateOutlineCircular = 1; },                   [] { return Design.PlateOutlineCircular == 1; }},
    {"fraPlate",         "optRectangular",             "Rectangular", [](frmPlate&) { Design.PlateOutlineCircular = 0; },                   [] { return Design.PlateOutlineCircular == 0; }},
    {"fraLabels",        "optPrintTextYes",            "Yes",         [](frmPlate&) { Design.PrintText = "Y"; },                            [] { return Design.PrintText == "Y"; }},
    {"fraLabels",        "optPrintTextNo",             "No",          [](frmPlate&) { Design.PrintText = "N"; },                            [] { return Design.PrintText == "N"; }},
};
// clang-format on

namespace {

enum class Frame { Shown, Hidden };

} // namespace

// A frame of options, and where it stands on the page's grid. Its first options are enabled.
struct frmPlate::OptionFrame {
    const char* name;
    const char* title;
    Frame frame;
    int enabledOptions;
    int row;
    int column;
    int columns;
    const char* before; // texts around the options
    const char* behind;
    const char* helpButton; // with an illustration of the options
    void (frmPlate::*help)();
    bool helpEnabled;
};

// clang-format off
const frmPlate::OptionFrame frmPlate::kFrames[] = {
    {"fraArcs",          "Arcs",         Frame::Shown,  2, 0, 0, 1, "",   "",       nullptr,         nullptr,                         false},
    {"fraLabels",        "Labels",       Frame::Shown,  2, 0, 1, 1, "",   "",       nullptr,         nullptr,                         false},
    {"fraLabelRotation", "Label rotate", Frame::Shown,  2, 1, 0, 1, "",   "",       "cmdRotateHelp", &frmPlate::cmdRotateHelpClicked, true},
    {"fraStyle",         "Style",        Frame::Shown,  0, 1, 1, 1, "",   "",       "cmdStyleHelp",  &frmPlate::cmdStyleHelpClicked,  false},
    {"fraNumber",        "Number",       Frame::Shown,  1, 2, 0, 2, "of", "scales", nullptr,         nullptr,                         false},
    {"fraPlate",         "Plate",        Frame::Hidden, 2, 3, 0, 1, "",   "",       nullptr,         nullptr,                         false},
    {"fraGraphic",       "Graphic",      Frame::Hidden, 2, 3, 1, 1, "",   "",       nullptr,         nullptr,                         false},
    {"fraSound",         "Sound",        Frame::Hidden, 2, 4, 0, 1, "",   "",       nullptr,         nullptr,                         false},
};
// clang-format on

namespace {

// "txtPlateWidth" with another control's prefix.
std::string Sibling(const char* prefix, const char* box) {
    return prefix + std::string(box).substr(3);
}

// A file's name behind its last folder.
QString ShortName(const std::string& path) {
    return QString::fromStdString(path.substr(path.rfind('\\') + 1));
}

void SetIfEmpty(std::string& field, const char* value) {
    if (field.empty()) {
        field = value;
    }
}

} // namespace

frmPlate::frmPlate() : DesignPage(kTraits) {
    Build();
    Load();
}

void frmPlate::Build() {
    auto* entries = new QVBoxLayout;
    entries->setSpacing(12);
    entries->addWidget(MakeHeading("lblHeading", QStringLiteral("Plate design")));
    entries->addLayout(MakeItems());
    entries->addLayout(MakeFrames());
    entries->addLayout(MakeTools());
    entries->addStretch();
    schematic_ = new PictureBox("picSchematic", SchematicArea(), UnitShape::Square);
    schematic_->setAccessibleName(QStringLiteral("Illustration of the measure"));
    auto* halves = new QHBoxLayout;
    halves->setSpacing(16);
    halves->addLayout(entries);
    halves->addWidget(schematic_, 1);
    Body().addLayout(halves, 1);
}

QLayout* frmPlate::MakeItems() {
    auto* columns = new QHBoxLayout;
    columns->setSpacing(20);
    QGridLayout* grid = nullptr;
    int row = 0;
    for (const NumericItem& item : kItems) {
        if (row % kItemsPerColumn == 0) {
            grid = new QGridLayout;
            grid->setSpacing(kEntrySpacing);
            grid->setColumnStretch(1, 1);
            columns->addLayout(grid);
        }
        AddItem(item, *grid, row++ % kItemsPerColumn);
    }
    return columns;
}

void frmPlate::AddItem(const NumericItem& item, QGridLayout& grid, int row) {
    const QString caption = QString::fromUtf8(item.caption);
    auto* box = new EntryBox(item.box, caption);
    box->TellRange(RangeText(item.limits, item.unit));
    QLabel* label = MakeLabel(Sibling("lbl", item.box).c_str(), caption);
    label->setBuddy(box);
    auto* arrows = new UpDown(Sibling("UpDown", item.box).c_str(), caption);
    arrows->AttachTo(*box, item.arrows);
    QPushButton* help = MakeHelpButton(Sibling("cmd", item.box).c_str(), caption);
    connect(box, &EntryBox::Changed, this, [this, &item] { ItemChanged(item); });
    connect(help, &QPushButton::clicked, this, [this, &item] { Illustrate(item); });
    grid.addWidget(label, row, 0);
    grid.addWidget(new SteppedEntry(*box, arrows), row, 1);
    grid.addWidget(help, row, 2);
}

QLayout* frmPlate::MakeFrames() {
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    for (const OptionFrame& frame : kFrames) {
        grid->addWidget(MakeOptionFrame(frame), frame.row, frame.column, 1, frame.columns);
    }
    return grid;
}

QGroupBox* frmPlate::MakeOptionFrame(const OptionFrame& frame) {
    QGroupBox* box = MakeFrame(frame.name, QString::fromUtf8(frame.title));
    auto* line = new QHBoxLayout(box);
    if (*frame.before != '\0') {
        line->addWidget(MakeLabel("lblNumberBefore", QString::fromUtf8(frame.before)));
    }
    int place = 0;
    for (const Option& option : kOptions) {
        if (option.frame == std::string_view(frame.name)) {
            auto* button = new OptionButton(option.name, QString::fromUtf8(option.caption));
            button->OnSelect([this, &option] { option.select(*this); });
            button->setEnabled(place++ < frame.enabledOptions);
            line->addWidget(button);
        }
    }
    if (*frame.behind != '\0') {
        line->addWidget(MakeLabel("lblNumberBehind", QString::fromUtf8(frame.behind)));
    }
    line->addStretch();
    if (frame.helpButton) {
        QPushButton* help = MakeHelpButton(frame.helpButton, box->title());
        help->setEnabled(frame.helpEnabled);
        connect(help, &QPushButton::clicked, this, frame.help);
        line->addWidget(help);
    }
    if (frame.frame == Frame::Hidden) {
        box->hide();
    }
    return box;
}

QLayout* frmPlate::MakeTools() {
    const auto add = [this](const char* name, const char* caption, void (frmPlate::*clicked)()) {
        QPushButton* button = MakeButton(name, QString::fromUtf8(caption));
        connect(button, &QPushButton::clicked, this, clicked);
        return button;
    };
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    QPushButton* calibrate = add("cmdCalibrate", "Calibrate", &frmPlate::cmdCalibrateClicked);
    calibrate->setToolTip(QStringLiteral("Go to printer calibration routine"));
    QPushButton* linearity =
        add("cmdLinearity", "Movement linearity", &frmPlate::cmdLinearityClicked);
    QPushButton* font = add("cmdGetFont", "Get font", &frmPlate::cmdGetFontClicked);
    QPushButton* background =
        add("cmdGetBackgroundColor", "Background", &frmPlate::cmdGetBackgroundColorClicked);
    for (QPushButton* greyed : {linearity, font, background}) {
        greyed->setEnabled(false);
    }
    lblShowFont_ = MakeLabel("lblShowFont", {});
    swatch_ = MakeLabel("lblShowBackground", {});
    swatch_->setFrameStyle(QFrame::Box | QFrame::Plain);
    swatch_->setAutoFillBackground(true);
    swatch_->setFixedSize(kSwatchSize);
    swatch_->setAccessibleName(QStringLiteral("Plate background colour"));
    grid->addWidget(calibrate, 0, 0);
    grid->addWidget(linearity, 0, 1);
    grid->addWidget(font, 1, 0);
    grid->addWidget(lblShowFont_, 1, 1);
    grid->addWidget(background, 2, 0);
    grid->addWidget(swatch_, 2, 1, Qt::AlignLeft);
    return grid;
}

void frmPlate::Load() {
    findChild<QGroupBox*>(QStringLiteral("fraGraphic"))
        ->setToolTip(ShortName(Design.GraphicFileName));
    ShowFont();
    ShowBackground();
    ShowOptionsOf("fraSound");
    WarnOfQuadrant();
    Design.NumberOfScales = 1;
    NormalizeDesign(Design);
    FillItems();
    SetIfEmpty(Design.DrawArcs, "Y");
    SetIfEmpty(Design.LabelRotation, "H");
    SetIfEmpty(Design.PrintText, "Y");
    SetIfEmpty(Design.DrawHighlights, "Y");
    SetIfEmpty(Design.DrawGraphic, "N");
    for (const char* frame : {"fraGraphic", "fraArcs", "fraLabelRotation", "fraStyle", "fraNumber",
                              "fraPlate", "fraLabels"}) {
        ShowOptionsOf(frame);
    }
    schematic_->Surface().Clear();
}

void frmPlate::FillItems() {
    for (const NumericItem& item : kItems) {
        Box(item.box).Write(SignedNumber(Design.*item.field));
    }
}

void frmPlate::ShowOptionsOf(const char* frame) {
    for (const Option& option : kOptions) {
        if (option.frame == std::string_view(frame) && option.holds()) {
            findChild<OptionButton*>(QLatin1String(option.name))->Select();
            return;
        }
    }
}

EntryBox& frmPlate::Box(const char* name) const {
    return *findChild<EntryBox*>(QLatin1String(name));
}

void frmPlate::ItemChanged(const NumericItem& item) {
    std::string text = Box(item.box).Text();
    float& value = Design.*item.field;
    ParseEntry(text, value);
    value = item.limits.Held(value);
    WarnOfQuadrant();
    Illustrate(item);
}

void frmPlate::Illustrate(const NumericItem& item) {
    Design.HelpTopic = item.topic;
    RedrawSchematic();
}

// A quadrant plate needs 90 degrees and no offset; the colour says so without stopping the user.
void frmPlate::WarnOfQuadrant() {
    const bool quadrant = Design.PlateStyle == kQuadrant;
    const auto show = [&](const char* box, bool doubtful) {
        Box(box).SetBackground(quadrant && doubtful ? kWarning : QColor(Qt::white));
    };
    show("txtPointerDeflection", Design.PointerDeflection != 90);
    show("txtActualVirtualOffset", Design.ActualVirtualOffset != 0);
}

void frmPlate::RedrawSchematic() {
    DrawSchematic(schematic_->Surface(), Design.HelpTopic, kPlatePageLook);
}

void frmPlate::optStyleClicked(std::int16_t style) {
    Design.PlateStyle = style;
    WarnOfQuadrant();
}

void frmPlate::optGraphicClicked(const char* yesNo, const char* cleared) {
    Design.DrawGraphic = yesNo;
    findChild<OptionButton*>(QLatin1String(cleared))->Unselect();
}

void frmPlate::cmdCalibrateClicked() {
    ShowModal("frmCalibrate");
}

void frmPlate::cmdLinearityClicked() {
    ShowModal("frmCorrectionEntry");
}

void frmPlate::cmdRotateHelpClicked() {
    ShowModal("frmRotateIllustration");
}

void frmPlate::cmdStyleHelpClicked() {
    ShowModal("frmStyleHelp");
}

void frmPlate::cmdGetFontClicked() {
    Design.FontName = Trimmed(AskForFont(this, "Get font", std::string(Trimmed(Design.FontName))));
    if (Design.FontName.empty()) {
        Design.FontName = "Arial";
        Host.informationBox("No font was selected; Arial is being used");
    }
    ShowFont();
}

void frmPlate::ShowFont() {
    const QString name = QString::fromUtf8(Trimmed(Design.FontName));
    lblShowFont_->setText(name.rightJustified(kFontNameWidth));
}

void frmPlate::cmdGetBackgroundColorClicked() {
    Design.PlateBackground = AskForColour(this, "Get plate background color", kWhite);
    if (Design.PlateBackground == 0) {
        Design.PlateBackground = 1; // black stays distinct from unset
    }
    ShowBackground();
}

void frmPlate::ShowBackground() {
    QPalette colours = swatch_->palette();
    colours.setColor(QPalette::Window, ToQColor(Design.PlateBackground));
    colours.setColor(QPalette::WindowText, Qt::black);
    swatch_->setPalette(colours);
}

} // namespace vernacle
