// The about box.
#include "workbench/dialogs/frmAbout.h"

#include "host/Paths.h"
#include "workbench/parts/MainWindow.h"
#include "workbench/parts/Shown.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

void ShowAbout() {
    QDialog dialog(MainWindow());
    dialog.setWindowTitle(QObject::tr("About %1").arg(Shown(ProgramName)));
    auto* name = new QLabel(Shown(ProgramName));
    QFont font = name->font();
    font.setPointSizeF(font.pointSizeF() * 2.4);
    font.setWeight(QFont::Light);
    name->setFont(font);
    auto* about = new QLabel(QObject::tr("Version %1\n\nAn editor and build front end for Blitz Basic.\n\n"
                                         "Free software under the GNU General Public License,\n"
                                         "version 3 or later. It comes without any warranty.")
                                 .arg(Shown(ProgramVersion)));
    about->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(28, 24, 28, 16);
    layout->setSpacing(14);
    layout->addWidget(name);
    layout->addWidget(about);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    dialog.exec();
}
