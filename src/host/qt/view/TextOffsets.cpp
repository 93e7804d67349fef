// Counting of UTF-16 units in a UTF-8 text, from the nearest place that is known.
#include "host/qt/view/TextOffsets.h"

#include "host/Text.h"

#include <Qsci/qsciscintillabase.h>

#include <algorithm>

namespace {

using Base = QsciScintillaBase;

constexpr long Chunk = 1 << 16; // bytes

// The units that a byte of UTF-8 begins: a character beyond 0xFFFF has two.
int UnitsAt(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (byte & 0xC0) == 0x80 ? 0 : byte >= 0xF0 ? 2 : 1;
}

}

bool TextOffsets::IsUtf8() const { return view_.SendScintilla(Base::SCI_GETCODEPAGE) == Base::SC_CP_UTF8; }

QByteArray TextOffsets::Bytes(long from, long to) const {
    QByteArray bytes(static_cast<int>(to - from) + 1, '\0');
    view_.SendScintilla(Base::SCI_GETTEXTRANGE, from, to, bytes.data());
    bytes.chop(1);
    return bytes;
}

QString TextOffsets::Text(long from, long to) const {
    if (to <= from) return {};
    const QByteArray bytes = Bytes(from, to);
    if (IsUtf8()) return QString::fromUtf8(bytes);
    QString text;
    text.reserve(bytes.size());
    for (const char c : bytes) text += QChar(CharacterOf(static_cast<unsigned char>(c)));
    return text;
}

int TextOffsets::OffsetOf(long position) {
    if (!IsUtf8()) return static_cast<int>(position);
    const long length = view_.SendScintilla(Base::SCI_GETLENGTH);
    if (position_ > length) Forget();
    const long from = std::min(position, position_), to = std::max(position, position_);
    int units = 0;
    for (long at = from; at < to; at += Chunk)
        for (const char c : Bytes(at, std::min(at + Chunk, to))) units += UnitsAt(c);
    offset_ += position < position_ ? -units : units;
    position_ = position;
    return offset_;
}

// From a position by a number of units, forwards or backwards, to the beginning of a character.
long TextOffsets::Walk(long position, long units) const {
    const long length = view_.SendScintilla(Base::SCI_GETLENGTH);
    while (units > 0 && position < length) {
        const QByteArray bytes = Bytes(position, std::min(position + Chunk, length));
        for (const char c : bytes) {
            if (UnitsAt(c) > 0 && units <= 0) return position;
            units -= UnitsAt(c);
            ++position;
        }
    }
    while (units < 0 && position > 0) {
        const QByteArray bytes = Bytes(std::max(0L, position - Chunk), position);
        for (auto at = bytes.size(); at-- > 0 && units < 0;) {
            units += UnitsAt(bytes[at]);
            --position;
        }
    }
    // The last character went by with its first byte.
    while (position < length && UnitsAt(Bytes(position, position + 1)[0]) == 0) ++position;
    return position;
}

long TextOffsets::PositionOf(int offset) {
    const long length = view_.SendScintilla(Base::SCI_GETLENGTH);
    if (!IsUtf8()) return std::clamp<long>(offset, 0, length);
    if (position_ > length) Forget();
    return Walk(position_, offset - offset_);
}

int TextOffsets::Count() {
    const long length = view_.SendScintilla(Base::SCI_GETLENGTH);
    if (!IsUtf8()) return static_cast<int>(length);
    if (!count_) {
        const long position = position_;
        const int offset = offset_;
        count_ = OffsetOf(length);
        position_ = position;
        offset_ = offset;
    }
    return *count_;
}

void TextOffsets::Forget() {
    position_ = 0;
    offset_ = 0;
    count_.reset();
}
