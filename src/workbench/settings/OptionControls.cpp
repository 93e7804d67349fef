#include "workbench/settings/OptionControls.h"

#include "host/Failure.h"
#include "workbench/parts/Shown.h"

#include <algorithm>

namespace {

constexpr int FailureUnknownOption = 5;

const Option& Known(const char* key) {
    const Option* option = FindOption(key);
    if (option == nullptr) throw Failure(FailureUnknownOption, std::string("No option is called ") + key);
    return *option;
}

}

void OptionControls::Add(const char* key, const std::function<void(const Option&)>& load,
                         const std::function<void(const Option&)>& store) {
    const Option& option = Known(key);
    Binding binding{&option, [load, &option] { load(option); },
                    [store, &option] {
                        store(option);
                        WriteOption(option);
                    }};
    // The rows of the table lie in one array; what is not of the table comes last.
    const auto at = std::find_if(bindings_.begin(), bindings_.end(), [&](const Binding& other) {
        return other.option == nullptr || std::less<>()(&option, other.option);
    });
    bindings_.insert(at, std::move(binding));
}

void OptionControls::Bind(QCheckBox& box, const char* key, int bit) {
    Add(
        key,
        [&box, bit](const Option& option) {
            box.setChecked(bit != 0 ? (*option.number & bit) != 0 : *option.number != 0);
        },
        [&box, bit](const Option& option) {
            if (bit == 0)
                *option.number = box.isChecked() ? 1 : 0;
            else
                *option.number = box.isChecked() ? *option.number | bit : *option.number & ~bit;
        });
}

void OptionControls::Bind(QSpinBox& field, const char* key) {
    const OptionRange& range = Known(key).range;
    field.setRange(range.least, range.most);
    field.setSingleStep(range.step);
    Add(
        key, [&field](const Option& option) { field.setValue(*option.number); },
        [&field](const Option& option) {
            // A stored value beyond the range stays until the user chooses another one.
            if (field.value() != std::clamp(*option.number, field.minimum(), field.maximum()))
                *option.number = field.value();
        });
}

void OptionControls::Bind(QButtonGroup& group, const char* key) {
    Add(
        key,
        [&group](const Option& option) {
            if (QAbstractButton* button = group.button(*option.number)) button->setChecked(true);
        },
        [&group](const Option& option) {
            if (group.checkedId() >= 0) *option.number = group.checkedId();
        });
}

void OptionControls::Bind(QLineEdit& field, const char* key) {
    Add(
        key, [&field](const Option& option) { field.setText(Shown(*option.text)); },
        [&field](const Option& option) {
            // A text that cannot be shown as it is must not be changed by having been shown.
            if (field.text() != Shown(*option.text)) *option.text = field.text().toStdString();
        });
}

void OptionControls::Bind(std::function<void()> load, std::function<void()> store) {
    bindings_.push_back({nullptr, std::move(load), std::move(store)});
}

void OptionControls::Load() const {
    for (const Binding& binding : bindings_) binding.load();
}

void OptionControls::Store() const {
    for (const Binding& binding : bindings_) binding.store();
}
