// The frame of the main window without a window.
#include "support/FakeDock.h"

#include "host/Failure.h"
#include "host/Paths.h"

#include <QWidget>
#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>

FakeDocumentWindow::~FakeDocumentWindow() = default;

void FakeDocumentWindow::Attach(Form* form) {
    form_ = form;
    // Shown, so that its edit control paints and asks for styles.
    if (form) static_cast<QWidget*>(form->NativeWidget())->show();
}

void FakeDocumentWindow::SetVisible(bool visible) {
    if (visible) {
        visible_ = true;
        Activate();
    } else {
        dock_.Hide(*this);
    }
}

void FakeDocumentWindow::Activate() { dock_.SetActive(this); }

bool FakeDocumentWindow::InFront() const { return dock_.active_ == this; }

void FakePane::Set(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    if (dock_.events) dock_.events->DS_PaneShown(name_, visible);
}

FakeCommand& FakeDock::Make(const std::string& name, const std::string& category) {
    commands_.push_back(std::make_unique<FakeCommand>(name, name, category));
    return *commands_.back();
}

DockCommand* FakeDock::FindCommand(const std::string& name) {
    for (const auto& command : commands_)
        if (command->Name() == name) return command.get();
    return nullptr;
}

DockCommand& FakeDock::AddCommand(const std::string& name, const std::string& caption,
                                  const std::string& category, bool isPopup) {
    if (FindCommand(name)) throw Failure(FailureDuplicateKey, "The command exists already");
    if (isPopup) entries[name];
    commands_.push_back(std::make_unique<FakeCommand>(name, caption, category));
    return *commands_.back();
}

std::vector<DockCommand*> FakeDock::Commands() {
    std::vector<DockCommand*> all;
    for (const auto& command : commands_) all.push_back(command.get());
    return all;
}

int FakeDock::IndexInBar(const std::string& bar, const std::string& command) {
    const auto& names = entries[bar];
    const auto at = std::find(names.begin(), names.end(), command);
    return at == names.end() ? -1 : static_cast<int>(at - names.begin());
}

void FakeDock::InsertIntoBar(const std::string& bar, const std::string& command, int index, bool) {
    auto& names = entries[bar];
    const auto size = static_cast<int>(names.size());
    names.insert(names.begin() + (index < 0 || index > size ? size : index), command);
}

void FakeDock::RemoveFromBar(const std::string& bar, const std::string& command) {
    std::erase(entries[bar], command);
}

DockBar* FakeDock::FindBar(const std::string& name) {
    const auto at = bars.find(name);
    return at == bars.end() ? nullptr : &at->second;
}

DockPane* FakeDock::FindPane(const std::string& name) {
    const auto at = panes.find(name);
    return at == panes.end() ? nullptr : at->second.get();
}

void FakeDock::AttachPane(const std::string& name, const std::string&, const std::string&, Form&,
                          bool addNew) {
    if (addNew && !FindPane(name)) panes[name] = std::make_unique<FakePane>(*this, name);
}

DocumentWindow& FakeDock::AddDocumentWindow(const std::string& key, const std::string& caption, Form* form) {
    if (!key.empty() && FindDocumentWindow(key))
        throw Failure(FailureDuplicateKey, "A document window has this key already");
    char unique[64];
    std::snprintf(unique, sizeof unique, "{11111111-0000-0000-0000-%012d}", ++lastKey_);
    windows_.push_back(std::make_unique<FakeDocumentWindow>(*this, key.empty() ? unique : key));
    FakeDocumentWindow& window = *windows_.back();
    window.caption = caption;
    window.Attach(form);
    if (events) events->DS_DocumentWindowActivate(window, true);
    return window;
}

DocumentWindow* FakeDock::FindDocumentWindow(const std::string& key) {
    for (const auto& window : windows_)
        if (EqualNoCase(window->Key(), key)) return window.get();
    return nullptr;
}

std::vector<DocumentWindow*> FakeDock::DocumentWindows() {
    std::vector<DocumentWindow*> all;
    for (const auto& window : windows_) all.push_back(window.get());
    return all;
}

void FakeDock::SetActive(FakeDocumentWindow* window) {
    if (window == active_) return;
    FakeDocumentWindow* old = active_;
    active_ = window;
    if (!events) return;
    if (old) events->DS_DocumentWindowDeactivate(*old);
    if (active_ && active_ == window) events->DS_DocumentWindowActivate(*active_, false);
}

void FakeDock::Hide(FakeDocumentWindow& window) {
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

void FakeDock::DropDocumentWindow(DocumentWindow& window) {
    const auto at = std::find_if(windows_.begin(), windows_.end(),
                                 [&](const auto& owned) { return owned.get() == &window; });
    if (at == windows_.end()) return;
    if (active_ == &window) active_ = nullptr;
    (*at)->visible_ = false;
    (*at)->form_ = nullptr;
    dropped_.push_back(std::move(*at));
    windows_.erase(at);
}

void FakeDock::NextTab(int step) {
    const auto size = static_cast<int>(windows_.size());
    for (int at = 0; at < size; ++at)
        if (windows_[static_cast<std::size_t>(at)].get() == active_)
            return windows_[static_cast<std::size_t>((at + step + size) % size)]->Activate();
}

void FakeDock::LoadLayout(const std::string& path) {
    if (std::find(missingLayouts.begin(), missingLayouts.end(), path) != missingLayouts.end())
        throw Failure(FailureFileNotFound, path + ": No such file or directory");
    loadedLayouts.push_back(path);
}

void FakeDock::CloseWindow() {
    bool cancel = false;
    if (events) events->DS_QueryUnload(cancel);
    closed = !cancel;
}
