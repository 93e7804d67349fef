// One document window: a page in a group of tabs that hosts a form.
#pragma once

#include "host/DockStudio.h"

#include <QPointer>
#include <QWidget>

class QtDocumentArea;
class TabGroup;

class QtDocumentWindow : public QObject, public DocumentWindow {
public:
    QtDocumentWindow(QtDocumentArea& area, std::string key, std::string caption);
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
    // The group of tabs that it stands in; null while it is hidden.
    TabGroup* Group() const;
    // Puts caption and tool tip on its tab.
    void ShowCaption();
    void FocusForm();

private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    QtDocumentArea& area_;
    std::string key_;
    std::string caption_;
    Form* form_ = nullptr;
    QPointer<QWidget> widget_;
    QPointer<QWidget> page_;
};
