// The document area: which document windows there are, and which of them is the active one.
#include "host/qt/tabs/QtDocumentArea.h"

#include "host/ErrorLog.h"
#include "host/Failure.h"
#include "host/qt/system/QtText.h"
#include "host/qt/tabs/DropMark.h"
#include "host/qt/tabs/GroupTree.h"
#include "host/qt/tabs/TabGroup.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QUuid>
#include <algorithm>
#include <utility>

namespace {

constexpr int OnTab = 3;

}

QtDocumentArea::QtDocumentArea(QWidget* parent)
    : QStackedWidget(parent), tree_(new GroupTree), mark_(new DropMark(this)) {
    setFocusPolicy(Qt::ClickFocus);
    addWidget(tree_);
    tree_->Add(NewGroup(), nullptr, Qt::Horizontal, false);
    // A click into a document of another group makes that one active.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (QtDocumentWindow* window = OfFocus(now); window && !arranging_) SetActive(window);
    });
}

QtDocumentArea::~QtDocumentArea() {
    events = nullptr;
    // When a window is removed its group shows another one, which must not be looked up in the list being
    // changed.
    arranging_ = true;
    const auto windows = std::exchange(windows_, {});
}

TabGroup* QtDocumentArea::NewGroup() {
    auto* group = new TabGroup;
    connect(group, &QTabWidget::currentChanged, this, [this, group] {
        if (arranging_) return;
        if (QtDocumentWindow* window = OfPage(group->currentWidget())) SetActive(window);
    });
    connect(group, &TabGroup::CloseAsked, this, [this](QWidget* page) {
        if (QtDocumentWindow* window = OfPage(page)) Hide(*window);
    });
    connect(group, &TabGroup::TabDoubleClicked, this, [this](QWidget* page) {
        QtDocumentWindow* window = OfPage(page);
        if (window && events) events->DS_DocumentWindowDoubleClick(*window, OnTab);
    });
    connect(group, &TabGroup::TabContextAsked, this, [this](QWidget* page, const QPoint& global) {
        QtDocumentWindow* window = OfPage(page);
        if (!window || !events) return;
        Activate(*window);
        const QPoint local = page->mapFromGlobal(global);
        bool cancel = false;
        menuPlace = global;
        events->DS_DocumentWindowContextClick(*window, OnTab, local.x(), local.y(), cancel);
        menuPlace.reset();
    });
    connect(group, &TabGroup::ListAsked, this, [this](QMenu* menu) { ListWindows(*menu); });
    ConnectDrag(group);
    return group;
}

QtDocumentWindow* QtDocumentArea::Find(const std::string& key) const {
    for (const auto& window : windows_)
        if (window->Key() == key) return window.get();
    return nullptr;
}

QtDocumentWindow& QtDocumentArea::Add(const std::string& key, const std::string& caption, Form* form) {
    if (!key.empty() && Find(key))
        throw Failure(FailureDuplicateKey, "A document window has this key already");
    std::string unique = key.empty() ? Typed(QUuid::createUuid().toString(QUuid::WithBraces)) : key;
    windows_.push_back(std::make_unique<QtDocumentWindow>(*this, std::move(unique), caption));
    QtDocumentWindow& window = *windows_.back();
    window.Attach(form);
    Show(window);
    return window;
}

std::vector<DocumentWindow*> QtDocumentArea::Windows() const {
    std::vector<DocumentWindow*> all;
    for (const auto& window : windows_) all.push_back(window.get());
    return all;
}

void QtDocumentArea::Show(QtDocumentWindow& window) {
    if (window.Group()) return;
    TabGroup* group = active_ ? active_->Group() : nullptr;
    AddToGroup(window, group ? group : tree_->Groups().front(), -1);
    ShowRightPage();
    if (events) events->DS_DocumentWindowActivate(window, true);
}

void QtDocumentArea::Activate(QtDocumentWindow& window) {
    Show(window);
    {
        const QScopedValueRollback<bool> guard(arranging_, true);
        window.Group()->setCurrentWidget(window.Page());
        window.FocusForm();
    }
    SetActive(&window);
}

void QtDocumentArea::SetActive(QtDocumentWindow* window) {
    if (window == active_) return;
    QtDocumentWindow* old = active_;
    active_ = window;
    ShowActive();
    emit Changed();
    if (!events) return;
    if (old) events->DS_DocumentWindowDeactivate(*old);
    if (active_ && active_ == window) events->DS_DocumentWindowActivate(*window, false);
}

void QtDocumentArea::TakeOut(QtDocumentWindow& window) {
    TabGroup* group = window.Group();
    if (!group) return;
    const QScopedValueRollback<bool> guard(arranging_, true);
    group->removeTab(group->indexOf(window.Page()));
    window.Page()->setParent(nullptr);
    if (active_ == &window) active_ = nullptr;
}

void QtDocumentArea::Hide(QtDocumentWindow& window) {
    TabGroup* group = window.Group();
    if (!group) return;
    bool cancel = false;
    if (events) events->DS_DocumentWindowHiding(window, cancel);
    if (cancel || !window.Group()) return;
    const bool wasActive = active_ == &window;
    if (wasActive && events) events->DS_DocumentWindowDeactivate(window);
    TakeOut(window);
    // From here on the owner may have dropped the window.
    if (events) events->DS_DocumentWindowHidden(window);
    if (wasActive && !active_) ActivateWhatIsLeft(group);
    RemoveIfEmpty(group);
    ShowRightPage();
    emit Changed();
}

void QtDocumentArea::ActivateWhatIsLeft(TabGroup* group) {
    std::vector<TabGroup*> candidates = tree_->Groups();
    candidates.insert(candidates.begin(), group);
    for (TabGroup* candidate : candidates)
        if (QtDocumentWindow* window = OfPage(candidate->currentWidget())) return Activate(*window);
}

void QtDocumentArea::Drop(DocumentWindow& window) {
    const auto at = std::find_if(windows_.begin(), windows_.end(),
                                 [&](const auto& owned) { return owned.get() == &window; });
    if (at == windows_.end()) return;
    TabGroup* group = (*at)->Group();
    TakeOut(**at);
    (*at)->Attach(nullptr);
    // Deleted later, because the caller may still use the window.
    at->release()->deleteLater();
    windows_.erase(at);
    if (group) RemoveIfEmpty(group);
    ShowRightPage();
    emit Changed();
}

void QtDocumentArea::NextTab(int step) {
    TabGroup* group = active_ ? active_->Group() : nullptr;
    if (!group || group->count() < 2) return;
    const int next = (group->currentIndex() + step % group->count() + group->count()) % group->count();
    if (QtDocumentWindow* window = OfPage(group->widget(next))) Activate(*window);
}

void QtDocumentArea::FocusActive() {
    if (active_) return active_->FocusForm();
    setFocus(Qt::OtherFocusReason);
}

QtDocumentWindow* QtDocumentArea::OfPage(QWidget* page) const {
    for (const auto& window : windows_)
        if (page && window->Page() == page) return window.get();
    return nullptr;
}

QtDocumentWindow* QtDocumentArea::OfFocus(QWidget* focus) const {
    for (const auto& window : windows_)
        if (focus && window->Page()->isAncestorOf(focus)) return window->Group() ? window.get() : nullptr;
    return nullptr;
}

void QtDocumentArea::SetStartPage(QWidget* page) {
    if (startPage_) startPage_->deleteLater();
    startPage_ = page;
    addWidget(page);
    ShowRightPage();
}

void QtDocumentArea::ShowRightPage() {
    const bool any = std::any_of(windows_.begin(), windows_.end(),
                                 [](const auto& window) { return window->Group() != nullptr; });
    setCurrentWidget(any || !startPage_ ? static_cast<QWidget*>(tree_) : startPage_);
}

#include "moc_QtDocumentArea.cpp"
