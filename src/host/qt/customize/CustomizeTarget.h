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
    // Creates an empty tool bar and returns its unique name.
    virtual std::string AddBar(const QString& caption) = 0;
    virtual void RemoveBar(const std::string& name) = 0;
    // Returns the command's entry in the factory's arrangement; null if there is none.
    virtual const LayoutCommand* Factory(const std::string& command) const = 0;
    // Puts everything back as it was when customising began.
    virtual void Revert() = 0;
    // The tool bar or menu bar that is shown for a place; null for others.
    virtual QWidget* WidgetOf(const std::string& place) = 0;
};

// The kind of data that a dragged command is.
inline constexpr const char* CommandMime = "application/x-dock-command";
