// A bar of tabs and each of its tabs as accessible objects.
#include "host/qt/tabs/TabAccessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QTabBar>
#include <map>

namespace {

class Tab : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    Tab(QTabBar& bar, int index) : bar_(bar), index_(index) {}

    bool isValid() const override { return index_ < bar_.count(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&bar_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::PageTab; }
    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override {
        const QRect tab = bar_.tabRect(index_);
        return {bar_.mapToGlobal(tab.topLeft()), tab.size()};
    }
    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Description) return bar_.tabToolTip(index_);
        if (kind != QAccessible::Name) return {};
        return bar_.tabText(index_).replace("&&", "\n").remove('&').replace('\n', '&');
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        const bool front = index_ == bar_.currentIndex();
        state.selectable = state.focusable = true;
        state.selected = front;
        state.focused = front && bar_.hasFocus();
        state.disabled = !bar_.isTabEnabled(index_);
        state.invisible = !bar_.isVisible();
        state.invalid = !isValid();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction() && isValid()) bar_.setCurrentIndex(index_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QTabBar& bar_;
    int index_;
};

// The tabs come first, then the buttons of the bar.
class TabBar : public QAccessibleWidget {
public:
    explicit TabBar(QTabBar& bar) : QAccessibleWidget(&bar, QAccessible::PageTabList), bar_(bar) {}
    ~TabBar() override {
        for (const auto& [index, id] : tabs_) QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return bar_.count() + QAccessibleWidget::childCount(); }
    QAccessibleInterface* child(int index) const override {
        if (index < 0) return nullptr;
        if (index >= bar_.count()) return QAccessibleWidget::child(index - bar_.count());
        const auto known = tabs_.find(index);
        if (known != tabs_.end()) return QAccessible::accessibleInterface(known->second);
        auto* tab = new Tab(bar_, index);
        tabs_[index] = QAccessible::registerAccessibleInterface(tab);
        return tab;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        for (const auto& [index, id] : tabs_)
            if (QAccessible::accessibleInterface(id) == child) return index;
        const int button = QAccessibleWidget::indexOfChild(child);
        return button < 0 ? -1 : bar_.count() + button;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const int tab = bar_.tabAt(bar_.mapFromGlobal(QPoint(x, y)));
        return tab < 0 ? nullptr : child(tab);
    }
    QAccessibleInterface* focusChild() const override {
        return bar_.hasFocus() ? child(bar_.currentIndex()) : nullptr;
    }

private:
    QTabBar& bar_;
    mutable std::map<int, QAccessible::Id> tabs_;
};

QAccessibleInterface* MakeObject(const QString&, QObject* object) {
    auto* bar = qobject_cast<QTabBar*>(object);
    return bar ? new TabBar(*bar) : nullptr;
}

}

void InstallTabAccessibility() {
    static bool installed = false;
    if (!installed) QAccessible::installFactory(MakeObject);
    installed = true;
}
