// The floor that every figure is held against: a bare edit control, without its counting for screen readers,
// that takes a text and colours it with the library's own lexer.
#pragma once

#include "host/EditorView.h"

#include <memory>
#include <string>

class BareView {
public:
    BareView();
    // Takes a text and colours all of it.
    void Load(const std::string& text);
    // Colours `lines` lines from `first` again.
    void Colour(long first, long lines);

    EditorView& View() { return *view_; }

private:
    std::intptr_t Send(unsigned message, std::intptr_t wParam = 0, std::intptr_t lParam = 0);

    std::unique_ptr<EditorView> view_;
};
