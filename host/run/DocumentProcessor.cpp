#include "DocumentProcessor.h"

#include "host/cell/Reach.h"
#include "host/document/DocumentLoading.h"
#include "host/document/ViewChanger.h"
#include "host/files/Checksum.h"
#include "host/files/FileDescriptor.h"
#include "host/files/FileState.h"
#include "host/saving/DocumentLock.h"
#include "host/saving/FileAttributes.h"
#include "host/saving/FileCopy.h"
#include "host/saving/InPlaceAppend.h"
#include "host/saving/InPlaceFile.h"
#include "host/saving/SafeOutput.h"
#include "host/settings/SettingsNotes.h"

#include "pdflibrary/ErrorCodes.h"
#include "pdflibrary/FileNameCodec.h"

#include <QJsonDocument>

#include <sys/stat.h>

#include <cerrno>
#include <chrono>

namespace host {

namespace {

const char* const notRewritten = "neither appended to nor rewritten: ";

bool isCode(int code, engine::ErrorCode wanted)
{
    return code == static_cast<int>(wanted);
}

/// Doubt about what a document holds keeps it from being written anew, too.
Failure whyNotAppended(int code)
{
    const auto errorCode = static_cast<engine::ErrorCode>(code);
    if (!engine::cannotAppend(errorCode))
        return Failure::ofLibrary(code, "not saved: ");
    Failure failure = Failure::ofLibrary(code);
    failure.text += engine::isDoubt(errorCode)
                        ? "; nothing is appended to it, and for the same reason --rewrite would refuse it"
                        : "; --rewrite writes it anew if nothing is lost by that";
    return failure;
}

} // namespace

DocumentProcessor::DocumentProcessor(CActionInterface& action, const ProcessingOptions& options)
    : m_options(options)
{
    m_sequence.emplace(action, m_library, m_options.entries);
}

DocumentResult DocumentProcessor::process(const DocumentJob& job, const BeforePlacement& beforePlacement)
{
    m_begin = Clock::now();
    m_beforePlacement = &beforePlacement;
    DocumentResult result;
    try {
        result = work(job);
    } catch (const std::exception&) {
        result = DocumentResult::failed(Failure::ofException());
        m_wornOut = m_wornOut || result.reason.code == ReasonCode::Memory;
    }
    result.milliseconds = millisecondsTaken();
    m_keptOut =
        result.status == Status::Failed && result.reason.code != ReasonCode::ChangedMeanwhile &&
        (isOutOfReach(job.source) || (!m_options.dryRun && isOutOfReach(SafeOutput::folderOf(job.target))));
    return result;
}

std::int64_t DocumentProcessor::millisecondsTaken() const
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - m_begin).count();
}

DocumentResult DocumentProcessor::work(const DocumentJob& job)
{
    if (stat(job.source.c_str(), &m_original) != 0)
        return DocumentResult::failed(Failure::ofSystem(errno, ReasonCode::ReadFailed));
    if (!loadDocument(m_library, job.source, m_options.password))
        return libraryFailure();
    const int document = m_library.SelectedDocument();
    DocumentResult result = applyAndSave(job);
    result.certified = m_library.SecurityInfo(engine::Certification) != 0;
    m_library.RemoveDocument(document);
    return result;
}

/// \param output the file that is in the target's place, or is about to be renamed over it.
void DocumentProcessor::tellStates(DocumentResult& result, const struct stat& output) const
{
    if (!m_options.tellStates || m_options.dryRun)
        return;
    result.outputState = stateOf(output);
    result.fileState = m_options.inPlace ? result.outputState : stateOf(m_original);
}

/// What it takes to take an update back. \returns why that cannot be told.
Failure DocumentProcessor::tellWhatStoodBefore(DocumentResult& result, int source) const
{
    const bool isAppended = result.saved == Saved::Appended || result.saved == Saved::AppendedInPlace;
    if (!m_options.tellStates || !m_options.inPlace || !isAppended)
        return {};
    result.stateBefore = stateOf(m_original);
    result.checksumBefore = checksumOf(source, m_original.st_size);
    if (!result.checksumBefore.empty())
        return {};
    return errno != 0 ? Failure::ofSystem(errno, ReasonCode::ReadFailed)
                      : Failure::ofLibrary(int(engine::ErrorCode::SourceChanged));
}

DocumentResult DocumentProcessor::applyAndSave(const DocumentJob& job)
{
    if (m_options.tellChanges)
        m_viewBefore.emplace(m_library, m_options.change[ViewEntry::Title].has_value());
    if (const Failure reason = apply(job.name); reason)
        return DocumentResult::failed(reason);
    if (m_library.SecurityInfo(engine::UnsavedChanges) == 0)
        return m_options.inPlace || m_options.dryRun ? leave() : copy(job);
    if (const Failure reason = refusal(); reason)
        return DocumentResult::failed(reason);
    if (m_options.tellChanges)
        m_viewAfter.emplace(m_library, m_options.change[ViewEntry::Title].has_value());
    return m_options.dryRun ? tryOut() : save(job);
}

DocumentResult DocumentProcessor::leave() const
{
    DocumentResult result{Status::Unchanged};
    result.note = notesWith({});
    tellStates(result, m_original);
    return result;
}

/// Makes the changes in memory. \returns why that is not possible.
Failure DocumentProcessor::apply(const std::string& file)
{
    m_notes.clear();
    if (!m_options.change.isEmpty()) {
        ViewChanger changer(m_library, m_options.change);
        Failure reason = changer.apply(file);
        m_notes = changer.notes();
        if (changer.leftOut())
            m_notes.push_back(changer.leftOut().text);
        return reason;
    }
    lookForPage(settingsnotes::openingPage(m_options.entries));
    if (std::string note = settingsnotes::aboutPage(m_options.entries, m_library.PageCount()); !note.empty())
        m_notes.push_back(std::move(note));
    return m_sequence->apply();
}

/// So that the library knows how many pages there are: what a large document says of that is believed until a
/// page is missing, and the action asks before it selects one.
void DocumentProcessor::lookForPage(int page)
{
    const int selected = m_library.SelectedPage();
    if (page > selected && m_library.SelectPage(page) != 0)
        m_library.SelectPage(selected);
}

DocumentResult DocumentProcessor::changed(Saved saved) const
{
    DocumentResult result{Status::Changed, saved};
    if (!m_options.tellChanges)
        return result;
    const auto compact = [](const QJsonObject& object) {
        return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
    };
    result.changes = m_viewBefore->changeTo(*m_viewAfter);
    if (result.changes.empty())
        return result;
    result.viewBefore = compact(m_viewBefore->unlike(*m_viewAfter));
    result.viewAfter = compact(m_viewAfter->unlike(*m_viewBefore));
    return result;
}

/// Why the document may not be changed.
Failure DocumentProcessor::refusal()
{
    if (m_library.SecurityInfo(engine::ModificationAllowed) == 0)
        return {ReasonCode::Permission,
                "its encryption does not allow changes; the owner password is needed"};
    if (m_options.signedDocuments != SignedDocuments::AppendCertified &&
        m_library.SecurityInfo(engine::Certification) != 0)
        return {ReasonCode::Certified,
                "it is certified, and no certification allows a change of how it opens; "
                "--signed append-certified changes it all the same"};
    if (m_options.signedDocuments == SignedDocuments::Refuse &&
        m_library.SecurityInfo(engine::SignatureCount) > 0)
        return {ReasonCode::Signed,
                "it is signed, and viewers report any later change; --signed append changes it all the same"};
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
    DocumentResult result = changed(Saved::Not);
    result.note = notesWith({});
    return result;
}

DocumentResult DocumentProcessor::save(const DocumentJob& job)
{
    if (m_options.inPlace && !m_options.replace)
        if (std::optional<DocumentResult> result = appendInPlace(job))
            return *std::move(result);
    SafeOutput output(job.target, job.temporary);
    if (Failure problem = SafeOutput::makeFolder(SafeOutput::folderOf(job.target)); problem)
        return DocumentResult::failed(problem);
    const DocumentResult result = write(job);
    return result.status == Status::Failed ? result : commit(output, job, result);
}

/// \returns nothing where a new file has to take the document's place.
std::optional<DocumentResult> DocumentProcessor::appendInPlace(const DocumentJob& job)
{
    const InPlaceFile file(job.target);
    if (!file.isSuited())
        return std::nullopt;
    const std::string update = m_library.AppendToString(engine::ForInPlace);
    const int code = m_library.LastErrorCode();
    if (isCode(code, engine::ErrorCode::NotInPlace))
        return std::nullopt;
    if (code != 0)
        return notAppended(code);
    const DocumentLock lock = lockDocument(file.get());
    if (lock == DocumentLock::Held)
        return DocumentResult::failed(documentLocked);
    if (lock == DocumentLock::Unavailable)
        return std::nullopt;
    return append(file, update);
}

DocumentResult DocumentProcessor::append(const InPlaceFile& file, const std::string& update)
{
    DocumentResult result = changed(Saved::AppendedInPlace);
    if (const Failure problem = tellWhatStoodBefore(result, file.get()); problem)
        return DocumentResult::failed(problem);
    result.milliseconds = millisecondsTaken();
    result.note = notesWith({});
    result.checksumUnfinished = checksumOf(InPlaceAppend::withoutLastLines(update));
    (*m_beforePlacement)({result, m_original, update});
    const InPlaceAppend::Outcome outcome = InPlaceAppend(file, m_original, update).perform();
    if (!outcome.isAppended())
        return DocumentResult::failed(outcome.whole());
    result.checksumUnfinished.clear();
    result.note = notesWith(outcome.note);
    struct stat now;
    if (fstat(file.get(), &now) == 0)
        tellStates(result, now);
    return result;
}

DocumentResult DocumentProcessor::write(const DocumentJob& job)
{
    const std::wstring target = engine::wideFromFileName(job.temporary);
    if (m_library.AppendToFile(target) != 0)
        return changed(Saved::Appended);
    const int code = m_library.LastErrorCode();
    if (m_options.rewrite && engine::cannotAppend(static_cast<engine::ErrorCode>(code)))
        return rewrite(job);
    return notAppended(code);
}

DocumentResult DocumentProcessor::rewrite(const DocumentJob& job)
{
    if (m_library.SaveToFile(engine::wideFromFileName(job.temporary)) == 0)
        return libraryFailure(notRewritten);
    return changed(Saved::Rewritten);
}

DocumentResult DocumentProcessor::copy(const DocumentJob& job)
{
    SafeOutput output(job.target, job.temporary);
    Failure problem = SafeOutput::makeFolder(SafeOutput::folderOf(job.target));
    if (!problem)
        problem = copyFile(job.source, job.temporary);
    return problem ? DocumentResult::failed(problem)
                   : commit(output, job, {Status::Unchanged, Saved::Copied});
}

/// Puts the new file in its place, unless the document is no longer the one that was read.
DocumentResult DocumentProcessor::commit(SafeOutput& output, const DocumentJob& job, DocumentResult result)
{
    const FileDescriptor source = openRegularFile(job.source);
    if (!source.isOpen())
        return notAsRead(job);
    if (m_options.inPlace && lockDocument(source.get()) == DocumentLock::Held)
        return DocumentResult::failed(documentLocked);
    if (const Failure problem = tellWhatStoodBefore(result, source.get()); problem)
        return DocumentResult::failed(problem);
    if (!isAsRead(source.get(), job.source, m_original))
        return notAsRead(job);
    const auto beforeRename = [&](const struct stat& finished, const std::string& note) {
        result.milliseconds = millisecondsTaken();
        result.note = notesWith(note);
        tellStates(result, finished);
        (*m_beforePlacement)({result, finished});
    };
    if (m_options.inPlace)
        output.replaceOnly(m_original);
    const auto take = m_options.inPlace ? FileAttributes::Take::All : FileAttributes::Take::ForCopy;
    const FileAttributes attributes =
        m_options.keepsAttributes ? FileAttributes(source.get(), take) : FileAttributes::ofNewFile();
    const SafeOutput::Outcome outcome = output.commit(attributes, m_options.flush, beforeRename);
    if (outcome.problem)
        return DocumentResult::failed(outcome.problem);
    result.note = notesWith(outcome.note);
    return result;
}

std::string DocumentProcessor::notesWith(const std::string& further) const
{
    std::string text;
    for (const std::string& note : m_notes)
        text += (text.empty() ? "" : "; ") + note;
    return text + (text.empty() || further.empty() ? "" : "; ") + further;
}

DocumentResult DocumentProcessor::notAppended(int code)
{
    m_wornOut = m_wornOut || isCode(code, engine::ErrorCode::OutOfMemory);
    return DocumentResult::failed(whyNotAppended(code));
}

/// A document that has gone, or is another one, was changed; what else errno tells kept it from being looked at.
/// Another one may be out of this process's reach: in place it is left as it is, else a new worker reads it.
DocumentResult DocumentProcessor::notAsRead(const DocumentJob& job) const
{
    const int problem = errno;
    struct stat now;
    const bool isOther =
        m_options.inPlace && stat(job.source.c_str(), &now) == 0 && !isSameState(now, m_original);
    const bool isChanged = isOther || problem == 0 || problem == ENOENT || problem == ENOTDIR;
    return DocumentResult::failed(isChanged ? Failure::ofLibrary(int(engine::ErrorCode::SourceChanged))
                                            : Failure::ofSystem(problem, ReasonCode::ReadFailed));
}

DocumentResult DocumentProcessor::libraryFailure(const std::string& what)
{
    const int code = m_library.LastErrorCode();
    m_wornOut = m_wornOut || isCode(code, engine::ErrorCode::OutOfMemory);
    return DocumentResult::failed(Failure::ofLibrary(code, what));
}

} // namespace host
