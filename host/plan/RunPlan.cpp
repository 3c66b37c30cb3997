#include "RunPlan.h"

#include "CaseOfNames.h"
#include "FolderWalk.h"
#include "host/files/FileDescriptor.h"
#include "host/files/Links.h"
#include "host/files/Paths.h"
#include "host/terminal/NamedFile.h"
#include "host/terminal/UsageError.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <map>
#include <utility>

namespace host {

namespace {

const int mostSuggestions = 10;

} // namespace

void RunPlan::add(const std::string& path, Folders folders)
{
    if (path.empty())
        throw UsageError("a document's name is empty");
    struct stat status;
    if (stat(path.c_str(), &status) != 0)
        append({path, {}, whyMissing(path, errno)});
    else if (S_ISDIR(status.st_mode) && folders == Folders::Refused)
        append({path, {}, Failure::ofSystem(EISDIR, ReasonCode::NotAFile)});
    else if (S_ISDIR(status.st_mode))
        addFolder(withoutTrailingSlashes(path));
    else if (!S_ISREG(status.st_mode))
        append({path, {}, Failure::ofSystem(notARegularFile, ReasonCode::ReadFailed)});
    else
        addDocument(path, path.substr(path.rfind('/') + 1), status);
}

/// Looks for what may be meant for the first few only: each look reads a folder, and a list may be
/// wrong throughout.
Failure RunPlan::whyMissing(const std::string& path, int problem)
{
    Failure failure = Failure::ofSystem(problem, ReasonCode::ReadFailed);
    if (problem == ENOENT && m_suggestions++ < mostSuggestions)
        failure.text += suggestion::nearbyFile(path);
    return failure;
}

void RunPlan::addStandardInput()
{
    const std::string& file = m_destination.onlyFile();
    if (m_destination.isNone())
        return append({RunDestination::standardStream, {}});
    if (file.empty())
        throw UsageError("a document from standard input goes to -o FILE.pdf or -o -");
    m_documents.push_back(
        {RunDestination::standardStream, m_destination.isStandardOutput() ? file : targetOf(file)});
}

void RunPlan::addDocument(const std::string& path, const std::string& pathBelowOutput,
                          const struct stat& status)
{
    const std::string output = m_destination.pathFor(path, pathBelowOutput);
    std::string target = m_destination.isStandardOutput() ? output : targetOf(output);
    m_inputs.try_emplace(idOf(status), m_documents.size());
    append({path, std::move(target)});
}

void RunPlan::addFolder(const std::string& folder)
{
    const std::size_t before = m_documents.size();
    const std::string prefix = folder == "/" ? folder : folder + "/";
    FolderWalk walk(
        [&](const FolderWalk::Entry& entry) {
            if (entry.status != nullptr && m_destination.isEarlierResult(prefix + entry.path))
                return;
            if (entry.status != nullptr)
                addDocument(prefix + entry.path, entry.path, *entry.status);
            else
                append({entry.path.empty() ? folder : prefix + entry.path, {}, entry.problem});
        },
        [&](const struct stat& status) {
            if (m_found)
                m_found(nullptr);
            return m_destination.isResultFolder(status);
        });
    walk.walk(folder);
    if (m_documents.size() == before)
        m_emptyFolders.push_back(folder);
}

void RunPlan::append(Document document)
{
    m_documents.push_back(std::move(document));
    if (m_found)
        m_found(&m_documents.back());
}

/// The path with all links resolved. Folders are resolved once: each takes a system call for every name in
/// it.
std::string RunPlan::targetOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    const std::string folder =
        slash == std::string::npos ? "." : path.substr(0, std::max<std::size_t>(slash, 1));
    const auto [known, isNew] = m_resolvedFolders.try_emplace(folder);
    if (isNew)
        known->second = resolved(folder);
    std::string target = known->second + (known->second.ends_with('/') ? "" : "/") + path.substr(slash + 1);
    struct stat status;
    bool exists = lstat(target.c_str(), &status) == 0;
    if (exists && S_ISLNK(status.st_mode)) {
        target = behindLink(target);
        exists = stat(target.c_str(), &status) == 0;
    }
    if (exists)
        m_existingOutputs.emplace_back(idOf(status), m_documents.size());
    return target;
}

std::vector<std::string> RunPlan::notes() const
{
    std::vector<std::string> notes;
    for (const std::string& folder : m_emptyFolders)
        notes.push_back("no PDF documents in " + folder);
    if (m_documents.empty() && m_emptyFolders.empty())
        notes.emplace_back("the list of documents is empty");
    return notes;
}

void RunPlan::checkTargets(const std::vector<std::string>& filesRead) const
{
    if (const std::string& file = m_destination.onlyFile(); !file.empty() && m_documents.size() > 1)
        throw UsageError("-o " + file + " takes one document, not " + std::to_string(m_documents.size()) +
                         "; name a folder for the results");
    std::map<std::string, const Document*> targets;
    for (const Document& document : m_documents) {
        if (document.problem)
            continue;
        const auto [other, added] = targets.try_emplace(document.target, &document);
        if (!added && other->second->name == document.name)
            throw UsageError(document.name + " is named twice");
        if (!added)
            throw UsageError(other->second->name + " and " + document.name + " would have the same output, " +
                             document.target);
    }
    if (m_destination.isInPlace())
        return;
    checkOverwriting(filesRead);
}

void RunPlan::checkOverwriting(const std::vector<std::string>& filesRead) const
{
    std::map<FileId, const std::string*> otherInputs;
    struct stat status;
    for (const std::string& file : filesRead)
        if (stat(file.c_str(), &status) == 0)
            otherInputs.emplace(idOf(status), &file);
    for (const auto& [id, document] : m_existingOutputs) {
        if (const auto input = m_inputs.find(id); input != m_inputs.end())
            throw UsageError("the output of " + m_documents[document].name +
                             " would overwrite the document " + m_documents[input->second].name +
                             (input->second == document ? "; --in-place says that this is wanted" : ""));
        if (const auto other = otherInputs.find(id); other != otherInputs.end())
            throw UsageError("the output of " + m_documents[document].name +
                             " would overwrite what this run reads, " + *other->second);
    }
}

void RunPlan::checkCase() const
{
    CaseOfNames names;
    std::map<std::string, std::vector<const Document*>> targets;
    for (const Document& document : m_documents) {
        if (document.problem || m_destination.isInPlace())
            continue;
        std::vector<const Document*>& alike = targets[CaseOfNames::folded(document.target)];
        for (const Document* other : alike)
            if (names.areTheSame(other->target, document.target))
                throw UsageError(other->name + " and " + document.name + " would have the same output, " +
                                 document.target + ", for the case of names does not count there");
        alike.push_back(&document);
    }
}

void RunPlan::checkReport(const std::string& path, const std::vector<std::string>& filesRead) const
{
    const std::string target = resolved(behindLink(path));
    for (const Document& document : m_documents)
        if (!document.problem && document.target == target)
            throw UsageError("the report and " + document.name + " would have the same output, " + target);
    struct stat status;
    if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return;
    const FileId id = idOf(status);
    if (const auto input = m_inputs.find(id); input != m_inputs.end())
        throw UsageError("the report would overwrite the document " + m_documents[input->second].name);
    for (const std::string& file : filesRead)
        if (stat(file.c_str(), &status) == 0 && idOf(status) == id)
            throw UsageError("the report would overwrite what this run reads, " + file);
}

} // namespace host
