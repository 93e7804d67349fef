// The splash window. It appears late, because a window that is visible for a few frames only disturbs.
#include "workbench/dialogs/frmSplash.h"

#include "host/Outside.h"
#include "host/Paths.h"
#include "workbench/parts/Shown.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr int NoticedMilliseconds = 250;
constexpr QSize Size(420, 200);

std::unique_ptr<frmSplash> splash;
QElapsedTimer sinceStart;

}

frmSplash::frmSplash() : status_(new QLabel(this)) {
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    setFrameShape(QFrame::StyledPanel);
    setCursor(Qt::WaitCursor);
    auto* name = new QLabel(::Shown(ProgramName), this);
    QFont font = name->font();
    font.setPointSizeF(font.pointSizeF() * 3);
    font.setWeight(QFont::Light);
    name->setFont(font);
    auto* build = new QLabel("Build " + ::Shown(ProgramVersion), this);
    build->setObjectName("lblBuild");
    status_->setObjectName("lblStatus");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 28, 28, 20);
    layout->addWidget(name);
    layout->addWidget(build);
    layout->addStretch();
    layout->addWidget(status_);
    resize(Size);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

void frmSplash::SetStatus(const std::string& text) {
    if (!sinceStart.isValid()) sinceStart.start();
    if (!splash) {
        if (sinceStart.elapsed() < NoticedMilliseconds || QGuiApplication::platformName() == "offscreen")
            return;
        splash.reset(new frmSplash);
        splash->show();
    }
    splash->status_->setText(::Shown(text));
    splash->status_->repaint();
    const NestedLoop loop;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmSplash::Unload() { splash.reset(); }
