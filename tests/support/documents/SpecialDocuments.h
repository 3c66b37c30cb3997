#pragma once

#include "support/documents/PdfBuilder.h"
#include "support/folders/WorkFolder.h"
#include "support/program/ProgramRun.h"

#include <QTemporaryDir>

/// The document as qpdf encrypts it.
inline std::string encrypted(const std::string& plain, const QStringList& options)
{
    const QTemporaryDir folder;
    const QString in = folder.filePath("in.pdf");
    std::ofstream(in.toStdString(), std::ios::binary) << plain;
    const ProgramRun run("qpdf", QStringList{in} + options + QStringList{"--", folder.filePath("out.pdf")});
    return run.status == 0 ? WorkFolder::contentOf(folder.filePath("out.pdf").toStdString()) : std::string();
}

inline std::string signedDocument(const std::string& catalogEntries = {})
{
    PdfBuilder builder;
    builder.catalog("/AcroForm << /SigFlags 3 /Fields [ 8 0 R ] >> " + catalogEntries).pages(2);
    builder.object(8, "<< /FT /Sig /T (Signature) /V 9 0 R >>");
    builder.object(9, "<< /Type /Sig /Filter /Adobe.PPKLite /ByteRange [ 0 10 20 30 ] /Contents <00> >>");
    return builder.bytes();
}

/// A copy of the program, in a folder that is made, beside a library that crashes, hangs or eats memory when a
/// document's name says so. \returns the program.
inline QString programBesideTrouble(const QString& folder)
{
    namespace fs = std::filesystem;
    const std::string place = folder.toStdString();
    fs::create_directories(place + "/bin");
    fs::create_directories(place + "/lib/quintar");
    fs::copy_file(PROGRAM_FILE, place + "/bin/quintar");
    fs::create_symlink(PLUGIN_FILE, place + "/lib/quintar/EditInitialView.so");
    fs::create_symlink(TROUBLED_ENGINE_FILE, place + "/lib/quintar/TelvarPDFLibraryCPDylib1311.dylib");
    return folder + "/bin/quintar";
}
