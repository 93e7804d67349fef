// Messages and questions in the desktop's own dialogs.
#include "host/qt/system/QtDialogs.h"

#include "host/Paths.h"
#include "host/qt/system/QtText.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QRegularExpression>

namespace {

// Returns the window for a question and resumes its painting, because a question over an empty window would
// frighten people.
QWidget* Parent() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (!window->updatesEnabled()) window->setUpdatesEnabled(true);
    if (QWidget* active = QApplication::activeModalWidget()) return active;
    return QApplication::activeWindow();
}

QString Title(const std::string& title) { return Shown(title.empty() ? ProgramName : title); }

QMessageBox::Icon Icon(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Information: return QMessageBox::Information;
    case MessageIcon::Question: return QMessageBox::Question;
    case MessageIcon::Exclamation: return QMessageBox::Warning;
    case MessageIcon::Critical: return QMessageBox::Critical;
    case MessageIcon::None: break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons Buttons(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::OkCancel: return QMessageBox::Ok | QMessageBox::Cancel;
    case MessageButtons::YesNo: return QMessageBox::Yes | QMessageBox::No;
    case MessageButtons::YesNoCancel: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MessageButtons::Ok: break;
    }
    return QMessageBox::Ok;
}

QMessageBox::StandardButton DefaultButton(const Message& message) {
    const bool asksYes =
        message.buttons == MessageButtons::YesNo || message.buttons == MessageButtons::YesNoCancel;
    switch (message.byDefault) {
    case MessageAnswer::Yes: return QMessageBox::Yes;
    case MessageAnswer::No: return QMessageBox::No;
    case MessageAnswer::Cancel: return QMessageBox::Cancel;
    case MessageAnswer::Ok: break;
    }
    return asksYes ? QMessageBox::Yes : QMessageBox::Ok;
}

// Returns the folder in which a file dialog starts (given, or that of the last dialog), with the name for its
// box.
QString StartPath(const FileQuestion& question, const QString& lastFolder) {
    const QString name = PathText(question.fileName);
    if (QFileInfo(name).isAbsolute()) return name;
    const QString folder = question.folder.empty() ? lastFolder : PathText(question.folder);
    return folder.isEmpty() ? name : folder + '/' + name;
}

// A box with Yes and No alone would take Escape and its X for a No, which throws work away.
class MessageBox : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (IsYesNo() && event->matches(QKeySequence::Cancel)) return done(QMessageBox::Cancel);
        QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override {
        if (!IsYesNo()) return QMessageBox::closeEvent(event);
        event->accept();
        done(QMessageBox::Cancel);
    }

private:
    bool IsYesNo() const { return standardButtons() == (QMessageBox::Yes | QMessageBox::No); }
};

// What a name gets that is typed without an ending: that of the first pattern.
QString Suffix(const std::string& filter) {
    const QString pattern = Shown(filter).section('|', 1, 1).section(';', 0, 0).trimmed();
    const QString suffix = pattern.startsWith("*.") ? pattern.mid(2) : QString();
    return suffix.contains('*') ? QString() : suffix;
}

// A box is as wide as its text, and the desktop cuts a title that is longer.
void WidenToTitle(QMessageBox& box) {
    constexpr int RoomForButtons = 120;
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (!grid) return;
    const int width = box.fontMetrics().horizontalAdvance(box.windowTitle()) + RoomForButtons;
    grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

}

QString ToolkitFilter(const std::string& filter) {
    const QStringList parts = Shown(filter).split('|');
    QStringList converted;
    for (qsizetype at = 0; at + 1 < parts.size(); at += 2) {
        QStringList patterns = parts[at + 1].split(';', Qt::SkipEmptyParts);
        for (QString& pattern : patterns) pattern = pattern.trimmed() == "*.*" ? "*" : pattern.trimmed();
        QString label = parts[at];
        label.remove(QRegularExpression("\\s*\\([^()]*\\)\\s*$"));
        converted << label + " (" + patterns.join(' ') + ')';
    }
    return converted.join(";;");
}

MessageAnswer QtDialogs::Show(const Message& message) {
    // The texts carry line ends of either kind; a box takes LF alone.
    QString text = Shown(message.text);
    text.replace("\r\n", "\n").replace('\r', '\n');
    MessageBox box(Icon(message.icon), Title(message.title), text, Buttons(message.buttons), Parent());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(DefaultButton(message));
    WidenToTitle(box);
    switch (box.exec()) {
    case QMessageBox::Yes: return MessageAnswer::Yes;
    case QMessageBox::No: return MessageAnswer::No;
    case QMessageBox::Ok: return MessageAnswer::Ok;
    default: return MessageAnswer::Cancel;
    }
}

std::vector<std::string> QtDialogs::OpenFiles(const FileQuestion& question) {
    const QString start = StartPath(question, lastFolder_);
    const QString filter = ToolkitFilter(question.filter);
    QStringList files;
    if (question.multiple) {
        files = QFileDialog::getOpenFileNames(Parent(), Title(question.title), start, filter);
    } else if (const QString file =
                   QFileDialog::getOpenFileName(Parent(), Title(question.title), start, filter);
               !file.isEmpty()) {
        files << file;
    }
    std::vector<std::string> paths;
    for (const QString& file : files) paths.push_back(PathBytes(file));
    if (!files.isEmpty()) lastFolder_ = QFileInfo(files.front()).path();
    return paths;
}

std::string QtDialogs::SaveFile(const FileQuestion& question) {
    QFileDialog dialog(Parent(), Title(question.title), StartPath(question, lastFolder_),
                       ToolkitFilter(question.filter));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(Suffix(question.filter));
    if (dialog.exec() != QDialog::Accepted) return {};
    const QString file = dialog.selectedFiles().value(0);
    if (!file.isEmpty()) lastFolder_ = QFileInfo(file).path();
    return PathBytes(file);
}

std::string QtDialogs::Folder(const std::string& title, const std::string& start) {
    return PathBytes(QFileDialog::getExistingDirectory(Parent(), Title(title), PathText(start)));
}

std::optional<std::string> QtDialogs::Input(const std::string& prompt, const std::string& title,
                                            const std::string& preset) {
    bool accepted = false;
    const QString text = QInputDialog::getText(Parent(), Title(title), Shown(prompt), QLineEdit::Normal,
                                               Shown(preset), &accepted);
    if (!accepted) return {};
    return Typed(text);
}
