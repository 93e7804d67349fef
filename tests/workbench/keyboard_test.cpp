// What the keyboard reaches, in which order, and what a screen reader gets: for the window in its states and
// for every dialog.
#include "WindowTest.h"
#include "app/ReadableStyle.h"
#include "workbench/dialogs/frmError.h"
#include "workbench/find/frmFind.h"
#include "workbench/find/frmGotoLine.h"
#include "workbench/frame/Mod_MenuCommands.h"
#include "workbench/output/frmCompiling.h"
#include "workbench/output/frmOutput.h"
#include "workbench/parts/Contrast.h"

#include <QAccessible>
#include <QApplication>
#include <QDockWidget>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <set>

namespace {

using Widgets = std::set<QWidget*>;

std::string Describe(const QWidget* widget) {
    return widget->metaObject()->className() +
           (' ' + widget->objectName() + ' ' + widget->accessibleName()).toStdString();
}

// The stops of Tab in one direction, until it wraps.
Widgets Walk(QWidget& top, bool forward) {
    struct Reach : QWidget {
        using QWidget::focusNextPrevChild;
    };
    Widgets seen;
    while ((top.*(&Reach::focusNextPrevChild))(forward) && seen.insert(top.focusWidget()).second)
        EXPECT_TRUE(top.focusWidget()->isVisible()) << Describe(top.focusWidget());
    if (top.focusWidget()) seen.insert(top.focusWidget()); // the only one has nowhere to go
    return seen;
}

bool IsStop(QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) &&
           !widget.focusProxy();
}

void CheckNames(QAccessibleInterface* told) {
    if (!told || told->state().invisible) return;
    static const std::set<QAccessible::Role> lists{QAccessible::List, QAccessible::Tree, QAccessible::Table};
    static const std::set<QAccessible::Role> named{
        QAccessible::Button,       QAccessible::CheckBox,    QAccessible::RadioButton, QAccessible::ComboBox,
        QAccessible::EditableText, QAccessible::PageTabList, QAccessible::PageTab,     QAccessible::MenuItem,
        QAccessible::SpinBox,      QAccessible::ProgressBar, QAccessible::ToolBar,     QAccessible::Dialog};
    const bool list = lists.count(told->role()) != 0;
    const auto* widget = qobject_cast<QWidget*>(told->object());
    const QString name = told->text(QAccessible::Name);
    EXPECT_FALSE(name.isEmpty() && (list || named.count(told->role()) != 0))
        << told->role() << ' ' << (widget ? Describe(widget) : "");
    const auto* label = qobject_cast<const QLabel*>(widget);
    EXPECT_TRUE(!label || label->buddy() || label->textFormat() != Qt::PlainText || name == label->text())
        << name.toStdString();
    for (int child = 0; child < told->childCount() && !list; ++child) CheckNames(told->child(child));
}

// Every control has a name, and Tab stops at each of them in both directions.
void Check(QWidget& top, const char* where) {
    SCOPED_TRACE(where);
    QApplication::setActiveWindow(&top);
    EXPECT_TRUE(QTest::qWaitFor([&] { return top.isActiveWindow(); }));
    QApplication::processEvents();
    CheckNames(QAccessible::queryAccessibleInterface(&top));
    const Widgets forward = Walk(top, true), backward = Walk(top, false);
    for (QWidget* widget : top.findChildren<QWidget*>())
        if (widget->window() == &top && IsStop(*widget)) {
            EXPECT_TRUE(forward.count(widget)) << "not by Tab: " << Describe(widget);
            EXPECT_TRUE(backward.count(widget)) << "not by Shift+Tab: " << Describe(widget);
        }
    for (QWidget* widget : backward) EXPECT_TRUE(forward.count(widget)) << "only back: " << Describe(widget);
}

class KeyboardTest : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        EXPECT_TRUE(Mod_File::OpenFile(host.Put("a.bb", "Print 1\r\n")));
        QApplication::setActiveWindow(&dock->Window());
        ActiveForm()->View->GrabFocus();
    }
    void TearDown() override {
        frmFind::Unload();
        WindowTest::TearDown();
    }
    static void Press(int key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), with);
        QApplication::processEvents(); // another window becomes the active one
    }
    void Choose(const char* name) {
        Click(name);
        QApplication::processEvents();
    }
    static bool InText() { return QApplication::focusWidget() == ActiveForm()->View->NativeWidget(); }
    QDockWidget& Docked(const char* pane) {
        return *dock->Window().findChild<QDockWidget*>(QString("pane-") + pane);
    }
};

TEST_F(KeyboardTest, EverythingIsNamedAndReachedByTabBothWays) {
    QMainWindow& top = dock->Window();
    Check(top, "docked");
    for (const char* kind : {"Types", "Includes"}) {
        window.DS_CommandClick(*dock->FindCommand("Types"), -1);
        Check(top, kind);
    }
    dock->FindPane("Output")->SetAutoHidden(true);
    dock->FindPane("Output")->Show();
    QWidget* output = static_cast<QWidget*>(frmOutput::Instance().NativeWidget());
    const QWidget* frame = output->parentWidget()->parentWidget();
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return frame->geometry().bottom() <= top.centralWidget()->geometry().bottom(); }));
    Check(top, "rolled away and out");
    dock->FindPane("CodeExplorer")->SetFloating(true);
    Check(Docked("CodeExplorer"), "floating");
    dock->Customize();
    for (QWidget* dialog : QApplication::topLevelWidgets()) {
        auto* pages = dialog->isVisible() ? dialog->findChild<QTabWidget*>() : nullptr;
        for (int page = 0; pages && dialog->inherits("QDialog") && page < pages->count(); ++page) {
            pages->setCurrentIndex(page);
            Check(*dialog, pages->tabText(page).toUtf8());
        }
    }
    dock->SaveLayout(host.Path("ends.customising"));
    for (const bool replace : {false, true}) {
        frmFind::Instance().StartFind(replace);
        Check(frmFind::Instance(), replace ? "replace" : "find");
    }
    const auto option = frmFind::Instance().findChild<QRadioButton*>("optStartAt1");
    EXPECT_TRUE(option->isChecked());
    EXPECT_FALSE(IsStop(*frmFind::Instance().findChild<QRadioButton*>("optStartAt0")));
    frmCompiling::Instance().Open("Compiling program...");
    Check(frmCompiling::Instance(), "compiling");
    frmCompiling::Instance().SetValue(42);
    frmCompiling::Instance().Open("Creating program...");
    EXPECT_EQ(frmCompiling::Instance().findChild<QProgressBar*>()->value(), 0);
    frmCompiling::Instance().close();
    frmError error(&top);
    frmGotoLine line(&top);
    for (QDialog* dialog : {static_cast<QDialog*>(&error), static_cast<QDialog*>(&line)}) {
        dialog->show();
        Check(*dialog, dialog->windowTitle().toUtf8());
        dialog->hide();
    }
    line.show();
    auto* field = line.findChild<QLineEdit*>("txtLine");
    field->setText("77");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(line.findChild<QLabel*>("lblWrong")->text(), "There is no line \"77\".");
    line.hide();
    QTimer::singleShot(0, [] {
        Check(*QApplication::activeModalWidget(), "about");
        QApplication::activeModalWidget()->close();
    });
    Click("About");
    Click("Close Tab");
    Check(top, "start page");
}

// From part to part, and by Escape from each of them back to the text.
TEST_F(KeyboardTest, NextPaneVisitsEveryPartAndEscapeLeadsBack) {
    dock->Window().resize(1700, 800); // room for every box
    dock->FindPane("Output")->SetAutoHidden(true);
    dock->FindPane("CodeExplorer")->SetFloating(true);
    ActiveForm()->View->GrabFocus();
    std::vector<QWidget*> stops;
    for (int round = 0; round < 2; ++round) {
        stops.clear();
        do {
            Press(Qt::Key_F6, Qt::ControlModifier);
            stops.push_back(QApplication::focusWidget());
            ASSERT_TRUE(stops.back()->isVisible());
        } while (!InText() && stops.size() < 9);
    }
    ASSERT_GE(stops.size(), 4u); // edge, floating pane, the boxes that have room, text
    for (std::size_t back = stops.size() - 1; back-- > 0;) {
        Press(Qt::Key_F6, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(QApplication::focusWidget(), stops[back]) << Describe(stops[back]);
    }
    Press(Qt::Key_Escape);
    for (std::size_t away = 1; away < stops.size(); ++away) {
        for (std::size_t step = 0; step < away; ++step) Choose("Next Pane");
        EXPECT_FALSE(InText()) << away;
        Press(Qt::Key_Escape);
        EXPECT_TRUE(InText()) << away;
    }
    Choose("Next Pane");
    Press(Qt::Key_Return); // the tab at the edge slides its pane out
    EXPECT_TRUE(qobject_cast<QPlainTextEdit*>(QApplication::focusWidget()));
    Press(Qt::Key_Escape);
    EXPECT_TRUE(InText());
}

TEST_F(KeyboardTest, AKeyShowsAPaneAndHidesOnlyTheOneWithTheFocus) {
    DockPane& output = *dock->FindPane("Output");
    Press(Qt::Key_5, Qt::AltModifier);
    EXPECT_TRUE(output.HasFocus());
    Press(Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(output.HasFocus()); // the command that goes there never closes it
    Press(Qt::Key_5, Qt::AltModifier);
    EXPECT_FALSE(output.Visible());
    EXPECT_TRUE(InText());
    Click("Output Window");
    ActiveForm()->View->GrabFocus();
    Click("Output Window"); // the check mark of a menu says what it does
    EXPECT_FALSE(output.Visible());
}

TEST_F(KeyboardTest, APaneIsEnlargedRolledAwayAndFloatedByCommands) {
    DockPane& output = *dock->FindPane("Output");
    output.Show();
    QApplication::processEvents();
    const int height = Docked("Output").height();
    Press(Qt::Key_PageUp, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_GT(Docked("Output").height(), height);
    Choose("Float Pane");
    EXPECT_TRUE(Docked("Output").isFloating());
    Choose("Float Pane");
    EXPECT_FALSE(Docked("Output").isFloating());
    Choose("Auto-Hide Pane");
    EXPECT_TRUE(output.AutoHidden());
    EXPECT_TRUE(InText());
    Choose("Auto-Hide Pane"); // still the pane that was used last
    EXPECT_FALSE(output.AutoHidden());
    Press(Qt::Key_F10);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QApplication::activePopupWidget()->close();
}

TEST(ReadableStyleTest, SelectionsAndHintsStandOut) {
    ReadableStyle style;
    for (const auto& [text, base, selected, selection] :
         {std::array<QColor, 4>{"#000", "#fff", "#fff", "#308cc6"},
          {"#eee", "#232629", "#fcfcfc", "#3daee9"},
          {"#222", "#fff", "#111", "#3a5fcd"}}) {
        QPalette palette(text, base);
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Text, text);
        palette.setColor(QPalette::HighlightedText, selected);
        palette.setColor(QPalette::Highlight, selection);
        style.polish(palette);
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            const auto of = [&](QPalette::ColorRole role) { return palette.color(group, role); };
            EXPECT_GE(Contrast(of(QPalette::HighlightedText), of(QPalette::Highlight)), 4.5);
            EXPECT_GE(Contrast(of(QPalette::PlaceholderText), of(QPalette::Base)), 4.5);
            EXPECT_EQ(of(QPalette::Text), text);
        }
    }
}

}
