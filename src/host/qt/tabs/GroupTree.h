// How groups of tabs divide the document area: splitters in splitters, with the groups as their leaves.
#pragma once

#include "host/qt/layout/LayoutDocuments.h"

#include <QSplitter>
#include <functional>
#include <vector>

class TabGroup;

class GroupTree : public QWidget {
public:
    explicit GroupTree(QWidget* parent = nullptr);

    // All groups in reading order.
    std::vector<TabGroup*> Groups() const;
    // Inserts a group before or after an old one, with which it shares the room. Without an old one it gets
    // all of it.
    void Add(TabGroup* group, TabGroup* old, Qt::Orientation direction, bool before);
    // Takes a group out; its neighbours get its room. The caller deletes it.
    void Remove(TabGroup* group);

    // `record` fills in the contents of one group.
    LayoutArea Record(const std::function<LayoutArea(TabGroup&)>& record) const;
    // Builds the divisions of an empty tree. `make` returns the group of a record, null for none.
    void Restore(const LayoutArea& area, const std::function<TabGroup*(const LayoutArea&)>& make);
    // Gives the parts the sizes of a record that has the same divisions; another record changes nothing.
    void SetSizes(const LayoutArea& area);

private:
    void Simplify(QSplitter* splitter);

    QSplitter* root_;
};
