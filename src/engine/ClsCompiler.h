// A registered compiler and the vocabulary it brings: keywords and commands by first letter.
#pragma once

#include "engine/CollectionTools.h"
#include "engine/Keywords.h"

#include <memory>
#include <string>

class ClsCompiler {
public:
    std::string Name;
    std::string Path; // its root directory, as written in compilers.dat
    std::string HelpPath;
    bool RealConsole = false;
    bool KeywordsLoaded = false;
    bool Refused = false; // the last attempt to load its keywords failed; it is not repeated by itself

    // The root directory on disk: a relative Path is taken from AppDir.
    std::string Folder() const;

    // The dictionary for a first-character code from 60 to 127, made on demand; failure 9 outside.
    KeywordDictionary& bbFunkcija(int code);
    void bbFunkcija(int code, std::shared_ptr<ClsBBFunkcija> keyword);

    // Reads Conf\<Name>.lng. False, after a message or a report, when it did not go through; the
    // dictionaries stay as far as they got.
    bool LoadKeywords();
    // Makes this the current vocabulary, loading it if needed. Writes KeywordTable; a failed load leaves it
    // unchanged, unless it is empty.
    bool SetDefaultKeywords();

private:
    Vocabulary dictionaries_;
};

// The registry and what of it is active. Written by LoadCompilers, SetActiveCompiler and the preferences.
extern CollectionTools<ClsCompiler> gCompilers;
extern std::shared_ptr<ClsCompiler> gActiveCompiler;
extern std::string DefaultCompiler;
