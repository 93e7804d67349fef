// Positions of a view in bytes, and the offsets in UTF-16 units by which assistive technology knows them.
#pragma once

#include <QString>
#include <optional>

class QsciScintillaBase;

// In single-byte text both are equal. In UTF-8 units are counted from the last position asked for, so that
// the cost of a key does not depend on the caret's place.
class TextOffsets {
public:
    explicit TextOffsets(QsciScintillaBase& view) : view_(view) {}

    int OffsetOf(long position);
    // A place beyond the text is its end.
    long PositionOf(int offset);
    int Count();
    QString Text(long from, long to) const;

    // Keep the count right: called before each change with its place, and after it with the number of units
    // added or removed.
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
