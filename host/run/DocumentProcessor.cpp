#include "DocumentProcessor.h"

#include "FileState.h"
#include "host/change/ViewChanger.h"
#include "host/files/FileAttributes.h"
#include "host/files/FileCopy.h"
#include "host/files/FileDescriptor.h"
#include "host/files/SafeOutput.h"
#include "host/program/InstallLayout.h"

#include "pdflibrary/ErrorCodes.h"
#include "pdflibrary/FileNameCodec.h"
#include "shared/CActionInterface.h"

#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <stdexcept>

namespace host {

namespace {

const char* const notRewritten = "neither appended to nor rewritten: ";

bool isCode(int code, engine::ErrorCode wanted)
{
    return code == static_cast<int>(wanted);
}

/// Doubt about what a document holds keeps it from being written anew, too.
std::string whyNotAppended(int code)
{
    const auto errorCode = static_cast<engine::ErrorCode>(code);
    if (!engine::cannotAppend(errorCode))
        return "not saved: " + std::string(engine::errorText(code));
    return std::string(engine::errorText(code)) +
           (engine::isDoubt(errorCode)
                ? "; nothing is appended to it, and for the same reason --rewrite would refuse it"
                : "; --rewrite writes it anew if nothing is lost by that");
}

} // namespace

DocumentProcessor::DocumentProcessor(CActionInterface& action, const std::string& libraryFile,
                                     const ProcessingOptions& options)
    : m_action(action), m_options(options), m_library(installlayout::toLibraryPath(libraryFile))
{
    if (!m_library.LibraryLoaded())
        throw std::runtime_error("the PDF library cannot be used: " + libraryFile);
    bracket(&CActionInterface::PreSequenceProc);
}

DocumentProcessor::~DocumentProcessor()
{
    bracket(&CActionInterface::PostSequenceProc);
}

void DocumentProcessor::bracket(Bracket call)
{
    for (const ActionEntry& entry : m_options.entries) {
        SettingsMap settings = entry.settings;
        WorkProcInfoStruct info{&m_library, &m_errors, {}, &settings};
        (m_action.*call)(&info);
    }
}

DocumentResult DocumentProcessor::process(const DocumentJob& job, const BeforePlacement& beforePlacement)
{
    m_begin = Clock::now();
    m_beforePlacement = &beforePlacement;
    DocumentResult result;
    try {
        result = work(job);
    } catch (const std::bad_alloc&) {
        m_wornOut = true;
        result = DocumentResult::failed(std::string(engine::errorText(int(engine::ErrorCode::OutOfMemory))));
    } catch (const std::exception& error) {
        result = DocumentResult::failed(error.what());
    }
    result.milliseconds = millisecondsTaken();
    return result;
}

std::int64_t DocumentProcessor::millisecondsTaken() const
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - m_begin).count();
}

DocumentResult DocumentProcessor::work(const DocumentJob& job)
{
    if (stat(job.source.c_str(), &m_original) != 0)
        return DocumentResult::failed(systemError(errno));
    if (m_library.LoadFromFile(engine::wideFromFileName(job.source),
                               engine::wideFromFileName(m_options.password)) == 0)
        return libraryFailure();
    const int document = m_library.SelectedDocument();
    m_library.SelectDocument(document);
    DocumentResult result = applyAndSave(job);
    result.certified = m_library.SecurityInfo(engine::Certification) != 0;
    m_library.RemoveDocument(document);
    if (result.status != Status::Failed && !m_options.dryRun)
        tellStates(result, stateOf(job.target));
    return result;
}

void DocumentProcessor::tellStates(DocumentResult& result, const std::string& outputState) const
{
    if (!m_options.tellStates)
        return;
    result.outputState = outputState;
    result.fileState = m_options.inPlace ? outputState : stateOf(m_original);
}

DocumentResult DocumentProcessor::applyAndSave(const DocumentJob& job)
{
    m_errors.ClearAll();
    if (!m_options.change.isEmpty()) {
        if (const std::string reason = ViewChanger(m_library, m_options.change).apply(job.source);
            !reason.empty())
            return DocumentResult::failed(reason);
    } else if (!applyEntries())
        return DocumentResult::failed(m_errors.GetLast().toStdString());
    if (m_library.SecurityInfo(engine::UnsavedChanges) == 0)
        return m_options.inPlace || m_options.dryRun ? DocumentResult{Status::Unchanged, Saved::Not, {}, 0}
                                                     : copy(job);
    if (std::string reason = refusal(); !reason.empty())
        return DocumentResult::failed(reason);
    return m_options.dryRun ? tryOut() : save(job);
}

bool DocumentProcessor::applyEntries()
{
    for (const ActionEntry& entry : m_options.entries) {
        SettingsMap settings = entry.settings;
        WorkProcInfoStruct info{&m_library, &m_errors, {}, &settings};
        if (m_action.WorkProc(&info) != 0)
            return false;
    }
    return true;
}

/// Why the document may not be changed; empty when it may.
std::string DocumentProcessor::refusal()
{
    if (m_library.SecurityInfo(engine::ModificationAllowed) == 0)
        return "its encryption does not allow changes; the owner password is needed";
    if (m_options.signedDocuments != SignedDocuments::AppendCertified &&
        m_library.SecurityInfo(engine::Certification) != 0)
        return "it is certified, and no certification allows a change of how it opens; "
               "--signed append-certified changes it all the same";
    if (m_options.signedDocuments == SignedDocuments::Refuse &&
        m_library.SecurityInfo(engine::SignatureCount) > 0)
        return "it is signed, and viewers report any later change; --signed append changes it all the same";
    return {};
}

/// What save() would do, as far as that can be known without writing.
DocumentResult DocumentProcessor::tryOut()
{
    const int code = m_library.SecurityInfo(engine::AppendRefusal);
    if (m_library.LastErrorCode() != 0)
        return libraryFailure();
    const bool rewriting = m_options.rewrite && engine::cannotAppend(static_cast<engine::ErrorCode>(code));
    if (rewriting && m_library.SaveToString().empty())
        return libraryFailure(notRewritten);
    if (code != 0 && !rewriting)
        return notAppended(code);
    return {Status::Changed, Saved::Not, {}, 0};
}

DocumentResult DocumentProcessor::save(const DocumentJob& job)
{
    SafeOutput output(job.target, job.temporary);
    if (std::string problem = SafeOutput::makeFolder(SafeOutput::folderOf(job.target)); !problem.empty())
        return DocumentResult::failed(problem);
    const DocumentResult result = write(job);
    return result.status == Status::Failed ? result : commit(output, job, result);
}

DocumentResult DocumentProcessor::write(const DocumentJob& job)
{
    const std::wstring target = engine::wideFromFileName(job.temporary);
    if (m_library.AppendToFile(target) != 0)
        return {Status::Changed, Saved::Appended, {}, 0};
    const int code = m_library.LastErrorCode();
    if (m_options.rewrite && engine::cannotAppend(static_cast<engine::ErrorCode>(code)))
        return rewrite(job);
    return notAppended(code);
}

DocumentResult DocumentProcessor::rewrite(const DocumentJob& job)
{
    if (m_library.SaveToFile(engine::wideFromFileName(job.temporary)) == 0)
        return libraryFailure(notRewritten);
    return {Status::Changed, Saved::Rewritten, {}, 0};
}

DocumentResult DocumentProcessor::copy(const DocumentJob& job)
{
    SafeOutput output(job.target, job.temporary);
    std::string problem = SafeOutput::makeFolder(SafeOutput::folderOf(job.target));
    if (problem.empty())
        problem = copyFile(job.source, job.temporary);
    return problem.empty() ? commit(output, job, {Status::Unchanged, Saved::Copied, {}, 0})
                           : DocumentResult::failed(problem);
}

/// Puts the new file in its place, unless the document is no longer the one that was read.
DocumentResult DocumentProcessor::commit(SafeOutput& output, const DocumentJob& job,
                                         const DocumentResult& result)
{
    const FileDescriptor source = openRegularFile(job.source);
    struct stat now;
    if (!source.isOpen() || fstat(source.get(), &now) != 0 || !isSameState(now, m_original))
        return DocumentResult::failed(std::string(engine::errorText(int(engine::ErrorCode::SourceChanged))));
    const auto beforeRename = [&](const struct stat& finished, const std::string& note) {
        DocumentResult placed = result;
        placed.milliseconds = millisecondsTaken();
        placed.note = note;
        tellStates(placed, stateOf(finished));
        (*m_beforePlacement)({placed, finished});
    };
    const auto take = m_options.inPlace ? FileAttributes::Take::All : FileAttributes::Take::ForCopy;
    const SafeOutput::Outcome outcome =
        output.commit(FileAttributes(source.get(), take), m_options.flush, beforeRename);
    if (!outcome.problem.empty())
        return DocumentResult::failed(outcome.problem);
    DocumentResult placed = result;
    placed.note = outcome.note;
    return placed;
}

DocumentResult DocumentProcessor::notAppended(int code)
{
    m_wornOut = m_wornOut || isCode(code, engine::ErrorCode::OutOfMemory);
    return DocumentResult::failed(whyNotAppended(code));
}

DocumentResult DocumentProcessor::libraryFailure(const std::string& what)
{
    const int code = m_library.LastErrorCode();
    m_wornOut = m_wornOut || isCode(code, engine::ErrorCode::OutOfMemory);
    return DocumentResult::failed(what + std::string(engine::errorText(code)));
}

} // namespace host
