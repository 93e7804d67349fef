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
    // Puts a group before or behind an old one; the two share its room. Without an old one it takes all of
    // it.
    void Add(TabGroup* group, TabGroup* old, Qt::Orientation direction, bool before);
    // Takes a group out; its neighbours get its room. The caller deletes it.
    void Remove(TabGroup* group);

    // `record` fills in what stands in one group.
    LayoutArea Record(const std::function<LayoutArea(TabGroup&)>& record) const;
    // Builds the divisions anew, which must be empty. `make` answers the group of a record, null for none.
    void Restore(const LayoutArea& area, const std::function<TabGroup*(const LayoutArea&)>& make);
    // Gives the parts the sizes of a record that has the same divisions; another record changes nothing.
    void SetSizes(const LayoutArea& area);

private:
    void Simplify(QSplitter* splitter);

    QSplitter* root_;
};
