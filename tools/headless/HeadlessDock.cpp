// The frame of the main window without a window.
#include "HeadlessDock.h"

#include "host/Failure.h"

#include <QWidget>
#include <algorithm>
#include <cstdio>

HeadlessDocumentWindow::~HeadlessDocumentWindow() = default;

void HeadlessDocumentWindow::Attach(Form* form) {
    form_ = form;
    if (form && dock_.showsForms) static_cast<QWidget*>(form->NativeWidget())->show();
}

void HeadlessDocumentWindow::SetVisible(bool visible) {
    if (visible) {
        visible_ = true;
        Activate();
    } else {
        dock_.Hide(*this);
    }
}

void HeadlessDocumentWindow::Activate() { dock_.SetActive(this); }

bool HeadlessDocumentWindow::InFront() const { return dock_.active_ == this; }

void HeadlessPane::Set(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    if (dock_.events) dock_.events->DS_PaneShown(name_, visible);
}

HeadlessCommand& HeadlessDock::Make(const std::string& name, const std::string& category) {
    commands_.push_back(std::make_unique<HeadlessCommand>(name, name, category));
    return *commands_.back();
}

DockCommand* HeadlessDock::FindCommand(const std::string& name) {
    for (const auto& command : commands_)
        if (command->Name() == name) return command.get();
    return nullptr;
}

DockCommand& HeadlessDock::AddCommand(const std::string& name, const std::string& caption,
                                      const std::string& category, bool isPopup) {
    if (FindCommand(name)) throw Failure(FailureDuplicateKey, "The command exists already");
    if (isPopup) entries[name];
    commands_.push_back(std::make_unique<HeadlessCommand>(name, caption, category));
    return *commands_.back();
}

std::vector<DockCommand*> HeadlessDock::Commands() {
    std::vector<DockCommand*> all;
    for (const auto& command : commands_) all.push_back(command.get());
    return all;
}

int HeadlessDock::IndexInBar(const std::string& bar, const std::string& command) {
    const auto& names = entries[bar];
    const auto at = std::find(names.begin(), names.end(), command);
    return at == names.end() ? -1 : static_cast<int>(at - names.begin());
}

void HeadlessDock::InsertIntoBar(const std::string& bar, const std::string& command, int index, bool) {
    auto& names = entries[bar];
    const auto size = static_cast<int>(names.size());
    names.insert(names.begin() + (index < 0 || index > size ? size : index), command);
}

void HeadlessDock::RemoveFromBar(const std::string& bar, const std::string& command) {
    std::erase(entries[bar], command);
}

DockBar* HeadlessDock::FindBar(const std::string& name) {
    const auto at = bars.find(name);
    return at == bars.end() ? nullptr : &at->second;
}

DockPane* HeadlessDock::FindPane(const std::string& name) {
    const auto at = panes.find(name);
    return at == panes.end() ? nullptr : at->second.get();
}

void HeadlessDock::AttachPane(const std::string& name, const std::string&, const std::string&, Form&,
                              bool addNew) {
    if (addNew && !FindPane(name)) panes[name] = std::make_unique<HeadlessPane>(*this, name);
}

DocumentWindow& HeadlessDock::AddDocumentWindow(const std::string& key, const std::string& caption,
                                                Form* form) {
    if (!key.empty() && FindDocumentWindow(key))
        throw Failure(FailureDuplicateKey, "A document window has this key already");
    char unique[64];
    std::snprintf(unique, sizeof unique, "{11111111-0000-0000-0000-%012d}", ++lastKey_);
    windows_.push_back(std::make_unique<HeadlessDocumentWindow>(*this, key.empty() ? unique : key));
    HeadlessDocumentWindow& window = *windows_.back();
    window.caption = caption;
    window.Attach(form);
    if (events) events->DS_DocumentWindowActivate(window, true);
    return window;
}

DocumentWindow* HeadlessDock::FindDocumentWindow(const std::string& key) {
    for (const auto& window : windows_)
        if (window->Key() == key) return window.get();
    return nullptr;
}

std::vector<DocumentWindow*> HeadlessDock::DocumentWindows() {
    std::vector<DocumentWindow*> all;
    for (const auto& window : windows_) all.push_back(window.get());
    return all;
}

void HeadlessDock::SetActive(HeadlessDocumentWindow* window) {
    if (window == active_) return;
    HeadlessDocumentWindow* old = active_;
    active_ = window;
    if (!events) return;
    if (old) events->DS_DocumentWindowDeactivate(*old);
    if (active_ && active_ == window) events->DS_DocumentWindowActivate(*active_, false);
}

void HeadlessDock::Hide(HeadlessDocumentWindow& window) {
    if (!window.visible_) return;
    bool cancel = false;
    if (events) events->DS_DocumentWindowHiding(window, cancel);
    if (cancel) return;
    const bool wasActive = active_ == &window;
    if (wasActive && events) events->DS_DocumentWindowDeactivate(window);
    window.visible_ = false;
    if (wasActive) active_ = nullptr;
    if (events) events->DS_DocumentWindowHidden(window);
    if (!wasActive || active_) return;
    for (const auto& left : windows_)
        if (left->visible_) return SetActive(left.get());
}

void HeadlessDock::DropDocumentWindow(DocumentWindow& window) {
    const auto at = std::find_if(windows_.begin(), windows_.end(),
                                 [&](const auto& owned) { return owned.get() == &window; });
    if (at == windows_.end()) return;
    if (active_ == &window) active_ = nullptr;
    (*at)->visible_ = false;
    (*at)->form_ = nullptr;
    dropped_.push_back(std::move(*at));
    windows_.erase(at);
}

std::string HeadlessDock::WindowsText() {
    std::string text = "windows\t" + (active_ ? active_->Key() : std::string());
    for (const auto& window : windows_) text += "\t" + window->Key() + "\t" + window->caption;
    return text;
}

void HeadlessDock::SetWindowsText(const std::string& text) {
    std::vector<std::string> parts;
    for (std::size_t from = 0; from <= text.size();) {
        const std::size_t end = std::min(text.find('\t', from), text.size());
        parts.push_back(text.substr(from, end - from));
        from = end + 1;
    }
    if (parts.size() % 2 != 0 || parts[0] != "windows")
        throw Failure(FailureFileAccess, "The arrangement of the windows is damaged");
    for (std::size_t at = 2; at < parts.size(); at += 2)
        if (!parts[at].empty() && !FindDocumentWindow(parts[at]))
            AddDocumentWindow(parts[at], parts[at + 1], nullptr);
    if (DocumentWindow* active = FindDocumentWindow(parts[1])) active->Activate();
}

void HeadlessDock::NextTab(int step) {
    const auto size = static_cast<int>(windows_.size());
    for (int at = 0; at < size; ++at)
        if (windows_[static_cast<std::size_t>(at)].get() == active_)
            return windows_[static_cast<std::size_t>((at + step + size) % size)]->Activate();
}

void HeadlessDock::LoadLayout(const std::string& path) {
    if (std::find(missingLayouts.begin(), missingLayouts.end(), path) != missingLayouts.end())
        throw Failure(FailureFileNotFound, path + ": No such file or directory");
    loadedLayouts.push_back(path);
}

void HeadlessDock::CloseWindow() {
    bool cancel = false;
    if (events) events->DS_QueryUnload(cancel);
    closed = !cancel;
}
