// The Output pane. A program may print faster than a window can show, so lines are collected and shown
// together; lines that would be scrolled out at once are dropped first.
#include "workbench/output/frmOutput.h"

#include "workbench/parts/Shown.h"

#include <QFontDatabase>
#include <QScrollBar>

namespace {

// A longer line is split, because laying out a line of one megabyte freezes the pane.
constexpr std::size_t LongestPiece = 4000;

constexpr int LinesAtFirst = 8;

// Asks for a low pane if the arrangement has no size for it.
class OutputText : public QPlainTextEdit {
public:
    QSize sizeHint() const override { return {400, LinesAtFirst * fontMetrics().lineSpacing()}; }
};

}

frmOutput& frmOutput::Instance() {
    static frmOutput pane;
    return pane;
}

frmOutput::frmOutput() : text_(new OutputText) {
    text_->setReadOnly(true);
    text_->setUndoRedoEnabled(false);
    text_->setMaximumBlockCount(MostLines);
    text_->setLineWrapMode(QPlainTextEdit::NoWrap);
    text_->setFrameShape(QFrame::NoFrame);
    text_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text_->setAccessibleName(tr("Output"));
    text_->setPlaceholderText(tr("What the compiler and your program print appears here."));
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    flush_.setSingleShot(true);
    connect(&flush_, &QTimer::timeout, this, &frmOutput::Flush);
}

// The pane's widget belongs to its parent; without a parent the form deletes it.
frmOutput::~frmOutput() {
    if (text_ && !text_->parent()) delete text_;
}

void* frmOutput::NativeWidget() { return static_cast<QWidget*>(text_.data()); }

void frmOutput::Clear() {
    pending_.clear();
    if (text_) text_->clear();
}

void frmOutput::Append(const std::string& line) {
    std::string_view rest = line;
    do {
        pending_.append(Shown(rest.substr(0, LongestPiece)));
        rest.remove_prefix(std::min(rest.size(), LongestPiece));
    } while (!rest.empty());
    if (pending_.size() > 2LL * MostLines) pending_.erase(pending_.begin(), pending_.end() - MostLines);
    if (!flush_.isActive()) flush_.start(0);
}

void frmOutput::ScrollToEnd() {
    toEnd_ = true;
    if (!flush_.isActive()) flush_.start(0);
}

void frmOutput::Flush() {
    if (!text_) return;
    if (pending_.size() > MostLines) pending_.erase(pending_.begin(), pending_.end() - MostLines);
    if (!pending_.isEmpty()) text_->appendPlainText(pending_.join('\n'));
    pending_.clear();
    if (!toEnd_) return;
    toEnd_ = false;
    text_->verticalScrollBar()->setValue(text_->verticalScrollBar()->maximum());
}
