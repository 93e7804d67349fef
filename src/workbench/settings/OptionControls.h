// The controls of a settings dialog and the options that they edit.
#pragma once

#include "documents/OptionTable.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QLineEdit>
#include <QSpinBox>
#include <functional>
#include <vector>

// Binds controls to options. A control shows its option's variable, and not the store.
class OptionControls {
public:
    // A check box for an option of one or for one bit of an option.
    void Bind(QCheckBox& box, const char* key, int bit = 0);
    void Bind(QSpinBox& field, const char* key);
    // The ids of the buttons are the codes of the option.
    void Bind(QButtonGroup& group, const char* key);
    void Bind(QLineEdit& field, const char* key);
    // Something else that is loaded and stored with the options, after them.
    void Bind(std::function<void()> load, std::function<void()> store);

    void Load() const;
    // Writes variables and store in the order of the option table. An option whose control was not touched is
    // written as it is.
    void Store() const;

private:
    struct Binding {
        const Option* option; // null for something else
        std::function<void()> load, store;
    };
    void Add(const char* key, const std::function<void(const Option&)>& load,
             const std::function<void(const Option&)>& store);

    std::vector<Binding> bindings_; // in the order of the option table
};
