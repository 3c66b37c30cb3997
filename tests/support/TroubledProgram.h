#pragma once

#include <QString>

#include <filesystem>

/// A copy of the program beside a library that gets into trouble when a document's name says so
/// (tests/troubledengine). It lies in a folder below the one given, which must not have one yet.
inline QString troubledProgramIn(const QString& folder)
{
    namespace fs = std::filesystem;
    const fs::path installed = fs::path(folder.toStdString()) / "installed";
    fs::create_directories(installed / "bin");
    fs::create_directories(installed / "lib/quintar");
    fs::copy_file(PROGRAM_FILE, installed / "bin/quintar");
    fs::create_symlink(PLUGIN_FILE, installed / "lib/quintar/EditInitialView.so");
    fs::create_symlink(TROUBLED_ENGINE_FILE, installed / "lib/quintar/TelvarPDFLibraryCPDylib1311.dylib");
    return QString::fromStdString((installed / "bin/quintar").string());
}
