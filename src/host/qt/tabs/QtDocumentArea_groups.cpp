// The document area: how groups of tabs come, go and are kept, and tabs that are dragged between them.
#include "host/qt/tabs/QtDocumentArea.h"

#include "host/qt/system/QtText.h"
#include "host/qt/tabs/DropMark.h"
#include "host/qt/tabs/GroupTree.h"
#include "host/qt/tabs/TabGroup.h"

#include <QActionGroup>
#include <QScopedValueRollback>
#include <algorithm>

namespace {
constexpr int SideParts = 4; // a drop in the outer quarter of a group divides it
}

void QtDocumentArea::ListWindows(QMenu& menu) {
    auto* one = new QActionGroup(&menu);
    for (TabGroup* group : tree_->Groups()) {
        if (!menu.isEmpty()) menu.addSeparator();
        for (int at = 0; at < group->count(); ++at) {
            QtDocumentWindow* window = OfPage(group->widget(at));
            if (!window) continue;
            QAction* action = menu.addAction(group->tabText(at));
            action->setCheckable(true);
            action->setChecked(window == active_);
            action->setActionGroup(one);
            connect(action, &QAction::triggered, window, [this, window] { Activate(*window); });
        }
    }
}

void QtDocumentArea::AddToGroup(QtDocumentWindow& window, TabGroup* group, int index) {
    const QScopedValueRollback<bool> guard(arranging_, true);
    TabGroup* old = window.Group();
    if (old) old->removeTab(old->indexOf(window.Page()));
    group->insertTab(index, window.Page(), QString());
    window.ShowCaption();
    ShowActive();
    if (old && old != group) RemoveIfEmpty(old);
}

void QtDocumentArea::ShowActive() {
    const TabGroup* active = active_ ? active_->Group() : nullptr;
    for (TabGroup* group : tree_->Groups()) group->SetActive(group == active);
}

void QtDocumentArea::RemoveIfEmpty(TabGroup* group) {
    if (group->count() > 0 || tree_->Groups().size() < 2) return;
    tree_->Remove(group);
    group->deleteLater();
}

void QtDocumentArea::NewTabGroup(bool vertical) {
    QtDocumentWindow* window = active_;
    TabGroup* old = window ? window->Group() : nullptr;
    if (!old || old->count() < 2) return;
    {
        const QScopedValueRollback<bool> guard(arranging_, true);
        TabGroup* group = NewGroup();
        // A vertical group is beside the old one, a horizontal one below it.
        tree_->Add(group, old, vertical ? Qt::Horizontal : Qt::Vertical, false);
        AddToGroup(*window, group, -1);
    }
    window->FocusForm();
}

void QtDocumentArea::MoveToGroup(int step) {
    if (!active_) return;
    const std::vector<TabGroup*> groups = tree_->Groups();
    const auto at = std::find(groups.begin(), groups.end(), active_->Group());
    if (at == groups.end() || groups.size() < 2) return;
    const auto count = static_cast<int>(groups.size());
    const int next = (static_cast<int>(at - groups.begin()) + step % count + count) % count;
    TabGroup* group = groups[static_cast<std::size_t>(next)];
    const QScopedValueRollback<bool> guard(arranging_, true);
    AddToGroup(*active_, group, -1);
    group->setCurrentWidget(active_->Page());
    active_->FocusForm();
}

TabGroup* QtDocumentArea::GroupOf(QWidget* page) const {
    for (TabGroup* group : tree_->Groups())
        if (group->indexOf(page) >= 0) return group;
    return nullptr;
}

LayoutDocuments QtDocumentArea::Record() const {
    LayoutDocuments documents;
    documents.area = tree_->Record([this](TabGroup& group) {
        LayoutArea area{.front = std::max(0, group.currentIndex())};
        for (int at = 0; at < group.count(); ++at)
            if (const QtDocumentWindow* window = OfPage(group.widget(at)))
                area.windows.push_back({window->Key(), window->Caption()});
        return area;
    });
    if (active_) documents.active = active_->Key();
    return documents;
}

std::vector<QtDocumentWindow*> QtDocumentArea::WindowsInGroups() const {
    std::vector<QtDocumentWindow*> windows;
    for (TabGroup* group : tree_->Groups())
        for (int at = 0; at < group->count(); ++at)
            if (QtDocumentWindow* window = OfPage(group->widget(at))) windows.push_back(window);
    return windows;
}

void QtDocumentArea::RemoveGroups() {
    for (TabGroup* group : tree_->Groups()) {
        while (group->count() > 0) group->removeTab(0);
        tree_->Remove(group);
        group->deleteLater();
    }
}

// Makes the group of a record from its windows and removes these from `unplaced`. With `create` makes missing
// windows. Returns null for a group without windows.
TabGroup* QtDocumentArea::GroupOfRecord(const LayoutArea& area, bool create,
                                        std::vector<QtDocumentWindow*>& unplaced) {
    TabGroup* group = nullptr;
    for (const LayoutWindow& record : area.windows) {
        QtDocumentWindow* window = Find(record.key);
        if (!window && create) {
            windows_.push_back(std::make_unique<QtDocumentWindow>(*this, record.key, record.caption));
            window = windows_.back().get();
            unplaced.push_back(window);
        }
        const auto at = std::find(unplaced.begin(), unplaced.end(), window);
        if (at == unplaced.end()) continue;
        unplaced.erase(at);
        if (!group) group = NewGroup();
        group->addTab(window->Page(), QString());
    }
    if (group) group->setCurrentIndex(std::clamp(area.front, 0, group->count() - 1));
    return group;
}

void QtDocumentArea::Restore(const LayoutDocuments& documents, bool create) {
    std::vector<QtDocumentWindow*> unplaced = WindowsInGroups();
    {
        const QScopedValueRollback<bool> guard(arranging_, true);
        RemoveGroups();
        tree_->Restore(documents.area,
                       [&](const LayoutArea& area) { return GroupOfRecord(area, create, unplaced); });
        if (tree_->Groups().empty()) tree_->Add(NewGroup(), nullptr, Qt::Horizontal, false);
        TabGroup* first = tree_->Groups().front();
        for (QtDocumentWindow* window : unplaced) first->addTab(window->Page(), QString());
        for (const auto& window : windows_) window->ShowCaption();
        if (active_) active_->Group()->setCurrentWidget(active_->Page());
    }
    ShowRightPage();
    ShowActive();
    // The active document stays active, except that a workspace names the one to activate.
    QtDocumentWindow* window = active_ && !create ? active_ : Find(documents.active);
    if (window && window->Group())
        Activate(*window);
    else if (active_)
        active_->FocusForm();
    emit Changed();
}

void QtDocumentArea::RestoreSizes(const LayoutDocuments& documents) { tree_->SetSizes(documents.area); }

void QtDocumentArea::ConnectDrag(TabGroup* group) {
    connect(group, &TabGroup::DraggedOut, this,
            [this](QWidget* page, const QPoint& global) { mark_->Show(TargetAt(page, global).mark); });
    connect(group, &TabGroup::DroppedOut, this, [this](QWidget* page, const QPoint& global) {
        mark_->hide();
        DropAt(page, global);
    });
    connect(group, &TabGroup::DragCancelled, mark_, &QWidget::hide);
}

QtDocumentArea::Target QtDocumentArea::IntoBar(TabGroup* group, const QPoint& global) {
    QTabBar* bar = group->tabBar();
    const QPoint at = bar->mapFromGlobal(global);
    Target target;
    target.group = group;
    target.index = bar->count();
    QRect tab = bar->tabRect(bar->count() - 1);
    tab.moveLeft(tab.right() + 1);
    for (int index = bar->count() - 1; index >= 0; --index)
        if (at.x() < bar->tabRect(index).center().x()) {
            target.index = index;
            tab = bar->tabRect(index);
        }
    target.mark = {bar->mapTo(group, tab.topLeft()), tab.size()};
    return target;
}

QtDocumentArea::Target QtDocumentArea::IntoPage(TabGroup* group, const QPoint& at, const QRect& body,
                                                bool maySplit) {
    Target target;
    target.group = group;
    target.mark = body;
    if (!maySplit) return target;
    const QRect middle = body.adjusted(body.width() / SideParts, body.height() / SideParts,
                                       -body.width() / SideParts, -body.height() / SideParts);
    if (middle.contains(at)) return target;
    target.split = true;
    if (at.x() < middle.left() || at.x() > middle.right()) {
        target.before = at.x() < middle.left();
        target.mark.setWidth(body.width() / 2);
        if (!target.before) target.mark.moveRight(body.right());
    } else {
        target.direction = Qt::Vertical;
        target.before = at.y() < middle.top();
        target.mark.setHeight(body.height() / 2);
        if (!target.before) target.mark.moveBottom(body.bottom());
    }
    return target;
}

QtDocumentArea::Target QtDocumentArea::TargetAt(QWidget* page, const QPoint& global) const {
    for (TabGroup* group : tree_->Groups()) {
        const QPoint at = group->mapFromGlobal(global);
        if (!group->rect().contains(at)) continue;
        const bool own = group->indexOf(page) >= 0;
        const int barHeight = group->tabBar()->height();
        Target target;
        if (at.y() < barHeight)
            target = IntoBar(group, global);
        else
            target =
                IntoPage(group, at, group->rect().adjusted(0, barHeight, 0, 0), !own || group->count() > 1);
        // In the middle of its own group a tab is already at its place.
        if (own && !target.split && at.y() >= barHeight) return {};
        target.mark.translate(group->mapTo(this, QPoint()));
        return target;
    }
    return {};
}

void QtDocumentArea::DropAt(QWidget* page, const QPoint& global) {
    QtDocumentWindow* window = OfPage(page);
    Target target = TargetAt(page, global);
    if (!window || !target.group) return;
    {
        const QScopedValueRollback<bool> guard(arranging_, true);
        TabGroup* group = target.group;
        if (target.split) {
            group = NewGroup();
            tree_->Add(group, target.group, target.direction, target.before);
        }
        // Removing the tab from its own bar shifts the places after it.
        const int own = group->indexOf(page);
        if (own >= 0 && target.index > own) --target.index;
        AddToGroup(*window, group, target.index);
        group->setCurrentWidget(page);
    }
    Activate(*window);
    window->FocusForm();
}
