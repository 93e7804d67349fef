// The places of the document windows, as JSON.
#include "host/qt/layout/LayoutDocuments.h"

#include "host/Failure.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

namespace {

constexpr int LargestSize = 1 << 16;

QString Encoded(const std::string& bytes) {
    return QString::fromLatin1(QByteArray::fromStdString(bytes).toPercentEncoding("/ {}:\\+()[],;=!#&@*"));
}

std::string Decoded(const QJsonValue& value) {
    return QByteArray::fromPercentEncoding(value.toString().toLatin1()).toStdString();
}

QJsonObject AreaToJson(const LayoutArea& area) {
    if (area.parts.empty()) {
        QJsonArray tabs;
        for (const LayoutWindow& window : area.windows)
            tabs.append(QJsonObject{{"key", Encoded(window.key)}, {"caption", Encoded(window.caption)}});
        return {{"tabs", tabs}, {"front", area.front}};
    }
    QJsonArray parts, sizes;
    for (const LayoutArea& part : area.parts) parts.append(AreaToJson(part));
    for (const int size : area.sizes) sizes.append(size);
    return {{"division", area.rows ? "rows" : "columns"}, {"parts", parts}, {"sizes", sizes}};
}

LayoutArea ReadArea(const QJsonObject& object) {
    LayoutArea area;
    area.rows = object.value(QLatin1String("division")).toString() == QLatin1String("rows");
    for (const auto& part : object.value(QLatin1String("parts")).toArray())
        area.parts.push_back(ReadArea(part.toObject()));
    for (const auto& size : object.value(QLatin1String("sizes")).toArray())
        area.sizes.push_back(std::clamp(size.toInt(), 0, LargestSize));
    if (area.sizes.size() != area.parts.size()) area.sizes.clear();
    for (const auto& item : object.value(QLatin1String("tabs")).toArray()) {
        const QJsonObject tab = item.toObject();
        LayoutWindow window{Decoded(tab.value(QLatin1String("key"))),
                            Decoded(tab.value(QLatin1String("caption")))};
        if (!window.key.empty()) area.windows.push_back(std::move(window));
    }
    area.front = object.value(QLatin1String("front")).toInt();
    return area;
}

}

QJsonObject DocumentsToJson(const LayoutDocuments& documents) {
    return {{"active", Encoded(documents.active)}, {"area", AreaToJson(documents.area)}};
}

LayoutDocuments ReadDocuments(const QJsonObject& object) {
    return {ReadArea(object.value(QLatin1String("area")).toObject()),
            Decoded(object.value(QLatin1String("active")))};
}

std::string DocumentsToLine(const LayoutDocuments& documents) {
    return QJsonDocument(DocumentsToJson(documents))
        .toJson(QJsonDocument::Compact)
        .replace('"', '\'')
        .toStdString();
}

LayoutDocuments DocumentsFromLine(const std::string& line) {
    const auto document = QJsonDocument::fromJson(QByteArray::fromStdString(line).replace('\'', '"'));
    if (!document.isObject()) throw Failure(FailureFileAccess, "The arrangement of the windows is damaged");
    return ReadDocuments(document.object());
}
