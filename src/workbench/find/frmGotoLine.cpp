// The dialog that asks for a line number. It stays open if the document has no such line.
#include "workbench/find/frmGotoLine.h"

#include "editor/Mod_SciFun_goto.h"
#include "host/ErrorLog.h"
#include "sci/Mod_Sci.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <cstdlib>

frmGotoLine::frmGotoLine(QWidget* parent)
    : QDialog(parent), txtLine_(new QLineEdit(this)), lblWrong_(new QLabel(this)),
      lines_(static_cast<long>(Mod_Sci::GetLineCount())) {
    setWindowTitle(tr("Go to Line"));
    auto* prompt = new QLabel(tr("Enter Line Number: ( 1 - %1 )").arg(lines_), this);
    prompt->setBuddy(txtLine_);
    txtLine_->setObjectName("txtLine");
    txtLine_->setAccessibleName(prompt->text());
    lblWrong_->setObjectName("lblWrong");
    lblWrong_->setTextFormat(Qt::PlainText);
    lblWrong_->hide();
    txtLine_->setText(QString::number(Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos()) + 1));
    txtLine_->selectAll();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmGotoLine::cmdOK_Click);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(prompt);
    layout->addWidget(txtLine_);
    layout->addWidget(lblWrong_);
    layout->addSpacing(6);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void frmGotoLine::cmdOK_Click() {
    Guarded("cmdOK_Click", "frmGotoLine", [this] {
        const long line = std::strtol(txtLine_->text().toUtf8().constData(), nullptr, 10) - 1;
        if (line < 0 || line >= lines_) {
            // The field has the focus, so a screen reader reads the field's description.
            lblWrong_->setText(tr("There is no line \"%1\".").arg(txtLine_->text()));
            lblWrong_->show();
            txtLine_->setAccessibleDescription(lblWrong_->text());
            txtLine_->selectAll();
            txtLine_->setFocus();
            return;
        }
        accept();
        Mod_SciFun::GotoLine(line);
    });
}
