// The controls of the editor of colour styles.
#include "workbench/styles/frmColors.h"

#include "host/ErrorLog.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

constexpr int SmallestSize = 6, LargestSize = 16; // points
constexpr int SwatchWidth = 48, SwatchHeight = 20;

template <class Control>
Control* Named(Control* control, const char* name) {
    control->setObjectName(name);
    return control;
}

QPushButton* MakeButton(const char* name, const QString& caption) {
    auto* button = Named(new QPushButton(caption), name);
    button->setAutoDefault(false);
    return button;
}

// Runs the handler of a control, and reports a failure under its name.
template <class Handler>
void Handle(const char* name, Handler handler) {
    Guarded(name, "frmColors", handler);
}

}

void frmColors::MakeControls() {
    lvStyles = Named(new QListWidget, "lvStyles");
    lvStyles->setAccessibleName(tr("Styles"));
    lblText = Named(new QListWidget, "lblText");
    lblText->setAccessibleName(tr("Text styles"));
    cboFont = Named(new QFontComboBox, "cboFont");
    cboSize = Named(new QComboBox, "cboSize");
    for (int size = SmallestSize; size <= LargestSize; ++size) cboSize->addItem(QString::number(size), size);
    chkBold = Named(new QCheckBox(tr("&Bold")), "chkBold");
    chkItalic = Named(new QCheckBox(tr("&Italic")), "chkItalic");
    chkUnderline = Named(new QCheckBox(tr("&Underline")), "chkUnderline");
    chkSeeChanges = Named(new QCheckBox(tr("See style changes in the &editor")), "chkSeeChanges");
    cmdColor = MakeButton("cmdColor", {});
    cmdColor->setIconSize(QSize(SwatchWidth, SwatchHeight));
    cmdColor->setAccessibleName(tr("Text colour"));
    cmdApplyFontToAll = MakeButton("cmdApplyFontToAll", tr("Apply Font &To All"));
    cmdAddNew = MakeButton("cmdAddNew", tr("Add &New"));
    cmdDeleteStyle = MakeButton("cmdDeleteStyle", tr("&Delete"));
    cmdRenameStyle = MakeButton("cmdRenameStyle", tr("&Rename"));
    cmdSaveStyle = MakeButton("cmdSaveStyle", tr("&Save Style"));
    cmdApplyStyle = MakeButton("cmdApplyStyle", tr("&Apply this style"));
    cmdClose = MakeButton("cmdClose", tr("&Close"));
    txtDescription = Named(new QLineEdit, "txtDescription");
    txtDescription->setMaxLength(255);
    lblContrast = Named(new QLabel, "lblContrast");
    lblContrast->setWordWrap(true);
    lblContrast->setMinimumHeight(2 * fontMetrics().height());
}

QWidget* frmColors::TextPage() {
    auto* page = new QWidget;
    auto* fields = new QFormLayout;
    fields->addRow(tr("&Font:"), cboFont);
    fields->addRow(tr("Si&ze:"), cboSize);
    fields->addRow(tr("C&olour:"), cmdColor);
    auto* column = new QVBoxLayout;
    column->addLayout(fields);
    for (QWidget* widget : {static_cast<QWidget*>(chkBold), static_cast<QWidget*>(chkItalic),
                            static_cast<QWidget*>(chkUnderline), static_cast<QWidget*>(lblContrast)})
        column->addWidget(widget);
    column->addWidget(cmdApplyFontToAll, 0, Qt::AlignLeft);
    column->addStretch();
    auto* row = new QHBoxLayout(page);
    row->addWidget(lblText, 1);
    row->addLayout(column, 1);
    return page;
}

QWidget* frmColors::ColourPage() {
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    const int rows = static_cast<int>(ColourCells().size() + 1) / 2;
    int at = 0;
    for (const ColourCell& cell : ColourCells()) {
        auto* button = MakeButton(cell.tag, {});
        button->setIconSize(QSize(SwatchWidth, SwatchHeight));
        button->setAccessibleName(tr(cell.label));
        connect(button, &QPushButton::clicked, this, [this, &cell, button] {
            Handle("lblColor_Click", [&] { ChooseCellColour(cell, *button); });
        });
        cells_.push_back(button);
        const int column = at / rows * 3;
        grid->addWidget(button, at % rows, column);
        grid->addWidget(new QLabel(tr(cell.label)), at % rows, column + 1);
        ++at;
    }
    grid->setColumnMinimumWidth(2, SwatchHeight);
    grid->setColumnStretch(4, 1);
    grid->setRowStretch(rows, 1);
    return page;
}

void frmColors::Arrange() {
    auto* pages = new QTabWidget;
    pages->setAccessibleName(tr("What to change"));
    pages->tabBar()->setAccessibleName(pages->accessibleName());
    pages->addTab(TextPage(), tr("Te&xt"));
    pages->addTab(ColourPage(), tr("Co&lours"));
    auto* styles = new QVBoxLayout;
    styles->addWidget(lvStyles, 1);
    for (QPushButton* button : {cmdAddNew, cmdRenameStyle, cmdDeleteStyle}) styles->addWidget(button);
    auto* description = new QFormLayout;
    description->addRow(tr("Descri&ption:"), txtDescription);
    auto* right = new QVBoxLayout;
    right->addLayout(description);
    right->addWidget(pages, 1);
    right->addWidget(chkSeeChanges);
    auto* row = new QHBoxLayout;
    row->addLayout(styles, 1);
    row->addLayout(right, 4);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* button : {cmdSaveStyle, cmdApplyStyle, cmdClose}) buttons->addWidget(button);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(12);
    column->addLayout(row, 1);
    column->addLayout(buttons);
}

void frmColors::Connect() {
    connect(lvStyles, &QListWidget::currentRowChanged, this,
            [this] { Handle("lvStyles_ItemClick", [this] { lvStyles_ItemClick(); }); });
    connect(lblText, &QListWidget::currentRowChanged, this,
            [this] { Handle("lblText_Click", [this] { lblText_Click(); }); });
    const auto update = [this] { Handle("UpdateSelected", [this] { UpdateSelected(); }); };
    connect(cboFont, &QFontComboBox::currentFontChanged, this, update);
    connect(cboSize, &QComboBox::currentIndexChanged, this, update);
    for (QCheckBox* box : {chkBold, chkItalic, chkUnderline}) connect(box, &QCheckBox::toggled, this, update);
    connect(txtDescription, &QLineEdit::textEdited, this, [this] { dirty_ = true; });
    const auto on = [this](QPushButton* button, const char* name, void (frmColors::*handler)()) {
        connect(button, &QPushButton::clicked, this,
                [this, name, handler] { Handle(name, [&] { (this->*handler)(); }); });
    };
    on(cmdColor, "lblText_Click", &frmColors::ChooseTextColour);
    on(cmdApplyFontToAll, "cmdApplyFontToAll_Click", &frmColors::cmdApplyFontToAll_Click);
    on(cmdAddNew, "NewStyle", &frmColors::NewStyle);
    on(cmdDeleteStyle, "cmdDeleteStyle_Click", &frmColors::cmdDeleteStyle_Click);
    on(cmdRenameStyle, "cmdRenameStyle_Click", &frmColors::cmdRenameStyle_Click);
    on(cmdApplyStyle, "cmdApplyStyle_Click", &frmColors::cmdApplyStyle_Click);
    connect(cmdSaveStyle, &QPushButton::clicked, this,
            [this] { Handle("SaveStyle", [this] { SaveStyle(SelectedName()); }); });
    connect(cmdClose, &QPushButton::clicked, this, &frmColors::reject);
}
