// The Code Explorer pane: a button for each kind of symbol, the scope, a filter, and the lists.
#pragma once

#include "host/DockStudio.h"

#include <QObject>
#include <QPointer>
#include <array>
#include <functional>
#include <string>

class QLayout;
class QLineEdit;
class QToolButton;
class frmList;

class frmMainList : public QObject, public Form {
public:
    // The only pane of this kind, created on first use.
    static frmMainList& Instance();
    frmMainList();
    ~frmMainList() override;

    void* NativeWidget() override;

    // Raises all dirty flags of the current project, so that each list is updated when it is shown next.
    static void AllConstructsDirty();
    // Updates the visible list.
    void PuniLista();
    // AllConstructsDirty followed by PuniLista, for changes that raise no flag.
    void Refresh();
    // Selects a construct by its name, as a click on its button does.
    void ShowConstruct(const std::string& name);
    // Gives the visible list the keyboard focus.
    void FocusList();
    // True if only the symbols of the active document are listed.
    bool ShowOnlyFile() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLayout* MakeButtons();
    void MakeFilter();
    QToolButton* AddButton(const char* name, const std::function<void()>& clicked);
    void SetScope(bool onlyFile);
    void CheckButtons();
    bool FilterKey(int key);

    QPointer<QWidget> pane_;
    QPointer<frmList> lists_;
    QPointer<QLineEdit> filter_;
    std::array<QToolButton*, 7> constructs_{};
    QToolButton* file_ = nullptr;
    QToolButton* project_ = nullptr;
};
