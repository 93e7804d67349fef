// Positions of a view in bytes, and the offsets in UTF-16 units by which assistive technology knows them.
#pragma once

#include <QString>
#include <optional>

class QsciScintillaBase;

// In a single-byte text both are the same. In UTF-8 units are counted from the place that was asked for last,
// so that a key costs the same wherever the caret stands.
class TextOffsets {
public:
    explicit TextOffsets(QsciScintillaBase& view) : view_(view) {}

    int OffsetOf(long position);
    // A place beyond the text is its end.
    long PositionOf(int offset);
    int Count();
    QString Text(long from, long to) const;

    // What is counted stays right when it hears of each change: in front of it where it happens, and behind
    // it how many units came or went.
    void BeforeChange(long position) { OffsetOf(position); }
    void Changed(int units) {
        if (count_) *count_ += units;
    }
    // Changes went by unheard.
    void Forget();

private:
    bool IsUtf8() const;
    QByteArray Bytes(long from, long to) const;
    long Walk(long position, long units) const;

    QsciScintillaBase& view_;
    long position_ = 0;
    int offset_ = 0; // of that position
    std::optional<int> count_;
};
