// Paths: AppDir, and the one pair of functions that converts between the form on disk (/) and the
// form that project files and keys keep (\).
#pragma once

#include <string>
#include <string_view>

// The program's name, in titles and as the application name of the settings store.
inline constexpr std::string_view ProgramName = "Zolto";
// Major, minor and revision, divided by points.
inline constexpr std::string_view ProgramVersion = ZOLTO_VERSION;

// The program directory, without a separator at its end. Written by SetAppDir alone.
const std::string& AppDir();
void SetAppDir(std::string directory);

// A path below AppDir from its parts in either form, e.g. AppPath("Conf\\hotcodes.dat"). A name that is
// there with other letter case is answered as it is on disk.
std::string AppPath(std::string_view below);

// The directory that the program runs from: $ZOLTO_HOME; else the executable's folder where it holds
// Conf and can be written; else $XDG_DATA_HOME/zolto.
std::string ChooseAppDir(const std::string& executableFolder);

std::string ToDisk(std::string_view dataPath); // every backslash becomes a slash
std::string ToData(std::string_view diskPath); // every slash becomes a backslash

// Replaces each doubled separator of a path on disk by one.
std::string CollapseSeparators(std::string_view path);

// The name behind the last separator; the whole text where there is none.
std::string GetFileName(std::string_view path);

// The folder with its trailing separator; empty where there is none.
std::string GetFolder(std::string_view path);

// The extension from the last dot of the name, dot included, in upper case; empty where there is none.
std::string GetExtension(std::string_view path);

// The name without its folder and without its extension.
std::string GetBaseName(std::string_view path);
