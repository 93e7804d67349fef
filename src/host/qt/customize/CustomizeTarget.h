// What the window for customising needs of the frame.
#pragma once

#include "host/qt/commands/CommandTable.h"

// A bar or a pop-up: what holds commands in an order.
struct CommandPlace {
    std::string name;
    QString caption;
    BarKind kind = BarKind::Tool;
    bool popup = false;  // a menu, else a bar
    bool ownBar = false; // made by the user, who can also delete it
};

class CustomizeTarget {
public:
    virtual ~CustomizeTarget() = default;

    virtual CommandTable& Table() = 0;
    virtual std::vector<CommandPlace> Places() = 0;
    // Null for an unknown place.
    virtual LayoutEntries* EntriesOf(const std::string& place) = 0;
    // Shows the entries of a place after they changed.
    virtual void EntriesChanged(const std::string& place) = 0;
    // Makes an empty tool bar and answers its name, which is unique.
    virtual std::string AddBar(const QString& caption) = 0;
    virtual void RemoveBar(const std::string& name) = 0;
    // What the factory's arrangement says of a command; null where it doesn't know it.
    virtual const LayoutCommand* Factory(const std::string& command) const = 0;
    // Puts everything back as it was when customising began.
    virtual void Revert() = 0;
    // The tool bar or menu bar that is shown for a place; null for others.
    virtual QWidget* WidgetOf(const std::string& place) = 0;
};

// The kind of data that a dragged command is.
inline constexpr const char* CommandMime = "application/x-dock-command";
