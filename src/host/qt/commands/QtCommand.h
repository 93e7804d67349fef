// One named command: its record, its action for menus and bars, and the text and entries that it shows.
#pragma once

#include "host/DockStudio.h"
#include "host/qt/layout/Layout.h"

#include <QAction>
#include <QKeyCombination>
#include <QMenu>
#include <QPointer>
#include <memory>

struct MarkedText {
    std::string left; // the whole text if no part is marked
    std::string hot;
    std::string right;
    int colour = 0;
};

class QtCommand : public QObject, public DockCommand {
    Q_OBJECT

public:
    explicit QtCommand(LayoutCommand record);
    ~QtCommand() override;

    const std::string& Name() const override { return record_.name; }
    std::string Category() const override { return record_.category; }
    void SetCategory(const std::string& category) override { record_.category = category; }
    std::string Caption() const override { return record_.caption; }
    void SetCaption(const std::string& caption) override;
    bool Enabled() const override { return action_->isEnabled(); }
    void SetEnabled(bool enabled) override;
    bool Checked() const override { return record_.checked.value_or(false); }
    void SetChecked(bool checked) override;
    bool Visible() const override { return record_.visible; }
    void SetVisible(bool visible) override;
    void SetAutoRepeat(bool repeat) override { autoRepeat_ = repeat; }
    bool FiredByKey() const override { return byKey_; }
    void SetFiredByKey(bool byKey) { byKey_ = byKey; }
    void SetItems(const std::vector<std::string>& items) override;
    std::vector<std::string> Items() const override { return items_; }
    std::string Text() const override { return text_; }
    void SetText(const std::string& text) override;
    void SetMarkedText(const std::string& left, const std::string& hot, const std::string& right,
                       int colour) override;

    // Takes over what a newly loaded layout says; state that is not in layouts stays.
    void Replace(LayoutCommand record);
    const LayoutCommand& Record() const { return record_; }
    LayoutEntries& Entries() { return record_.entries; }
    QAction* Action() const { return action_; }
    // The menu of a pop-up; null for other kinds.
    QMenu* Menu() const { return menu_.get(); }
    const MarkedText& Marked() const { return marked_; }
    bool AutoRepeat() const { return autoRepeat_; }
    const std::vector<QKeyCombination>& Shortcuts() const { return shortcuts_; }
    void SetShortcuts(const std::vector<QKeyCombination>& keys);
    // The caption without mnemonic marks, and the text of a tool tip with its shortcut.
    QString PlainCaption() const;

signals:
    void TextShown(); // the text changed from within the program
    void ItemsChanged();
    void StateChanged(); // caption, enabled or visible

private:
    void Show();

    LayoutCommand record_;
    QAction* action_;
    std::unique_ptr<QMenu> menu_;
    std::vector<QKeyCombination> shortcuts_;
    std::vector<std::string> items_;
    std::string text_;
    MarkedText marked_;
    bool autoRepeat_ = false;
    bool byKey_ = false;
};
