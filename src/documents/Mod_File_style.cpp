// The files of colour styles: arrays of little-endian numbers without padding.
#include "documents/Mod_File.h"

#include "documents/OptionTable.h"
#include "editor/StyleTable.h"
#include "engine/OptionsEdit.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Failure.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/Text.h"

namespace Mod_File {

namespace {

constexpr int FormatVersion = 1;
constexpr std::size_t LongestDescription = 255;
constexpr int FailureEndOfFile = 62;

class Reader {
public:
    explicit Reader(std::string_view bytes) : rest_(bytes) {}

    std::string_view TakeBytes(std::size_t count) {
        if (rest_.size() < count) throw Failure(FailureEndOfFile, "Input past end of file");
        const std::string_view taken = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return taken;
    }
    template <class Number>
    Number TakeNumber() {
        const std::string_view bytes = TakeBytes(sizeof(Number));
        std::uint32_t value = 0;
        for (std::size_t i = bytes.size(); i-- > 0;) value = value << 8 | static_cast<std::uint8_t>(bytes[i]);
        return static_cast<Number>(value);
    }
    template <class Array>
    void Fill(Array& array) {
        for (auto& element : array) element = TakeNumber<typename Array::value_type>();
    }
    std::string_view Rest() const { return rest_; }

private:
    std::string_view rest_;
};

template <class Number>
void AppendNumber(std::string& bytes, Number number) {
    for (std::size_t i = 0; i < sizeof(Number); ++i)
        bytes += static_cast<char>(static_cast<std::uint32_t>(number) >> (8 * i) & 0xFF);
}

template <class Array>
void AppendAll(std::string& bytes, const Array& array) {
    for (const auto& element : array) AppendNumber(bytes, element);
}

std::string StylePath(const std::string& name) { return AppPath("Styles\\" + name + ".style"); }

void ShowMessage(std::string text, MessageIcon icon) { gHost.dialogs->Show({std::move(text), icon}); }

// Reads a whole file before the table is changed, so that a file that ends too early changes nothing. Returns
// the version of the file.
int ReadTable(const std::string& bytes) {
    Reader reader(bytes);
    const int version = reader.TakeNumber<std::int16_t>();
    auto fore = StyleTable::ForeColor;
    auto back = StyleTable::BackColor;
    auto fonts = StyleTable::FontName;
    auto sizes = StyleTable::FontSize;
    auto bold = StyleTable::Bold;
    auto italic = StyleTable::Italic;
    auto underline = StyleTable::Underline;
    auto other = StyleTable::OtherColor;
    reader.Fill(fore);
    reader.Fill(back);
    for (std::string& font : fonts) font = std::string(reader.TakeBytes(reader.TakeNumber<std::uint16_t>()));
    reader.Fill(sizes);
    reader.Fill(bold);
    reader.Fill(italic);
    reader.Fill(underline);
    reader.Fill(other);
    StyleTable::ForeColor = fore;
    StyleTable::BackColor = back;
    StyleTable::FontName = fonts;
    StyleTable::FontSize = sizes;
    StyleTable::Bold = bold;
    StyleTable::Italic = italic;
    StyleTable::Underline = underline;
    StyleTable::OtherColor = other;
    if (version == FormatVersion) {
        const std::string_view tail = reader.Rest().substr(0, LongestDescription);
        StyleTable::Description = std::string(tail.substr(0, tail.find('\0')));
    }
    return version;
}

} // namespace

std::string LoadStyle(const std::string& name) {
    return Guarded("LoadStyle", "Mod_File", std::string(), [&]() -> std::string {
        std::string loaded = name;
        if (gHost.files->Kind(StylePath(loaded)) != PathKind::File) {
            ShowMessage("Specified Style Not Found:\r\n" + StylePath(loaded) +
                            "\r\nPress Ok to load the Default Style...",
                        MessageIcon::Exclamation);
            if (EqualNoCase(loaded, OptionsEdit::SciStyleName)) {
                OptionsEdit::SciStyleName = "Default";
                WriteOption(OptionOf(OptionsEdit::SciStyleName));
            }
            loaded = "Default";
            if (gHost.files->Kind(StylePath(loaded)) != PathKind::File) {
                ShowMessage("Default Style Not Found !", MessageIcon::Critical);
                return {};
            }
        }
        if (ReadTable(gHost.files->Read(StylePath(loaded))) == FormatVersion) return loaded;
        ShowMessage("Incorrect Style Version !", MessageIcon::Critical);
        return {};
    });
}

void SaveStyle(const std::string& name, const std::string& description) {
    std::string bytes;
    AppendNumber<std::int16_t>(bytes, FormatVersion);
    AppendAll(bytes, StyleTable::ForeColor);
    AppendAll(bytes, StyleTable::BackColor);
    for (const std::string& font : StyleTable::FontName) {
        AppendNumber(bytes, static_cast<std::uint16_t>(font.size()));
        bytes += font;
    }
    AppendAll(bytes, StyleTable::FontSize);
    AppendAll(bytes, StyleTable::Bold);
    AppendAll(bytes, StyleTable::Italic);
    AppendAll(bytes, StyleTable::Underline);
    AppendAll(bytes, StyleTable::OtherColor);
    bytes += description + std::string(1, '\0') + std::string(50, ' ');
    gHost.files->Write(StylePath(name), bytes);
    StyleTable::Description = description;
}

} // namespace Mod_File
