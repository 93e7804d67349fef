// Arrangements as JSON. A file is checked completely before any of it is used, so that a damaged file cannot
// leave half a window.
#include "host/qt/layout/Layout.h"

#include "host/Failure.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <utility>

namespace {

constexpr const char* Format = "zolto-layout";
constexpr int Version = 1;

constexpr std::pair<const char*, CommandKind> KindNames[] = {
    {"item", CommandKind::Item},     {"popup", CommandKind::Popup},
    {"combo", CommandKind::Combo},   {"editcombo", CommandKind::EditCombo},
    {"list", CommandKind::List},     {"windows", CommandKind::Windows},
    {"status", CommandKind::Status}, {"progress", CommandKind::Progress},
    {"clock", CommandKind::Clock},
};
constexpr std::pair<const char*, BarKind> BarNames[] = {
    {"menu", BarKind::Menu}, {"tool", BarKind::Tool}, {"status", BarKind::Status}};

[[noreturn]] void Refuse(const QString& text) {
    throw Failure(FailureFileAccess, "The layout file is damaged: " + text.toStdString());
}

std::string Text(const QJsonObject& object, const char* key) {
    return object.value(QLatin1String(key)).toString().toStdString();
}

template <class Kind, std::size_t Count>
Kind Named(const std::pair<const char*, Kind> (&names)[Count], const QJsonObject& object, Kind byDefault) {
    const QJsonValue value = object.value(QLatin1String("kind"));
    if (value.isUndefined()) return byDefault;
    for (const auto& [name, kind] : names)
        if (value.toString() == QLatin1String(name)) return kind;
    Refuse("unknown kind \"" + value.toString() + '"');
}

template <class Kind, std::size_t Count>
QString NameOf(const std::pair<const char*, Kind> (&names)[Count], Kind kind) {
    for (const auto& [name, value] : names)
        if (value == kind) return name;
    return {};
}

QString FromUtf8(const std::string& text) { return QString::fromStdString(text); }

// A "-" before a name begins a group.
LayoutEntries ReadEntries(const QJsonValue& value) {
    LayoutEntries entries;
    bool beginGroup = false;
    for (const auto& item : value.toArray()) {
        const std::string name = item.toString().toStdString();
        if (name.empty()) Refuse("an entry without a name");
        if (name == "-") {
            beginGroup = true;
            continue;
        }
        entries.push_back({name, std::exchange(beginGroup, false)});
    }
    return entries;
}

QJsonArray EntriesToJson(const LayoutEntries& entries) {
    QJsonArray array;
    for (const LayoutEntry& entry : entries) {
        if (entry.beginGroup) array.append("-");
        array.append(FromUtf8(entry.command));
    }
    return array;
}

std::vector<std::string> ReadTexts(const QJsonValue& value) {
    std::vector<std::string> texts;
    for (const auto& item : value.toArray()) texts.push_back(item.toString().toStdString());
    return texts;
}

QJsonArray TextsToJson(const std::vector<std::string>& texts) {
    QJsonArray array;
    for (const std::string& text : texts) array.append(FromUtf8(text));
    return array;
}

LayoutCommand ReadCommand(const QJsonObject& object) {
    LayoutCommand command{.name = Text(object, "name")};
    if (command.name.empty()) Refuse("a command without a name");
    command.kind = Named(KindNames, object, CommandKind::Item);
    command.caption = Text(object, "caption");
    command.category = Text(object, "category");
    command.icon = Text(object, "icon");
    command.tip = Text(object, "tip");
    command.shortcuts = ReadTexts(object.value(QLatin1String("shortcuts")));
    command.keysFrom = Text(object, "keysFrom");
    if (const QJsonValue checked = object.value(QLatin1String("checked")); checked.isBool())
        command.checked = checked.toBool();
    command.visible = object.value(QLatin1String("visible")).toBool(true);
    command.width = object.value(QLatin1String("width")).toInt();
    command.entries = ReadEntries(object.value(QLatin1String("entries")));
    return command;
}

QJsonObject CommandToJson(const LayoutCommand& command) {
    QJsonObject object{{"name", FromUtf8(command.name)}, {"caption", FromUtf8(command.caption)}};
    if (command.kind != CommandKind::Item) object["kind"] = NameOf(KindNames, command.kind);
    if (!command.category.empty()) object["category"] = FromUtf8(command.category);
    if (!command.icon.empty()) object["icon"] = FromUtf8(command.icon);
    if (!command.tip.empty()) object["tip"] = FromUtf8(command.tip);
    if (!command.shortcuts.empty()) object["shortcuts"] = TextsToJson(command.shortcuts);
    if (!command.keysFrom.empty()) object["keysFrom"] = FromUtf8(command.keysFrom);
    if (command.checked) object["checked"] = *command.checked;
    if (!command.visible) object["visible"] = false;
    if (command.width != 0) object["width"] = command.width;
    if (!command.entries.empty()) object["entries"] = EntriesToJson(command.entries);
    return object;
}

LayoutBar ReadBar(const QJsonObject& object) {
    LayoutBar bar{.name = Text(object, "name")};
    if (bar.name.empty()) Refuse("a bar without a name");
    bar.kind = Named(BarNames, object, BarKind::Tool);
    bar.caption = Text(object, "caption");
    bar.visible = object.value(QLatin1String("visible")).toBool(true);
    bar.entries = ReadEntries(object.value(QLatin1String("entries")));
    return bar;
}

LayoutPane ReadPane(const QJsonObject& object) {
    LayoutPane pane{.name = Text(object, "name")};
    if (pane.name.empty()) Refuse("a pane without a name");
    pane.caption = Text(object, "caption");
    pane.icon = Text(object, "icon");
    pane.area = Text(object, "area");
    pane.visible = object.value(QLatin1String("visible")).toBool(true);
    pane.tabbedWith = Text(object, "tabbedWith");
    pane.autoHidden = object.value(QLatin1String("autoHidden")).toBool();
    pane.extent = object.value(QLatin1String("extent")).toInt();
    return pane;
}

// Every name once, and nothing in a bar that isn't a command.
void Check(const Layout& layout) {
    QSet<QString> names;
    const auto once = [](QSet<QString>& seen, const std::string& name, const char* what) {
        if (seen.contains(FromUtf8(name)))
            Refuse(QString(what) + " \"" + FromUtf8(name) + "\" stands there twice");
        seen.insert(FromUtf8(name));
    };
    for (const LayoutCommand& command : layout.commands) once(names, command.name, "command");
    const auto known = [&](const LayoutEntries& entries) {
        for (const LayoutEntry& entry : entries)
            if (!names.contains(FromUtf8(entry.command)))
                Refuse("unknown command \"" + FromUtf8(entry.command) + '"');
    };
    for (const LayoutCommand& command : layout.commands) known(command.entries);
    QSet<QString> bars, panes;
    for (const LayoutBar& bar : layout.bars) {
        once(bars, bar.name, "bar");
        known(bar.entries);
    }
    for (const LayoutPane& pane : layout.panes) once(panes, pane.name, "pane");
    if (layout.commands.empty()) Refuse("it holds no commands");
}

}

Layout ParseLayout(std::string_view bytes) {
    QJsonParseError error;
    const auto document =
        QJsonDocument::fromJson(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())), &error);
    if (document.isNull()) Refuse(error.errorString() + " at byte " + QString::number(error.offset));
    const QJsonObject root = document.object();
    if (Text(root, "format") != Format) Refuse("it is no layout");
    if (root.value(QLatin1String("version")).toInt() != Version) Refuse("its version is unknown");
    Layout layout;
    for (const auto& item : root.value(QLatin1String("commands")).toArray())
        layout.commands.push_back(ReadCommand(item.toObject()));
    for (const auto& item : root.value(QLatin1String("bars")).toArray())
        layout.bars.push_back(ReadBar(item.toObject()));
    for (const auto& item : root.value(QLatin1String("panes")).toArray())
        layout.panes.push_back(ReadPane(item.toObject()));
    layout.start = ReadTexts(root.value(QLatin1String("start")));
    layout.offered = ReadTexts(root.value(QLatin1String("offered")));
    layout.documents = ReadDocuments(root.value(QLatin1String("documents")).toObject());
    layout.windowState = Text(root, "windowState");
    Check(layout);
    return layout;
}

std::string WriteLayout(const Layout& layout) {
    QJsonArray commands, bars, panes;
    for (const LayoutCommand& command : layout.commands) commands.append(CommandToJson(command));
    for (const LayoutBar& bar : layout.bars)
        bars.append(QJsonObject{{"name", FromUtf8(bar.name)},
                                {"kind", NameOf(BarNames, bar.kind)},
                                {"caption", FromUtf8(bar.caption)},
                                {"visible", bar.visible},
                                {"entries", EntriesToJson(bar.entries)}});
    for (const LayoutPane& pane : layout.panes)
        panes.append(QJsonObject{{"name", FromUtf8(pane.name)},
                                 {"caption", FromUtf8(pane.caption)},
                                 {"icon", FromUtf8(pane.icon)},
                                 {"area", FromUtf8(pane.area)},
                                 {"visible", pane.visible},
                                 {"tabbedWith", FromUtf8(pane.tabbedWith)},
                                 {"autoHidden", pane.autoHidden},
                                 {"extent", pane.extent}});
    const QJsonObject root{{"format", Format},
                           {"version", Version},
                           {"commands", commands},
                           {"bars", bars},
                           {"panes", panes},
                           {"start", TextsToJson(layout.start)},
                           {"offered", TextsToJson(layout.offered)},
                           {"documents", DocumentsToJson(layout.documents)},
                           {"windowState", FromUtf8(layout.windowState)}};
    return QJsonDocument(root).toJson(QJsonDocument::Indented).toStdString();
}
