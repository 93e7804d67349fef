// Operations as JSON Lines, and the keys and commands for them.
#include "Edits.h"

#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "host/Host.h"
#include "host/qt/system/QtText.h"
#include "sci/Mod_Sci.h"
#include "workbench/frame/Mod_MenuCommands.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <algorithm>
#include <chrono>

namespace {

using Kind = EditOperation::Kind;

constexpr QSize WindowSize(1000, 800);

struct Named {
    const char* name;
    Kind kind;
};
constexpr Named Operations[] = {
    {"caret", Kind::Caret},     {"select", Kind::Select},       {"type", Kind::Type},
    {"newline", Kind::NewLine}, {"backspace", Kind::Backspace}, {"delete", Kind::Delete},
    {"paste", Kind::Paste},     {"undo", Kind::Undo},           {"redo", Kind::Redo},
    {"command", Kind::Command}, {"settle", Kind::Settle},
};

// A command of the main window, where there is no main window.
class LooseCommand : public DockCommand {
public:
    explicit LooseCommand(std::string name) : name_(std::move(name)) {}
    const std::string& Name() const override { return name_; }
    std::string Category() const override { return {}; }
    void SetCategory(const std::string&) override {}
    std::string Caption() const override { return {}; }
    void SetCaption(const std::string&) override {}
    bool Enabled() const override { return true; }
    void SetEnabled(bool) override {}
    bool Checked() const override { return false; }
    void SetChecked(bool) override {}
    bool Visible() const override { return true; }
    void SetVisible(bool) override {}
    void SetAutoRepeat(bool) override {}
    void SetItems(const std::vector<std::string>&) override {}
    std::vector<std::string> Items() const override { return {}; }
    std::string Text() const override { return {}; }
    void SetText(const std::string&) override {}

private:
    std::string name_;
};

bool IsCommand(const std::string& name) {
    const auto& routes = Mod_MenuCommands::Routes();
    return std::any_of(routes.begin(), routes.end(), [&](const auto& route) { return route.name == name; });
}

void Command(const std::string& name) {
    LooseCommand command(name);
    Mod_MenuCommands::Route(command, -1);
}

// A text of the file: each code point is a byte.
bool Bytes(const QJsonValue& value, std::string& bytes) {
    if (!value.isString()) return false;
    bytes.clear();
    for (const QChar c : value.toString()) {
        if (c.unicode() > 0xFF) return false;
        bytes += static_cast<char>(c.unicode());
    }
    return true;
}

bool Position(const QJsonValue& value, long& position) {
    if (!value.isDouble() || value.toDouble() < 0) return false;
    position = static_cast<long>(value.toDouble());
    return true;
}

bool Read(const QJsonObject& object, EditOperation& operation) {
    const std::string op = object["op"].toString().toStdString();
    const auto* named = std::find_if(std::begin(Operations), std::end(Operations),
                                     [&](const Named& entry) { return op == entry.name; });
    if (named == std::end(Operations)) return false;
    operation.kind = named->kind;
    switch (operation.kind) {
    case Kind::Caret: return Position(object["pos"], operation.from);
    case Kind::Select:
        return Position(object["from"], operation.from) && Position(object["to"], operation.to);
    case Kind::Type:
    case Kind::Paste: return Bytes(object["text"], operation.text);
    case Kind::Command: return Bytes(object["name"], operation.text) && IsCommand(operation.text);
    default: return true;
    }
}

QAbstractScrollArea* View() {
    return static_cast<QAbstractScrollArea*>(static_cast<QWidget*>(ActiveForm()->NativeWidget()));
}

void Pending() {
    QApplication::processEvents();
    if (ActiveForm() == nullptr) return;
    View()->viewport()->repaint();
    QApplication::processEvents();
}

void Key(int key, const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(View(), &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(View(), &release);
}

void Type(const std::string& bytes) {
    for (const QChar c : Shown(bytes)) {
        if (c == QLatin1Char('\r')) continue; // a line end is one key
        if (c == QLatin1Char('\n'))
            Command("New Line");
        else if (c == QLatin1Char('\t'))
            Key(Qt::Key_Tab, QString(c));
        else
            Key(0, QString(c));
        Pending();
    }
}

void Paste(const std::string& bytes) {
    if (bytes.find('\0') == std::string::npos) {
        Mod_Sci::ReplaceSel(bytes.c_str());
        return;
    }
    Mod_Sci::TargetFromSelection();
    Mod_Sci::ReplaceTarget(bytes);
    Mod_Sci::GotoPos(Mod_Sci::GetTargetEnd());
}

// The caret position after a click: never inside a CR LF or a character of several bytes.
long Snapped(long position) {
    position = std::min(position, static_cast<long>(Mod_Sci::GetLength()));
    if (Mod_Sci::GetCharAt(position - 1) == '\r' && Mod_Sci::GetCharAt(position) == '\n') --position;
    if (Mod_Sci::GetCodePage() == SC_CP_UTF8)
        while (position > 0 && (Mod_Sci::GetCharAt(position) & 0xC0) == 0x80) --position;
    return position;
}

void Play(const EditOperation& operation) {
    const long from = Snapped(operation.from);
    switch (operation.kind) {
    case Kind::Caret: Mod_Sci::GotoPos(from); break;
    case Kind::Select: Mod_Sci::SetSel(from, Snapped(operation.to)); break;
    case Kind::Type: Type(operation.text); break;
    case Kind::NewLine: Command("New Line"); break;
    case Kind::Backspace: Key(Qt::Key_Backspace); break;
    case Kind::Delete: Key(Qt::Key_Delete); break;
    case Kind::Paste: Paste(operation.text); break;
    case Kind::Undo: Command("Undo"); break;
    case Kind::Redo: Command("Redo"); break;
    case Kind::Command: Command(operation.text); break;
    case Kind::Settle: ActiveForm()->m_oSubclass->DeactivateCheck(); break;
    }
    Pending();
}

} // namespace

bool ReadEdits(const std::string& path, std::vector<EditOperation>& operations, std::string& error) {
    QFile file(PathText(path));
    if (!file.open(QIODevice::ReadOnly)) {
        error = "cannot be read";
        return false;
    }
    for (int line = 1; !file.atEnd(); ++line) {
        const QByteArray text = file.readLine().trimmed();
        if (text.isEmpty()) continue;
        const QJsonDocument json = QJsonDocument::fromJson(text);
        EditOperation operation;
        if (!json.isObject() || !Read(json.object(), operation)) {
            error = "line " + std::to_string(line) + " is no operation: " + text.toStdString();
            return false;
        }
        operations.push_back(operation);
    }
    return true;
}

std::vector<long long> PlayEdits(const std::vector<EditOperation>& operations) {
    const auto first = gCurrentProject->Sources.Item(0);
    gHost.dock->FindDocumentWindow(first->m_strDocumentWindowID)->Activate();
    View()->resize(WindowSize);
    View()->show();
    Pending();
    std::vector<long long> times;
    for (const EditOperation& operation : operations) {
        if (ActiveForm() == nullptr) return times; // the last document was closed
        const auto since = std::chrono::steady_clock::now();
        Play(operation);
        times.push_back(
            std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - since)
                .count());
    }
    if (ActiveForm() != nullptr) Play({});
    return times;
}
