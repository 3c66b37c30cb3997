#include "ShowCommand.h"

#include "host/arguments/OptionParser.h"
#include "host/program/InstallLayout.h"
#include "host/terminal/ExitStatus.h"
#include "host/terminal/JsonLine.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/StandardOutput.h"
#include "host/terminal/TerminalText.h"
#include "host/terminal/UsageError.h"
#include "host/view/OpeningView.h"
#include "host/workers/StopSignal.h"
#include "host/workers/WorkerPool.h"

#include "pdflibrary/ErrorCodes.h"
#include "pdflibrary/FileNameCodec.h"
#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"

#include <unistd.h>

#include <algorithm>
#include <stdexcept>

namespace host {

namespace {

// The first character of a worker's answer.
const char readable = 'r';
const char unreadable = 'u';

/// Reads one document after the other, in a process of its own: the documents may be anybody's.
class ShowWorker : public Worker
{
public:
    ShowWorker(const std::vector<std::string>& files, const std::string& password, bool json)
        : m_files(files), m_password(password), m_json(json),
          m_library(installlayout::toLibraryPath(installlayout::libraryFile()))
    {
        if (!m_library.LibraryLoaded())
            throw std::runtime_error("the PDF library cannot be used: " + installlayout::libraryFile());
    }

    Answer answer(std::size_t piece, WorkerSlot&) override
    {
        const std::string& file = m_files[piece];
        if (m_library.LoadFromFile(engine::wideFromFileName(file), engine::wideFromFileName(m_password)) == 0)
            return {unreadable + std::string(engine::errorText(m_library.LastErrorCode()))};
        const OpeningView view = OpeningView::read(m_library);
        m_library.RemoveDocument(m_library.SelectedDocument());
        return {readable + (m_json ? toJson(file, view) : forTerminal(file) + "\n" + view.inWords())};
    }

private:
    static std::string toJson(const std::string& file, const OpeningView& view)
    {
        QJsonObject object = view.toJson();
        insertName(object, "file", file);
        return jsonLine(object);
    }

    const std::vector<std::string>& m_files;
    const std::string& m_password;
    bool m_json;
    TelvarPDFLibraryCPDylibCPP1311 m_library;
};

} // namespace

void ShowCommand::takeOptions(OptionParser& parser)
{
    parser.takeFlag("json", m_json);
    parser.takeValue("password", [this](const std::string& value) { m_password = value; });
}

int ShowCommand::work(const std::vector<std::string>& files)
{
    if (files.empty())
        throw UsageError("which documents?");
    if (std::find(files.begin(), files.end(), "") != files.end())
        throw UsageError("a document's name is empty");

    bool failed = false;
    StopSignal stop;
    WorkerPool pool({}, [&] { return std::make_unique<ShowWorker>(files, m_password, m_json); });
    pool.run(
        files.size(),
        [&](std::size_t index, const WorkOutcome& outcome) {
            const bool good = outcome.kind == WorkOutcome::Answered && outcome.text[0] == readable;
            const std::string text =
                outcome.kind == WorkOutcome::Answered ? outcome.text.substr(1) : outcome.text;
            if (good)
                return printResult(text);
            complain(files[index] + ": " + text);
            failed = true;
        },
        stop);
    return stop.count() > 0 ? exitstatus::stopped : failed ? exitstatus::someFailed : exitstatus::done;
}

} // namespace host
