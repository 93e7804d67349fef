// The bare edit control.
#include "Floor.h"

#include "host/Host.h"
#include "sci/SciMessages.h"

namespace {

// Messages that the program itself never sends.
constexpr unsigned SCI_SETLEXER_ = 4001;
constexpr unsigned SCI_COLOURISE_ = 4003;
constexpr std::intptr_t SCLEX_BLITZBASIC_ = 66;

} // namespace

BareView::BareView() : view_(gHost.views->Create()) {
    Send(SCI_SETMODEVENTMASK, 0);
    Send(SCI_SETLEXER_, SCLEX_BLITZBASIC_);
}

std::intptr_t BareView::Send(unsigned message, std::intptr_t wParam, std::intptr_t lParam) {
    return view_->DirectFunction()(view_->DirectPointer(), message, static_cast<std::uintptr_t>(wParam),
                                   lParam);
}

void BareView::Load(const std::string& text) {
    Send(SCI_SETTEXT, 0, reinterpret_cast<std::intptr_t>(text.c_str()));
    Send(SCI_COLOURISE_, 0, -1);
}

void BareView::Colour(long first, long lines) {
    Send(SCI_STARTSTYLING, Send(SCI_POSITIONFROMLINE, first), 255);
    Send(SCI_COLOURISE_, Send(SCI_POSITIONFROMLINE, first), Send(SCI_POSITIONFROMLINE, first + lines));
}
