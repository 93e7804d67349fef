// The dialog that reports a failure and offers to send a report. It must not report itself, so its own
// failures are shown as messages.
#include "workbench/dialogs/frmError.h"

#include "host/Desktop.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Failure.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "workbench/dialogs/ErrorReport.h"
#include "workbench/parts/MainWindow.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int Width = 480;

QLabel* AddText(QVBoxLayout* layout, const QString& text) {
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    layout->addWidget(label);
    return label;
}

void Embolden(QLabel* label, int percent) {
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * percent / 100);
    label->setFont(font);
}

template <class Body>
void Tell(Body body) {
    try {
        body();
    } catch (const Failure& failure) {
        gHost.dialogs->Show({.text = failure.description, .icon = MessageIcon::Exclamation});
    }
}

}

frmError::frmError(QWidget* parent) : QDialog(parent) {
    setWindowTitle("Zolto - Error Handler");
    auto* texts = new QVBoxLayout;
    texts->setSpacing(10);
    Embolden(AddText(texts, "Error Handler"), 130);
    Embolden(AddText(texts, "An Error has Occured in Zolto"), 100);
    AddText(texts,
            "We Apologizes for the inconvience but an error has occured. It is recommended that you save "
            "your work and restart Zolto.  A log of this error has been created. ");
    Embolden(AddText(texts, "Please tell us about this problem."), 100);
    AddText(texts, "An error report has been prepared that you can send to help us improve Zolto");
    QLabel* link =
        AddText(texts, "To see what info this error report contains, <a href=\"log\">click here</a>");
    link->setTextInteractionFlags(Qt::TextBrowserInteraction);
    connect(link, &QLabel::linkActivated, this, [this] { OpenLog(); });

    auto* icon = new QLabel;
    const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxCritical).pixmap(size));
    auto* top = new QHBoxLayout;
    top->setSpacing(16);
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addLayout(texts, 1);

    auto* buttons = new QDialogButtonBox;
    auto* send = buttons->addButton("&Send Error Report", QDialogButtonBox::AcceptRole);
    auto* dont = buttons->addButton("&Don't Send", QDialogButtonBox::RejectRole);
    connect(send, &QPushButton::clicked, this, [this] { SendReport(); });
    connect(dont, &QPushButton::clicked, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 18, 18, 14);
    layout->setSpacing(16);
    layout->addLayout(top);
    layout->addWidget(buttons);
    setMinimumWidth(Width);
    dont->setDefault(true);
    dont->setFocus();
}

void frmError::OpenLog() {
    Tell([] { gHost.files->OpenWithDesktop(AppDir() + "/error.log"); });
}

void frmError::SendReport() {
    bool written = false;
    Tell([&] {
        WriteErrorReport();
        written = true;
        HandOverErrorReport();
    });
    accept();
    // Not every system has a mail program that opens a draft, so the user also learns the path.
    if (written)
        gHost.dialogs->Show({.text = "The error report is in the file\r\n" + ErrorReportFile(),
                             .icon = MessageIcon::Information});
}

namespace {

// A window opened during another one's paint event would paint into the middle of it.
bool SomethingPaints() {
    for (const QWidget* widget : QApplication::allWidgets())
        if (widget->testAttribute(Qt::WA_WState_InPaintEvent)) return true;
    return false;
}

void RunDialog() {
    gHost.desktop->LockWindowUpdate(false); // a locked window below the dialog would show rubbish
    QWidget* parent = QApplication::activeModalWidget();
    frmError dialog(parent ? parent : MainWindow());
    dialog.exec();
}

}

void frmError::ShowModal() {
    static bool waiting = false;
    if (waiting) return;
    if (!SomethingPaints()) return RunDialog();
    waiting = true;
    QTimer::singleShot(0, qApp, [] {
        waiting = false;
        // The reporter has returned and cleared its flag, so this call holds it instead.
        if (gInErrorReport) return;
        gInErrorReport = true;
        RunDialog();
        gInErrorReport = false;
    });
}
