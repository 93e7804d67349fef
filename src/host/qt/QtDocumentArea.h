// The document area: groups of tabs side by side, and which document window is the active one.
#pragma once

#include "host/qt/QtDocumentWindow.h"

#include <QSplitter>
#include <QStackedWidget>
#include <memory>
#include <vector>

class QtDocumentArea : public QStackedWidget, public DocumentWindowOwner {
    Q_OBJECT

public:
    explicit QtDocumentArea(QWidget* parent = nullptr);
    ~QtDocumentArea() override;

    // Null where no window has that key.
    QtDocumentWindow* Find(const std::string& key) const;
    QtDocumentWindow& Add(const std::string& key, const std::string& caption, Form* form);
    QtDocumentWindow* Active() const { return active_; }
    std::vector<DocumentWindow*> Windows() const;
    void Drop(DocumentWindow& window);

    // Gives it a tab, without making it the active window.
    void Show(QtDocumentWindow& window);
    void Hide(QtDocumentWindow& window) override;
    void Activate(QtDocumentWindow& window) override;
    void NextTab(int step);
    void NewTabGroup(bool vertical);

    TabGroup* GroupOf(QWidget* page) const override;
    void SetStartPage(QWidget* page);
    void CaptionsChanged() override { emit Changed(); }

signals:
    // Windows came or went, or a caption is another.
    void Changed();

private:
    TabGroup* NewGroup(int index);
    void RemoveIfEmpty(TabGroup* group);
    void TakeOut(QtDocumentWindow& window);
    void SetActive(QtDocumentWindow* window);
    void ActivateWhatIsLeft(TabGroup* group);
    void ShowRightPage();
    QtDocumentWindow* OfPage(QWidget* page) const;
    QtDocumentWindow* OfFocus(QWidget* focus) const;

    QSplitter* splitter_;
    QWidget* startPage_ = nullptr;
    std::vector<std::unique_ptr<QtDocumentWindow>> windows_;
    QtDocumentWindow* active_ = nullptr;
    bool arranging_ = false; // tabs move by the program's hand, and no window becomes active by that
};
