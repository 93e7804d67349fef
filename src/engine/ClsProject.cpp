// A project starts with the scope of the main program.
#include "engine/ClsProject.h"

#include "engine/DocumentRecord.h"
#include "engine/EngineCalls.h"
#include "engine/ParserState.h"
#include "host/ErrorLog.h"

CollectionTools<ClsProject> gProjects(KeysAre::Paths);
std::shared_ptr<ClsProject> gCurrentProject;
DocumentRecord* gActiveDoc = nullptr;
EngineCalls gEngineCalls;

ClsProject::ClsProject() {
    auto mainProgram = std::make_shared<ClsFunkcija>();
    mainProgram->Ime = MainProgram;
    MainFunLocals = mainProgram->Locals;
    MainFunLocals->IgnoreCase = true;
    Funkcii.Add(MainProgram, mainProgram);
    FunctionsDirty = true;
    SetLocals(MainFunLocals);
}

bool DocumentActive() { return gActiveDoc != nullptr && gActiveDoc->SciEdi_WndData != 0; }

void UpdateVarFileNames(const std::string& oldName, const std::string& newName) {
    Guarded("UpdateVarFileNames", "Mod_Funkcii", [&] {
        ClsProject& project = *gCurrentProject;
        const auto follow = [&](clsHash& table) {
            table.ForEach([&](Symbol& symbol) {
                if (symbol.File == oldName) symbol.File = newName;
            });
        };
        for (clsHash* table : {&project.Funkcii, &project.Globals, &project.Types, &project.Arrays,
                               &project.Labels, &project.Includes, &project.Constants})
            follow(*table);
        project.Funkcii.ForEach([&](Symbol& symbol) { follow(*static_cast<ClsFunkcija&>(symbol).Locals); });
        project.Types.ForEach([&](Symbol& symbol) { follow(*static_cast<ClsType&>(symbol).Fields); });
    });
}
