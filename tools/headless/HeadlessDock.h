// Document windows without a window: keys, captions and which one is active. Commands, bars and panes are not
// there. For tools, tests and benchmarks.
#pragma once

#include "host/DockStudio.h"

#include <functional>
#include <memory>

class HeadlessDock : public DockStudio {
public:
    HeadlessDock();
    ~HeadlessDock() override;

    // Called with a window's form when it becomes the active one.
    std::function<void(Form&)> Activated;
    // Called when a window hides; the form is detached afterwards. Answers false to keep it.
    std::function<bool(Form&)> Hiding;

    void SetEvents(DockStudioEvents*) override {}
    DockCommand* FindCommand(const std::string&) override { return nullptr; }
    DockCommand& AddCommand(const std::string&, const std::string&, const std::string&, bool) override;
    std::vector<DockCommand*> Commands() override { return {}; }
    int IndexInBar(const std::string&, const std::string&) override { return -1; }
    void InsertIntoBar(const std::string&, const std::string&, int, bool) override {}
    DockBar* FindBar(const std::string&) override { return nullptr; }
    DockPane* FindPane(const std::string&) override { return nullptr; }
    void AttachPane(const std::string&, const std::string&, const std::string&, Form&, bool) override {}
    void ShowPopup(const std::string&) override {}
    void FillPopup(const std::string&, const std::vector<std::string>&) override {}

    DocumentWindow& AddDocumentWindow(const std::string& key, const std::string& caption,
                                      Form* form) override;
    DocumentWindow* FindDocumentWindow(const std::string& key) override;
    DocumentWindow* ActiveDocumentWindow() override;
    std::vector<DocumentWindow*> DocumentWindows() override;
    void DropDocumentWindow(DocumentWindow& window) override;
    void NextTab(int) override {}
    void NewTabGroup(bool) override {}
    void MoveToTabGroup(int) override {}
    std::string WindowsText() override { return {}; }
    void SetWindowsText(const std::string&) override {}

    void SuspendRepaint(bool) override {}
    void Customize() override {}
    void RemoveFromBar(const std::string&, const std::string&) override {}
    void LoadFactoryText(const std::string&) override {}
    void LoadLayout(const std::string&) override {}
    void SaveLayout(const std::string&) override {}
    WindowPlace Place() override { return place_; }
    void SetPlace(const WindowPlace& place) override { place_ = place; }
    void ShowWindow() override {}
    void BringToFront() override { ++broughtToFront; }
    void CloseWindow() override {}

    int broughtToFront = 0;

private:
    class Window;

    std::vector<std::unique_ptr<Window>> windows_;
    Window* active_ = nullptr;
    WindowPlace place_;
};
