// The small window that shows the progress of a compilation.
#include "workbench/output/frmCompiling.h"

#include "host/ErrorLog.h"
#include "host/Paths.h"
#include "toolchain/CompilerOutput.h"
#include "workbench/parts/MainWindow.h"
#include "workbench/parts/Shown.h"

#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int Width = 340;
}

frmCompiling& frmCompiling::Instance() {
    // The main window owns it and may delete it.
    static QPointer<frmCompiling> window;
    if (!window) window = new frmCompiling(MainWindow());
    return *window;
}

frmCompiling::frmCompiling(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint), label_(new QLabel(this)),
      bar_(new QProgressBar(this)) {
    setWindowTitle(Shown(ProgramName));
    setModal(false);
    // The editor keeps the keyboard; this window only shows progress.
    setAttribute(Qt::WA_ShowWithoutActivating);
    bar_->setRange(0, 100);
    bar_->setTextVisible(false);
    bar_->setAccessibleName(tr("Progress"));
    auto* stop = new QPushButton(tr("&Stop"), this);
    stop->setAutoDefault(false);
    connect(stop, &QPushButton::clicked, this, [this] {
        Guarded("cmdStop_Click", "frmCompiling", [] { CompilerOutput::StopShown(); });
        close();
    });
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(10);
    layout->setContentsMargins(16, 16, 16, 12);
    layout->addWidget(label_);
    layout->addWidget(bar_);
    layout->addWidget(stop, 0, Qt::AlignRight);
    setFixedWidth(Width);
}

void frmCompiling::Open(const QString& label) {
    label_->setText(label);
    bar_->setValue(0);
    bar_->setAccessibleDescription(label);
    show();
}

void frmCompiling::SetValue(int value) { bar_->setValue(value); }
