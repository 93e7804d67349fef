// The frame of the main window without a window: commands, bars, panes and document windows as records,
// with the events in the order of the real one. For tools, tests and benchmarks.
#pragma once

#include "host/DockStudio.h"

#include <map>
#include <memory>

class HeadlessDock;

class HeadlessCommand : public DockCommand {
public:
    HeadlessCommand(std::string name, std::string caption, std::string category)
        : name_(std::move(name)), category_(std::move(category)), caption_(std::move(caption)) {}
    const std::string& Name() const override { return name_; }
    std::string Category() const override { return category_; }
    void SetCategory(const std::string& category) override { category_ = category; }
    std::string Caption() const override { return caption_; }
    void SetCaption(const std::string& caption) override { caption_ = caption; }
    bool Enabled() const override { return enabled_; }
    void SetEnabled(bool enabled) override { enabled_ = enabled; }
    bool Checked() const override { return checked_; }
    void SetChecked(bool checked) override { checked_ = checked; }
    bool Visible() const override { return visible_; }
    void SetVisible(bool visible) override { visible_ = visible; }
    void SetAutoRepeat(bool repeat) override { autoRepeat = repeat; }
    void SetItems(const std::vector<std::string>& items) override { items_ = items; }
    std::vector<std::string> Items() const override { return items_; }
    std::string Text() const override { return text_; }
    void SetText(const std::string& text) override { text_ = text; }

    bool autoRepeat = false;

private:
    std::string name_, category_, caption_, text_;
    bool enabled_ = true, checked_ = false, visible_ = true;
    std::vector<std::string> items_;
};

class HeadlessDocumentWindow : public DocumentWindow {
public:
    HeadlessDocumentWindow(HeadlessDock& dock, std::string key) : dock_(dock), key_(std::move(key)) {}
    ~HeadlessDocumentWindow() override;
    std::string Key() const override { return key_; }
    void SetKey(const std::string& key) override { key_ = key; }
    void SetCaption(const std::string& text) override { caption = text; }
    Form* HostedForm() const override { return form_; }
    void Attach(Form* form) override;
    bool Visible() const override { return visible_; }
    void SetVisible(bool visible) override;
    void Activate() override;
    bool InFront() const override;

    std::string caption;

private:
    friend class HeadlessDock;
    HeadlessDock& dock_;
    std::string key_;
    Form* form_ = nullptr;
    bool visible_ = true;
};

class HeadlessPane : public DockPane {
public:
    HeadlessPane(HeadlessDock& dock, std::string name) : dock_(dock), name_(std::move(name)) {}
    bool Visible() const override { return visible_; }
    bool AutoHidden() const override { return autoHidden; }
    void SetAutoHidden(bool hidden) override { autoHidden = hidden; }
    void Show() override { Set(true); }
    void Hide() override { Set(false); }
    bool HasFocus() const override { return false; }
    bool Floating() const override { return false; }
    void SetFloating(bool) override {}
    void Enlarge(int) override {}
    bool autoHidden = false;

private:
    void Set(bool visible);
    HeadlessDock& dock_;
    std::string name_;
    bool visible_ = true;
};

class HeadlessBar : public DockBar {
public:
    bool Visible() const override { return visible; }
    void SetVisible(bool shown) override { visible = shown; }
    void FocusFirstControl() override { ++focused; }
    bool visible = true;
    int focused = 0;
};

class HeadlessDock : public DockStudio {
public:
    // Adds what a layout file would bring.
    HeadlessCommand& Make(const std::string& name, const std::string& category);

    void SetEvents(DockStudioEvents* to) override { events = to; }
    DockCommand* FindCommand(const std::string& name) override;
    DockCommand& AddCommand(const std::string& name, const std::string& caption, const std::string& category,
                            bool isPopup) override;
    std::vector<DockCommand*> Commands() override;
    int IndexInBar(const std::string& bar, const std::string& command) override;
    void InsertIntoBar(const std::string& bar, const std::string& command, int index,
                       bool beginGroup) override;
    DockBar* FindBar(const std::string& name) override;
    DockPane* FindPane(const std::string& name) override;
    void AttachPane(const std::string& name, const std::string& caption, const std::string& icon, Form& form,
                    bool addNew) override;
    void ShowPopup(const std::string& name) override { shownPopups.push_back(name); }
    void FillPopup(const std::string& name, const std::vector<std::string>& commands) override {
        entries[name] = commands;
    }
    DocumentWindow& AddDocumentWindow(const std::string& key, const std::string& caption,
                                      Form* form) override;
    DocumentWindow* FindDocumentWindow(const std::string& key) override;
    DocumentWindow* ActiveDocumentWindow() override { return active_; }
    std::vector<DocumentWindow*> DocumentWindows() override;
    void DropDocumentWindow(DocumentWindow& window) override;
    void NextTab(int step) override;
    void NewTabGroup(bool vertical) override { groups.push_back(vertical); }
    void MoveToTabGroup(int) override {}
    // The windows alone: there are no groups here.
    std::string WindowsText() override;
    void SetWindowsText(const std::string& text) override;
    void NextPane(int) override {}
    DockPane* CurrentPane() override { return nullptr; }
    void OpenMenuBar() override {}
    void SuspendRepaint(bool suspend) override { suspended += suspend ? 1 : -1; }
    void Customize() override { ++customized; }
    void RemoveFromBar(const std::string& bar, const std::string& command) override;
    void LoadFactoryText(const std::string&) override { ++factoryTexts; }
    void LoadLayout(const std::string& path) override;
    void SaveLayout(const std::string& path) override { savedLayouts.push_back(path); }
    WindowPlace Place() override { return place; }
    void SetPlace(const WindowPlace& to) override { place = to; }
    void ShowWindow() override { shown = true; }
    void BringToFront() override { ++broughtToFront; }
    void CloseWindow() override;

    DockStudioEvents* events = nullptr;
    bool showsForms = false; // whether attached forms are shown, so that they paint and ask for styles
    std::map<std::string, std::vector<std::string>> entries; // of bars and pop-ups
    std::map<std::string, HeadlessBar> bars;
    std::map<std::string, std::unique_ptr<HeadlessPane>> panes;
    std::vector<std::string> shownPopups, loadedLayouts, savedLayouts;
    std::vector<std::string> missingLayouts; // loading one of these fails
    std::vector<bool> groups;
    WindowPlace place;
    bool shown = false, closed = false;
    int suspended = 0, broughtToFront = 0, customized = 0, factoryTexts = 0;

private:
    friend class HeadlessDocumentWindow;
    void SetActive(HeadlessDocumentWindow* window);
    void Hide(HeadlessDocumentWindow& window);

    std::vector<std::unique_ptr<HeadlessCommand>> commands_;
    std::vector<std::unique_ptr<HeadlessDocumentWindow>> windows_;
    // Dropped windows live on until the end, because the one who drops may still look at them.
    std::vector<std::unique_ptr<HeadlessDocumentWindow>> dropped_;
    HeadlessDocumentWindow* active_ = nullptr;
    int lastKey_ = 0;
};
