// The document windows of a run without a main window.
#include "HeadlessDock.h"

#include "host/Desktop.h"
#include "host/Failure.h"
#include "host/Host.h"
#include "host/Paths.h"

#include <algorithm>

class HeadlessDock::Window : public DocumentWindow {
public:
    Window(HeadlessDock& dock, std::string key, std::string caption)
        : dock_(dock), key_(std::move(key)), caption_(std::move(caption)) {}

    std::string Key() const override { return key_; }
    void SetKey(const std::string& key) override { key_ = key; }
    void SetCaption(const std::string& caption) override { caption_ = caption; }
    Form* HostedForm() const override { return form_; }
    void Attach(Form* form) override { form_ = form; }
    bool Visible() const override { return visible_; }
    void SetVisible(bool visible) override {
        if (!visible && visible_ && form_ != nullptr && dock_.Hiding && !dock_.Hiding(*form_)) return;
        visible_ = visible;
        if (visible)
            Activate();
        else
            dock_.DropDocumentWindow(*this);
    }
    void Activate() override {
        dock_.active_ = this;
        if (form_ != nullptr && dock_.Activated) dock_.Activated(*form_);
    }
    bool InFront() const override { return dock_.active_ == this; }

private:
    HeadlessDock& dock_;
    std::string key_;
    std::string caption_;
    Form* form_ = nullptr;
    bool visible_ = false;
};

HeadlessDock::HeadlessDock() = default;
HeadlessDock::~HeadlessDock() = default;

DockCommand& HeadlessDock::AddCommand(const std::string& name, const std::string&, const std::string&, bool) {
    throw Failure(FailureOutOfRange, "No commands without a window: " + name);
}

DocumentWindow& HeadlessDock::AddDocumentWindow(const std::string& key, const std::string& caption,
                                                Form* form) {
    if (!key.empty() && FindDocumentWindow(key) != nullptr)
        throw Failure(FailureDuplicateKey, "A document window has this key already");
    windows_.push_back(
        std::make_unique<Window>(*this, key.empty() ? gHost.desktop->UniqueId() : key, caption));
    windows_.back()->Attach(form);
    return *windows_.back();
}

DocumentWindow* HeadlessDock::FindDocumentWindow(const std::string& key) {
    for (const auto& window : windows_)
        if (EqualNoCase(window->Key(), key)) return window.get();
    return nullptr;
}

DocumentWindow* HeadlessDock::ActiveDocumentWindow() { return active_; }

std::vector<DocumentWindow*> HeadlessDock::DocumentWindows() {
    std::vector<DocumentWindow*> all;
    for (const auto& window : windows_) all.push_back(window.get());
    return all;
}

void HeadlessDock::DropDocumentWindow(DocumentWindow& window) {
    if (active_ == &window) active_ = nullptr;
    std::erase_if(windows_, [&](const auto& entry) { return entry.get() == &window; });
}
