// One document window: a page in a group of tabs that hosts a form.
#pragma once

#include "host/DockStudio.h"

#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <optional>

class QtDocumentWindow;
class TabGroup;

// The area of a document window, as the window sees it.
class DocumentWindowOwner {
public:
    virtual ~DocumentWindowOwner() = default;
    virtual void Activate(QtDocumentWindow& window) = 0;
    // Asks first; the window may be gone when this returns.
    virtual void Hide(QtDocumentWindow& window) = 0;
    virtual TabGroup* GroupOf(QWidget* page) const = 0;
    virtual void CaptionsChanged() = 0;

    DockStudioEvents* events = nullptr; // written by the frame alone
    // The place (on the screen) of the requested context menu.
    std::optional<QPoint> menuPlace;
};

class QtDocumentWindow : public QObject, public DocumentWindow {
public:
    QtDocumentWindow(DocumentWindowOwner& area, std::string key, std::string caption);
    ~QtDocumentWindow() override;

    std::string Key() const override { return key_; }
    void SetKey(const std::string& key) override;
    void SetCaption(const std::string& caption) override;
    Form* HostedForm() const override { return form_; }
    void Attach(Form* form) override;
    bool Visible() const override { return Group() != nullptr; }
    void SetVisible(bool visible) override;
    void Activate() override;
    bool InFront() const override;

    const std::string& Caption() const { return caption_; }
    QWidget* Page() const { return page_; }
    // Returns its group of tabs; null while it is hidden.
    TabGroup* Group() const;
    // Puts caption and tool tip on its tab.
    void ShowCaption();
    void FocusForm();

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void NameWidget();
    QPoint BelowCaret() const;

    DocumentWindowOwner& area_;
    std::string key_;
    std::string caption_;
    Form* form_ = nullptr;
    QPointer<QWidget> widget_;
    QPointer<QWidget> page_;
};
