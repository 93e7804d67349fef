// Paths: the program directory, and the conversion between the form on disk (/) and the form in project files
// and keys (\).
#pragma once

#include <string>
#include <string_view>

// The program's name, in titles and as the application name of the settings store.
inline constexpr std::string_view ProgramName = "Zolto";
// Major, minor and revision, separated by points.
inline constexpr std::string_view ProgramVersion = ZOLTO_VERSION;

// The program directory without a separator at its end. Written by SetAppDir alone.
const std::string& AppDir();
void SetAppDir(std::string directory);

// A path below AppDir, given in either form, e.g. AppPath("Conf\\hotcodes.dat"). The result has the letter
// case of an existing file.
std::string AppPath(std::string_view below);

// The program directory: $ZOLTO_HOME; else the executable's folder, if it is writable and holds Conf; else
// $XDG_DATA_HOME/zolto.
std::string ChooseAppDir(const std::string& executableFolder);

std::string ToDisk(std::string_view dataPath); // every backslash becomes a slash
std::string ToData(std::string_view diskPath); // every slash becomes a backslash

// Replaces each pair of slashes by one slash.
std::string CollapseSeparators(std::string_view path);

// The name after the last slash; the whole text if there is none.
std::string GetFileName(std::string_view path);

// The folder with its trailing slash; empty if there is none.
std::string GetFolder(std::string_view path);

// The extension with its dot, in upper case; empty if there is none.
std::string GetExtension(std::string_view path);

// The name without its folder and without its extension.
std::string GetBaseName(std::string_view path);
