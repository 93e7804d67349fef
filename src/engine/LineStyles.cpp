// One STARTSTYLING for each stretch, one SETSTYLING for each run: a token a call would cost twice the time.
#include "engine/LineStyles.h"

#include "sci/Mod_Sci.h"

#include <algorithm>

LineStyles gLineStyles;

void LineStyles::Begin(std::intptr_t position, int length, bool clear) {
    position_ = position;
    length_ = std::clamp(length, 0, static_cast<int>(styles_.size()));
    std::fill_n(styles_.begin(), length_, clear ? static_cast<std::uint8_t>(STYLE_Text) : Kept);
}

void LineStyles::Set(std::intptr_t position, std::intptr_t length, int style) {
    const std::intptr_t first = std::clamp<std::intptr_t>(position - position_, 0, length_);
    const std::intptr_t last = std::clamp<std::intptr_t>(position - position_ + length, first, length_);
    std::fill(styles_.begin() + first, styles_.begin() + last, static_cast<std::uint8_t>(style));
}

void LineStyles::Flush() {
    bool placed = false; // the styling position is where the next run begins
    for (int i = 0; i < length_;) {
        const std::uint8_t style = styles_[static_cast<std::size_t>(i)];
        int end = i + 1;
        while (end < length_ && styles_[static_cast<std::size_t>(end)] == style) ++end;
        if (style == Kept) {
            placed = false;
        } else {
            if (!placed) Mod_Sci::StartStyling(position_ + i, 255);
            Mod_Sci::SetStyling(end - i, style);
            placed = true;
        }
        i = end;
    }
}
