// The document area: groups of tabs, and which document window is the active one.
#pragma once

#include "host/qt/layout/LayoutDocuments.h"
#include "host/qt/tabs/QtDocumentWindow.h"

#include <QMenu>
#include <QStackedWidget>
#include <memory>
#include <vector>

class DropMark;
class GroupTree;

class QtDocumentArea : public QStackedWidget, public DocumentWindowOwner {
    Q_OBJECT

public:
    explicit QtDocumentArea(QWidget* parent = nullptr);
    ~QtDocumentArea() override;

    // Returns null if no window has that key.
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
    // Focuses the active document, or the start page if there is none.
    void FocusActive();

    // Moves the active window into a new group, beside its own one or below it.
    void NewTabGroup(bool vertical);
    // Moves the active window into the next group in reading order, or the one before.
    void MoveToGroup(int step);
    // Returns the places of all windows.
    LayoutDocuments Record() const;
    // Moves the windows to their places in a record. An unknown window joins the first group; `create` makes
    // missing windows, without a form.
    void Restore(const LayoutDocuments& documents, bool create);
    // Gives the groups the sizes of a record, where they are divided as it says.
    void RestoreSizes(const LayoutDocuments& documents);

    TabGroup* GroupOf(QWidget* page) const override;
    void SetStartPage(QWidget* page);
    void CaptionsChanged() override { emit Changed(); }

signals:
    // Windows came or went, another is the active one, or a caption changed.
    void Changed();

private:
    // The place at which a dragged tab would be dropped.
    struct Target {
        TabGroup* group = nullptr; // null: nowhere
        bool split = false;        // into a new group at a side of it
        Qt::Orientation direction = Qt::Horizontal;
        bool before = false;
        int index = -1; // among the tabs of the group
        QRect mark;
    };

    TabGroup* NewGroup();
    std::vector<QtDocumentWindow*> WindowsInGroups() const;
    void RemoveGroups();
    TabGroup* GroupOfRecord(const LayoutArea& area, bool create, std::vector<QtDocumentWindow*>& unplaced);
    void ConnectDrag(TabGroup* group);
    void ListWindows(QMenu& menu);
    void AddToGroup(QtDocumentWindow& window, TabGroup* group, int index);
    void RemoveIfEmpty(TabGroup* group);
    void TakeOut(QtDocumentWindow& window);
    void SetActive(QtDocumentWindow* window);
    void ActivateWhatIsLeft(TabGroup* group);
    void ShowRightPage();
    void ShowActive();
    QtDocumentWindow* OfPage(QWidget* page) const;
    QtDocumentWindow* OfFocus(QWidget* focus) const;
    Target TargetAt(QWidget* page, const QPoint& global) const;
    static Target IntoBar(TabGroup* group, const QPoint& global);
    static Target IntoPage(TabGroup* group, const QPoint& at, const QRect& body, bool maySplit);
    void DropAt(QWidget* page, const QPoint& global);

    GroupTree* tree_;
    DropMark* mark_;
    QWidget* startPage_ = nullptr;
    std::vector<std::unique_ptr<QtDocumentWindow>> windows_;
    QtDocumentWindow* active_ = nullptr;
    bool arranging_ = false; // tabs move by the program's hand, and no window becomes active by that
};
