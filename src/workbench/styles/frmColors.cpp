// What the editor of colour styles does. Its controls are made in frmColors_form.cpp.
#include "workbench/styles/frmColors.h"

#include "documents/Mod_File.h"
#include "documents/OptionTable.h"
#include "editor/StyleTable.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "engine/OptionsEdit.h"
#include "engine/WaitCursor.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"
#include "workbench/parts/Contrast.h"
#include "workbench/parts/Shown.h"

#include <QColorDialog>
#include <QIcon>
#include <QPainter>
#include <QScreen>
#include <QSignalBlocker>
#include <algorithm>

namespace {

constexpr const char* DefaultStyle = "Default";
constexpr const char* Ending = ".style";
constexpr std::size_t EndingLength = 6;
constexpr std::int16_t True = -1;
constexpr int Border = 60; // pixels for the frame that the desktop draws

std::string FolderOfStyles() { return AppPath("Styles"); }
std::string PathOfStyle(const std::string& name) { return AppPath("Styles\\" + name + Ending); }
bool Exists(const std::string& name) { return gHost.files->Kind(PathOfStyle(name)) == PathKind::File; }

// The table has its colours with red in the lowest byte.
QColor ToColor(std::int32_t bgr) { return {bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF}; }
std::int32_t FromColor(const QColor& colour) {
    return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

template <class Array>
auto& At(Array& array, int slot) {
    return array[static_cast<std::size_t>(slot)];
}

QFont FontOf(int slot) {
    QFont font(Shown(At(StyleTable::FontName, slot)), At(StyleTable::FontSize, slot));
    font.setBold(At(StyleTable::Bold, slot) != 0);
    font.setItalic(At(StyleTable::Italic, slot) != 0);
    font.setUnderline(At(StyleTable::Underline, slot) != 0);
    return font;
}

// The ground on which a text is seen: that of the margin for line numbers, else that of all text.
QColor GroundOf(const TextStyle& style) {
    constexpr int LineNumber = 33;
    return ToColor(style.slot == LineNumber ? At(StyleTable::BackColor, LineNumber)
                                            : At(StyleTable::ForeColor, StyleTable::SlotBackground));
}

void ShowSwatch(QPushButton& button, const QColor& colour) {
    QPixmap swatch(button.iconSize() * button.devicePixelRatio());
    swatch.fill(colour);
    QPainter painter(&swatch);
    painter.setPen(button.palette().color(QPalette::Mid));
    painter.drawRect(swatch.rect().adjusted(0, 0, -1, -1));
    painter.end();
    button.setIcon(swatch);
    button.setAccessibleDescription(colour.name());
    button.setToolTip(colour.name());
}

bool AskYesNo(const std::string& text, const std::string& title = {}) {
    return gHost.dialogs->Show({.text = text,
                                .icon = MessageIcon::Question,
                                .title = title,
                                .buttons = MessageButtons::YesNo}) == MessageAnswer::Yes;
}

void Warn(const std::string& text) { gHost.dialogs->Show({text, MessageIcon::Exclamation}); }

// A name is also that of a file in the folder of styles.
bool IsName(const std::string& name) {
    return !name.empty() && name.find_first_of("/\\") == std::string::npos && name.front() != '.';
}

// Sends the table to every open view.
void ApplyToAllViews() {
    const ViewSwap kept(SciWndData);
    for (const auto& project : gProjects)
        for (const auto& source : project.record->Sources) {
            SciWndData = source.record->SciEdi_WndData;
            ApplyEditorStyle();
        }
}

void StoreCurrent(const std::string& name) {
    OptionsEdit::SciStyleName = name;
    WriteOption(OptionOf(OptionsEdit::SciStyleName));
}

}

frmColors::frmColors(QWidget* parent) : QDialog(parent), shown_(OptionsEdit::SciStyleName) {
    setWindowTitle(tr("Color Styles"));
    AskColour = [this](const QColor& start) -> std::optional<QColor> {
        const QColor chosen = QColorDialog::getColor(start, this);
        return chosen.isValid() ? std::optional(chosen) : std::nullopt;
    };
    Guarded("Form_Load", "frmColors", [this] {
        MakeControls();
        Arrange();
        Connect();
        ListViewRecurseScan(shown_);
        ColorControls();
        lblText->setCurrentRow(0);
        txtDescription->setText(Shown(StyleTable::Description));
        chkSeeChanges->setEnabled(DocumentActive());
        connect(chkSeeChanges, &QCheckBox::toggled, this, [](bool on) {
            if (on) ApplyEditorStyle();
        });
        const QSize wanted(fontMetrics().averageCharWidth() * 110, fontMetrics().height() * 34);
        const QWidget* above = parentWidget() ? parentWidget() : this;
        resize(wanted.boundedTo(above->screen()->availableSize() - QSize(Border, Border)));
    });
}

std::string frmColors::SelectedName() const {
    const QListWidgetItem* item = lvStyles->currentItem();
    return item ? item->data(Qt::UserRole).toByteArray().toStdString() : std::string();
}

const TextStyle* frmColors::SelectedText() const {
    const int row = lblText->currentRow();
    return row < 0 ? nullptr : &TextStyles()[static_cast<std::size_t>(row)];
}

// Lists the styles. The one in use is checked; `selected` is selected without being loaded.
void frmColors::ListViewRecurseScan(const std::string& selected) {
    const QSignalBlocker quiet(lvStyles);
    lvStyles->clear();
    for (const std::string& file : gHost.files->List(FolderOfStyles())) {
        if (file.size() <= EndingLength || !EqualNoCase(file.substr(file.size() - EndingLength), Ending))
            continue;
        const std::string name = file.substr(0, file.size() - EndingLength);
        const bool current = EqualNoCase(name, OptionsEdit::SciStyleName);
        auto* item = new QListWidgetItem(
            QIcon::fromTheme(current ? "checkmark" : "preferences-desktop-color"), Shown(name), lvStyles);
        item->setData(Qt::UserRole, QByteArray::fromStdString(name));
        if (EqualNoCase(name, selected)) lvStyles->setCurrentItem(item);
    }
}

// Fills everything that shows the table.
void frmColors::ColorControls() {
    const QSignalBlocker quiet(lblText);
    const int row = lblText->currentRow();
    lblText->clear();
    QPalette palette = lblText->palette();
    palette.setColor(QPalette::Base, ToColor(At(StyleTable::ForeColor, StyleTable::SlotBackground)));
    lblText->setPalette(palette);
    for (const TextStyle& style : TextStyles()) {
        auto* item = new QListWidgetItem(tr(style.label), lblText);
        item->setFont(FontOf(style.slot));
        item->setForeground(ToColor(At(StyleTable::ForeColor, style.slot)));
        item->setBackground(GroundOf(style));
    }
    lblText->setCurrentRow(row);
    for (std::size_t at = 0; at < cells_.size(); ++at) {
        const ColourCell& cell = ColourCells()[at];
        ShowSwatch(*cells_[at], ToColor(At(*cell.colours, cell.slot)));
    }
    lblText_Click();
}

// Shows the selected text style in the controls.
void frmColors::lblText_Click() {
    const TextStyle* style = SelectedText();
    if (style == nullptr) return;
    filling_ = true;
    const QFont font = FontOf(style->slot);
    cboFont->setCurrentFont(QFont(Shown(At(StyleTable::FontName, style->slot))));
    cboSize->setCurrentIndex(cboSize->findData(static_cast<int>(At(StyleTable::FontSize, style->slot))));
    chkBold->setChecked(font.bold());
    chkItalic->setChecked(font.italic());
    chkUnderline->setChecked(font.underline());
    ShowSwatch(*cmdColor, ToColor(At(StyleTable::ForeColor, style->slot)));
    ShowContrast();
    filling_ = false;
}

void frmColors::ShowContrast() {
    const TextStyle* style = SelectedText();
    const double contrast = Contrast(ToColor(At(StyleTable::ForeColor, style->slot)), GroundOf(*style));
    const QString figure = QString::number(contrast, 'f', 1);
    lblContrast->setText(contrast >= ReadableContrast
                             ? tr("Contrast %1 : 1").arg(figure)
                             : tr("Contrast %1 : 1, which is hard to read. Text needs 4.5 : 1.").arg(figure));
    QFont font = lblContrast->font();
    font.setBold(contrast < ReadableContrast);
    lblContrast->setFont(font);
}

void frmColors::Changed() {
    dirty_ = true;
    if (chkSeeChanges->isChecked()) ApplyEditorStyle();
}

// Writes the controls into the slot of the selected text style.
void frmColors::UpdateSelected() {
    const TextStyle* style = SelectedText();
    if (filling_ || style == nullptr) return;
    const auto flag = [](const QCheckBox* box) { return box->isChecked() ? True : std::int16_t{0}; };
    // A font that this machine lacks stays until another one is chosen.
    if (cboFont->currentFont().family() != QFont(Shown(At(StyleTable::FontName, style->slot))).family())
        At(StyleTable::FontName, style->slot) = cboFont->currentFont().family().toStdString();
    if (cboSize->currentIndex() >= 0)
        At(StyleTable::FontSize, style->slot) = static_cast<std::uint8_t>(cboSize->currentData().toInt());
    At(StyleTable::Bold, style->slot) = flag(chkBold);
    At(StyleTable::Italic, style->slot) = flag(chkItalic);
    At(StyleTable::Underline, style->slot) = flag(chkUnderline);
    lblText->currentItem()->setFont(FontOf(style->slot));
    Changed();
}

void frmColors::ChooseTextColour() {
    const TextStyle* style = SelectedText();
    if (style == nullptr) return;
    const auto chosen = AskColour(ToColor(At(StyleTable::ForeColor, style->slot)));
    if (!chosen) return;
    At(StyleTable::ForeColor, style->slot) = FromColor(*chosen);
    lblText->currentItem()->setForeground(*chosen);
    ShowSwatch(*cmdColor, *chosen);
    ShowContrast();
    Changed();
}

void frmColors::ChooseCellColour(const ColourCell& cell, QPushButton& button) {
    const auto chosen = AskColour(ToColor(At(*cell.colours, cell.slot)));
    if (!chosen) return;
    At(*cell.colours, cell.slot) = FromColor(*chosen);
    ShowSwatch(button, *chosen);
    ColorControls(); // the samples are seen on two of these colours
    Changed();
}

void frmColors::cmdApplyFontToAll_Click() {
    const TextStyle* style = SelectedText();
    if (style == nullptr) return;
    for (int slot = 0; slot < StyleTable::Slots; ++slot) {
        At(StyleTable::FontName, slot) = At(StyleTable::FontName, style->slot);
        At(StyleTable::FontSize, slot) = At(StyleTable::FontSize, style->slot);
        At(StyleTable::Bold, slot) = At(StyleTable::Bold, style->slot);
        At(StyleTable::Italic, slot) = At(StyleTable::Italic, style->slot);
        At(StyleTable::Underline, slot) = At(StyleTable::Underline, style->slot);
    }
    ColorControls();
    Changed();
}

void frmColors::SaveStyle(const std::string& name) {
    if (name.empty()) return;
    Mod_File::SaveStyle(name, txtDescription->text().toStdString());
    dirty_ = false;
}

// Offers to save what was changed. False if the user wants neither.
bool frmColors::AskToSave() {
    if (!dirty_) return true;
    const MessageAnswer answer = gHost.dialogs->Show(
        {.text = "Style " + shown_ + " has changed.\r\nDo you want to save changes to this style?",
         .icon = MessageIcon::Question,
         .title = "Save Style",
         .buttons = MessageButtons::YesNo});
    if (answer == MessageAnswer::Yes) SaveStyle(shown_);
    return answer == MessageAnswer::Yes || answer == MessageAnswer::No;
}

// Loads a style and shows it.
void frmColors::ShowStyle(const std::string& name) {
    const std::string loaded = Mod_File::LoadStyle(name);
    if (!loaded.empty()) shown_ = loaded;
    txtDescription->setText(Shown(StyleTable::Description));
    lblText->setCurrentRow(0);
    ColorControls();
    if (chkSeeChanges->isChecked()) ApplyEditorStyle();
    dirty_ = false;
}

void frmColors::lvStyles_ItemClick() {
    const std::string name = SelectedName();
    if (name.empty() || EqualNoCase(name, shown_)) return;
    if (AskToSave()) return ShowStyle(name);
    const QSignalBlocker quiet(lvStyles);
    for (int row = 0; row < lvStyles->count(); ++row)
        if (lvStyles->item(row)->data(Qt::UserRole).toByteArray().toStdString() == shown_)
            lvStyles->setCurrentRow(row);
}

void frmColors::cmdApplyStyle_Click() {
    const std::string name = SelectedName();
    if (name.empty()) return;
    const WaitCursor wait;
    // Saved first: if that fails, the setting still names a style that can be loaded.
    SaveStyle(name);
    StoreCurrent(name);
    ApplyToAllViews();
    ListViewRecurseScan(name);
}

void frmColors::NewStyle() {
    const auto name = gHost.dialogs->Input("Enter Name For The New Style", "New Style Name", "New Style");
    if (!name || name->empty()) return;
    if (!IsName(*name)) return Warn("A name cannot hold a slash or a backslash, or begin with a dot.");
    if (Exists(*name)) return Warn("Style with this name already exists !");
    if (!EqualNoCase(shown_, DefaultStyle) &&
        !AskYesNo("Do you want your new style to start with the current style properties ?\r\n(If you choose "
                  "'No', style properties will be copied from the default style)")) {
        Mod_File::LoadStyle(DefaultStyle);
        txtDescription->setText(Shown(StyleTable::Description));
    }
    SaveStyle(*name);
    shown_ = *name;
    ListViewRecurseScan(shown_);
    ColorControls();
}

void frmColors::cmdDeleteStyle_Click() {
    const std::string name = SelectedName();
    if (name.empty()) return;
    if (EqualNoCase(name, DefaultStyle)) return Warn("You can't delete default style !");
    if (!AskYesNo("Are you sure you want to delete the style '" + name + "' ?")) return;
    if (Exists(name)) gHost.files->Remove(PathOfStyle(name));
    if (EqualNoCase(name, OptionsEdit::SciStyleName)) OptionsEdit::SciStyleName = DefaultStyle;
    dirty_ = false;
    ShowStyle(OptionsEdit::SciStyleName);
    ListViewRecurseScan(shown_);
}

void frmColors::cmdRenameStyle_Click() {
    const std::string old = SelectedName();
    if (old.empty()) return;
    const auto name = gHost.dialogs->Input("Please enter the new name for this style", "Rename Style", old);
    if (!name || !IsName(*name) || Exists(*name)) return;
    gHost.files->Rename(PathOfStyle(old), PathOfStyle(*name));
    if (EqualNoCase(old, OptionsEdit::SciStyleName)) StoreCurrent(*name);
    if (EqualNoCase(old, shown_)) shown_ = *name;
    ListViewRecurseScan(*name);
}

// A preview does not survive the dialog.
void frmColors::reject() {
    if (!AskToSave()) return;
    Guarded("cmdClose_Click", "frmColors", [this] {
        if (!EqualNoCase(shown_, OptionsEdit::SciStyleName) || dirty_)
            Mod_File::LoadStyle(OptionsEdit::SciStyleName);
        ApplyEditorStyle();
    });
    QDialog::reject();
}
