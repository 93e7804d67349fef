// How groups of tabs divide the document area.
#include "host/qt/tabs/GroupTree.h"

#include "host/qt/tabs/TabGroup.h"

#include <QVBoxLayout>
#include <utility>

namespace {

QSplitter* MakeSplitter(Qt::Orientation orientation) {
    auto* splitter = new QSplitter(orientation);
    splitter->setChildrenCollapsible(false);
    return splitter;
}

void Collect(const QSplitter& splitter, std::vector<TabGroup*>& groups) {
    for (int at = 0; at < splitter.count(); ++at) {
        if (const auto* inner = qobject_cast<QSplitter*>(splitter.widget(at)))
            Collect(*inner, groups);
        else
            groups.push_back(static_cast<TabGroup*>(splitter.widget(at)));
    }
}

LayoutArea RecordOf(const QSplitter& splitter, const std::function<LayoutArea(TabGroup&)>& record) {
    LayoutArea area{.rows = splitter.orientation() == Qt::Vertical};
    const QList<int> sizes = splitter.sizes();
    for (int at = 0; at < splitter.count(); ++at) {
        const auto* inner = qobject_cast<QSplitter*>(splitter.widget(at));
        area.parts.push_back(inner ? RecordOf(*inner, record)
                                   : record(*static_cast<TabGroup*>(splitter.widget(at))));
        area.sizes.push_back(sizes[at]);
    }
    return area;
}

// Fills a splitter from a record; a part without a group is left out, and so is its size.
void Fill(QSplitter& splitter, const LayoutArea& area,
          const std::function<TabGroup*(const LayoutArea&)>& make) {
    splitter.setOrientation(area.rows ? Qt::Vertical : Qt::Horizontal);
    QList<int> sizes;
    for (std::size_t at = 0; at < area.parts.size(); ++at) {
        const LayoutArea& part = area.parts[at];
        QWidget* widget = nullptr;
        if (part.parts.empty()) {
            widget = make(part);
        } else {
            QSplitter* inner = MakeSplitter(Qt::Horizontal);
            Fill(*inner, part, make);
            if (inner->count() > 0)
                widget = inner;
            else
                delete inner;
        }
        if (!widget) continue;
        splitter.addWidget(widget);
        if (!area.sizes.empty()) sizes.append(area.sizes[at]);
    }
    if (!sizes.isEmpty()) splitter.setSizes(sizes);
}

void Resize(QSplitter& splitter, const LayoutArea& area) {
    if (static_cast<std::size_t>(splitter.count()) != area.parts.size()) return;
    if (!area.sizes.empty()) splitter.setSizes(QList<int>(area.sizes.begin(), area.sizes.end()));
    for (int at = 0; at < splitter.count(); ++at)
        if (auto* inner = qobject_cast<QSplitter*>(splitter.widget(at)))
            Resize(*inner, area.parts[static_cast<std::size_t>(at)]);
}

}

GroupTree::GroupTree(QWidget* parent) : QWidget(parent), root_(MakeSplitter(Qt::Horizontal)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(root_);
}

std::vector<TabGroup*> GroupTree::Groups() const {
    std::vector<TabGroup*> groups;
    Collect(*root_, groups);
    return groups;
}

void GroupTree::Add(TabGroup* group, TabGroup* old, Qt::Orientation direction, bool before) {
    if (!old) return root_->addWidget(group);
    auto* splitter = static_cast<QSplitter*>(old->parentWidget());
    if (splitter->count() == 1) splitter->setOrientation(direction);
    if (splitter->orientation() != direction) {
        const QList<int> sizes = splitter->sizes();
        QSplitter* inner = MakeSplitter(direction);
        splitter->replaceWidget(splitter->indexOf(old), inner);
        inner->addWidget(old);
        old->show();
        splitter->setSizes(sizes);
        splitter = inner;
    }
    const int at = splitter->indexOf(old);
    QList<int> sizes = splitter->sizes();
    const int half = sizes[at] / 2;
    sizes[at] -= half;
    sizes.insert(before ? at : at + 1, half);
    splitter->insertWidget(before ? at : at + 1, group);
    // A window that was not laid out yet has no sizes to share.
    if (half == 0) sizes.fill(1000);
    splitter->setSizes(sizes);
}

void GroupTree::Remove(TabGroup* group) {
    auto* splitter = qobject_cast<QSplitter*>(group->parentWidget());
    group->setParent(nullptr);
    if (splitter) Simplify(splitter);
}

// A division of one part is none.
void GroupTree::Simplify(QSplitter* splitter) {
    if (splitter == root_ || splitter->count() > 1) return;
    auto* parent = static_cast<QSplitter*>(splitter->parentWidget());
    const QList<int> sizes = parent->sizes();
    if (splitter->count() == 1) {
        QWidget* only = splitter->widget(0);
        parent->replaceWidget(parent->indexOf(splitter), only);
        only->show();
        parent->setSizes(sizes);
    }
    splitter->setParent(nullptr);
    splitter->deleteLater();
    Simplify(parent);
}

LayoutArea GroupTree::Record(const std::function<LayoutArea(TabGroup&)>& record) const {
    return RecordOf(*root_, record);
}

void GroupTree::Restore(const LayoutArea& area, const std::function<TabGroup*(const LayoutArea&)>& make) {
    Fill(*root_, area, make);
}

void GroupTree::SetSizes(const LayoutArea& area) { Resize(*root_, area); }
