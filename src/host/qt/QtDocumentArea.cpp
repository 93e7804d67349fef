// The document area: groups of tabs side by side, and which document window is the active one.
#include "host/qt/QtDocumentArea.h"

#include "host/ErrorLog.h"
#include "host/Failure.h"
#include "host/Paths.h"
#include "host/qt/QtText.h"
#include "host/qt/TabGroup.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QUuid>
#include <algorithm>

namespace {

constexpr int OnTab = 3;

}

QtDocumentArea::QtDocumentArea(QWidget* parent) : QStackedWidget(parent), splitter_(new QSplitter) {
    setFocusPolicy(Qt::ClickFocus);
    splitter_->setChildrenCollapsible(false);
    addWidget(splitter_);
    NewGroup(0);
    // A click into a document of another group makes that one active.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (QtDocumentWindow* window = OfFocus(now); window && !arranging_) SetActive(window);
    });
}

QtDocumentArea::~QtDocumentArea() {
    events = nullptr;
    windows_.clear();
}

TabGroup* QtDocumentArea::NewGroup(int index) {
    auto* group = new TabGroup;
    splitter_->insertWidget(index, group);
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
        events->DS_DocumentWindowContextClick(*window, OnTab, local.x(), local.y(), cancel);
    });
    return group;
}

QtDocumentWindow* QtDocumentArea::Find(const std::string& key) const {
    for (const auto& window : windows_)
        if (EqualNoCase(window->Key(), key)) return window.get();
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
    if (!group) group = static_cast<TabGroup*>(splitter_->widget(0));
    {
        const QScopedValueRollback<bool> guard(arranging_, true);
        group->addTab(window.Page(), QString());
    }
    window.ShowCaption();
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
    for (int at = -1; at < splitter_->count(); ++at) {
        auto* candidate = at < 0 ? group : static_cast<TabGroup*>(splitter_->widget(at));
        if (QtDocumentWindow* window = OfPage(candidate->currentWidget())) return Activate(*window);
    }
}

void QtDocumentArea::RemoveIfEmpty(TabGroup* group) {
    if (group->count() > 0 || splitter_->count() < 2) return;
    group->setParent(nullptr);
    group->deleteLater();
}

void QtDocumentArea::Drop(DocumentWindow& window) {
    const auto at = std::find_if(windows_.begin(), windows_.end(),
                                 [&](const auto& owned) { return owned.get() == &window; });
    if (at == windows_.end()) return;
    TabGroup* group = (*at)->Group();
    TakeOut(**at);
    (*at)->Attach(nullptr);
    // Whoever asked for this may still be looking at the window.
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

void QtDocumentArea::NewTabGroup(bool vertical) {
    QtDocumentWindow* window = active_;
    TabGroup* old = window ? window->Group() : nullptr;
    if (!old || old->count() < 2) return;
    {
        const QScopedValueRollback<bool> guard(arranging_, true);
        // A vertical group stands beside the old one, a horizontal one below it.
        splitter_->setOrientation(vertical ? Qt::Horizontal : Qt::Vertical);
        TabGroup* group = NewGroup(splitter_->indexOf(old) + 1);
        old->removeTab(old->indexOf(window->Page()));
        group->addTab(window->Page(), QString());
        splitter_->setSizes(QList<int>(splitter_->count(), 1000));
    }
    window->ShowCaption();
    window->FocusForm();
}

TabGroup* QtDocumentArea::GroupOf(QWidget* page) const {
    for (int at = 0; at < splitter_->count(); ++at) {
        auto* group = static_cast<TabGroup*>(splitter_->widget(at));
        if (group->indexOf(page) >= 0) return group;
    }
    return nullptr;
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
    setCurrentWidget(any || !startPage_ ? static_cast<QWidget*>(splitter_) : startPage_);
}

#include "moc_QtDocumentArea.cpp"
