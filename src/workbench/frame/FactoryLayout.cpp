// The default arrangement of the main window.
#include "workbench/frame/FactoryLayout.h"

#include "host/Dialogs.h"
#include "host/DockStudio.h"
#include "host/Failure.h"
#include "host/Host.h"
#include "host/Paths.h"

void LoadFactoryLayout() {
    try {
        gHost.dock->LoadLayout(AppPath("Layout.mp"));
    } catch (const Failure& failure) {
        gHost.dock->LoadFactoryText(FactoryLayoutText());
        gHost.dialogs->Show(
            {.text = "The default layout could not be read, so the built-in one is used.\n\n" +
                     failure.description,
             .icon = MessageIcon::Exclamation});
    }
}
