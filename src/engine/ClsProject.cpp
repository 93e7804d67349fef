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

void ClsProject::ForEachTable(const std::function<void(clsHash&)>& visit) {
    for (clsHash* table : {&Funkcii, &Globals, &Types, &Arrays, &Labels, &Includes, &Constants})
        visit(*table);
    Funkcii.ForEach([&](Symbol& symbol) { visit(*static_cast<ClsFunkcija&>(symbol).Locals); });
    Types.ForEach([&](Symbol& symbol) { visit(*static_cast<ClsType&>(symbol).Fields); });
}

void ClsProject::MarkAllDirty() {
    GlobalsDirty = ConstantsDirty = TypesDirty = FunctionsDirty = ArraysDirty = LabelsDirty = FieldsDirty =
        LocalsDirty = IncludesDirty = true;
}

bool DocumentActive() { return gActiveDoc != nullptr && gActiveDoc->SciEdi_WndData != 0; }

void UpdateVarFileNames(const std::string& oldName, const std::string& newName) {
    Guarded("UpdateVarFileNames", "Mod_Funkcii", [&] {
        gCurrentProject->ForEachTable([&](clsHash& table) {
            table.ForEach([&](Symbol& symbol) {
                if (symbol.File == oldName) symbol.File = newName;
            });
        });
    });
}
