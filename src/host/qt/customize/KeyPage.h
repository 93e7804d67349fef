// The page on which the keys of one command are changed.
#pragma once

#include "host/qt/customize/CustomizeTarget.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <optional>

// Takes one key press, with what is held down beside it, as its value.
class KeyField : public QLineEdit {
    Q_OBJECT

public:
    explicit KeyField(QWidget* parent = nullptr);

    const std::optional<QKeyCombination>& Key() const { return key_; }
    void Clear();

signals:
    void KeyChanged();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::optional<QKeyCombination> key_;
};

class KeyPage : public QWidget {
    Q_OBJECT

public:
    KeyPage(CustomizeTarget& target, QWidget* parent);

    // The command whose keys are shown; null for none.
    void SetCommand(QtCommand* command);

signals:
    void KeysChanged();

private:
    void Connect();
    void ShowKeys();
    void ShowConflict();
    void Assign();
    void Remove();
    void PutBack();
    void TakeFrom(QKeyCombination key, QtCommand& from);

    CustomizeTarget& target_;
    QtCommand* command_ = nullptr;
    QLabel* name_;
    QListWidget* keys_;
    KeyField* field_;
    QLabel* word_;
    QPushButton* assign_;
    QPushButton* remove_;
    QPushButton* default_;
};
