#pragma once

#include "host/cli/UndoCommand.h"
#include "support/documents/PdfBuilder.h"
#include "support/folders/FileStatus.h"
#include "support/folders/WorkFolder.h"
#include "support/program/CommandRun.h"
#include "support/program/ProgramRun.h"

#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>

#include <fstream>
#include <map>
#include <optional>

/// All of a file that undoing has to bring back.
struct Snapshot
{
    std::string bytes;
    mode_t mode;
    std::int64_t seconds;
    long nanoseconds;
    bool operator==(const Snapshot&) const = default;
};

/// By the names of the files.
using Snapshots = std::map<std::string, Snapshot>;

/// What tests of "quintar undo" share: a folder of their own, which is the current one, and in it the documents
/// "in", of which "in/a.pdf" is there from the beginning. Tests derive from it besides QObject.
class UndoFixture
{
protected:
    void begin()
    {
        m_folder.emplace();
        WorkFolder::put("in/a.pdf", PdfBuilder::simple());
    }
    void end() { m_folder.reset(); }

    QString path(const std::string& name) const { return m_folder->path(name); }

    static Snapshot snapshotOf(const std::string& name)
    {
        const struct stat status = statusOf(name);
        return {WorkFolder::contentOf(name), status.st_mode, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
    }

    /// Of all files in "in".
    static Snapshots snapshots()
    {
        Snapshots all;
        for (const auto& entry : std::filesystem::recursive_directory_iterator("in"))
            if (entry.is_regular_file())
                all.emplace(entry.path().string(), snapshotOf(entry.path().string()));
        return all;
    }

    /// Writes other bytes, and gives the file its old time again.
    static void overwrite(const std::string& name, std::int64_t at, const std::string& bytes)
    {
        const struct stat status = statusOf(name);
        std::fstream(name, std::ios::binary | std::ios::in | std::ios::out).seekp(at) << bytes;
        const struct timespec times[] = {status.st_atim, status.st_mtim};
        QCOMPARE(utimensat(AT_FDCWD, name.c_str(), times, 0), 0);
    }

    static QStringList runWords(const QString& mode, const QString& report,
                                const QString& target = "--in-place")
    {
        return QStringList{"run", "--report", report, "--signed", "append", "in"} + target.split(' ') +
               QStringList{"--set", "LayoutAndMagnCheckBox=true",
                           "--set", "PageLayoutComboBox=One Column",
                           "--set", mode == "thumbs" ? "NavigationTabComboBox=2" : "NavigationTabComboBox=1"};
    }

    /// Changes all documents in "in", in place.
    static ProgramRun change(const QString& mode, const QString& report, const QStringList& more = {})
    {
        return ProgramRun(PROGRAM_FILE, runWords(mode, report) + more);
    }

    static CommandRun undo(const QStringList& words) { return CommandRun(host::UndoCommand(), words); }

    static QByteArray reportText(const char* name)
    {
        return QByteArray::fromStdString(WorkFolder::contentOf(name));
    }

private:
    std::optional<WorkFolder> m_folder;
};
