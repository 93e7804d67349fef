// The places of the document windows: the part of an arrangement that divides the document area.
#pragma once

#include <string>
#include <vector>

class QJsonObject;

struct LayoutWindow {
    std::string key; // bytes
    std::string caption = {};
    bool operator==(const LayoutWindow&) const = default;
};

// A group of tabs, or a division of the area into several parts.
struct LayoutArea {
    bool rows = false;           // the parts are one above the other, else side by side
    std::vector<int> sizes = {}; // pixels, of the parts
    std::vector<LayoutArea> parts = {};
    std::vector<LayoutWindow> windows = {}; // of a group
    int front = 0;                          // index of the visible window of its group
    bool operator==(const LayoutArea&) const = default;
};

struct LayoutDocuments {
    LayoutArea area;
    std::string active = {}; // key; empty if no window is active
    bool operator==(const LayoutDocuments&) const = default;
};

// Keys and captions are any bytes; in the file they are percent-encoded, so that they come back as they were.
QJsonObject DocumentsToJson(const LayoutDocuments& documents);
// What cannot be understood is left out.
LayoutDocuments ReadDocuments(const QJsonObject& object);

// The same as one line without a double quote, for a file whose values cannot hold one.
std::string DocumentsToLine(const LayoutDocuments& documents);
// Throws a Failure for a text that is no such line.
LayoutDocuments DocumentsFromLine(const std::string& line);
