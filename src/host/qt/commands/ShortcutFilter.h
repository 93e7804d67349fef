// The one filter in which shortcuts are matched: the keys of the main window's focused widget.
#pragma once

#include "host/qt/commands/CommandTable.h"

#include <QKeyEvent>
#include <QMainWindow>
#include <QPointer>
#include <optional>

// Detects late repeats of a held key: the program has fallen behind and would continue after the key is
// released.
class KeyLag {
public:
    bool IsLateRepeat(const QKeyEvent& event);

private:
    std::optional<qint64> least_; // ms between the clock of the events and ours
};

class ShortcutFilter : public QObject {
public:
    ShortcutFilter(QMainWindow& window, CommandTable& table);

    // The key of an event as shortcuts are written: Shift+Tab and the keypad's Enter under one name.
    static QKeyCombination KeyOf(const QKeyEvent& event);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Concerns(QObject* watched) const;
    bool OfferOverride(QWidget* widget, QKeyEvent& event);
    bool OfferPress(QWidget* widget, const QKeyEvent& event);

    QMainWindow& window_;
    CommandTable& table_;
    KeyLag late_;
    QPointer<QWidget> claimant_; // the text field that keeps the key that is going down
};
