// The open documents in the order of their windows.
#include "editor/OpenDocuments.h"

#include "engine/ClsProject.h"
#include "host/Guards.h"
#include "host/Host.h"

#include <algorithm>

std::vector<frmDoc*> DocumentsFrom(bool ofProject) {
    std::vector<frmDoc*> documents;
    for (const DocumentWindow* window : gHost.dock->DocumentWindows()) {
        frmDoc* document = DocumentIn(window);
        if (document == nullptr) continue;
        if (ofProject && !(gCurrentProject && gCurrentProject->Sources.Exist_Item(document))) continue;
        documents.push_back(document);
    }
    const auto active = std::find(documents.begin(), documents.end(), gActiveDoc);
    if (active == documents.end()) return {};
    std::rotate(documents.begin(), active, documents.end());
    return documents;
}

void BringToFront(frmDoc& document) {
    if (gActiveDoc == &document) return;
    const StillWindow still;
    if (DocumentWindow* window = gHost.dock->FindDocumentWindow(document.m_strDocumentWindowID))
        window->Activate();
    MakeActive(&document);
}
