#pragma once

#include "RunDestination.h"

#include <sys/stat.h>

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace host {

/// Which documents a run works on, and where each goes. Everything that can be refused is refused here,
/// before anything is written.
class RunPlan
{
public:
    struct Document
    {
        /// As the user knows it; "-" is standard input.
        std::string name;
        /// Where the output lies; in place, what a symbolic link leads to. "-" is standard output. Of documents
        /// that are only read it does not matter.
        std::string target;
        /// Why it cannot be worked on, found out already.
        Failure problem = {};
    };

    /// Is told of each document as it is found, and with null of each folder that is looked into. What it
    /// throws ends the search.
    using Found = std::function<void(const Document* document)>;

    explicit RunPlan(RunDestination destination, Found found = {})
        : m_destination(std::move(destination)), m_found(std::move(found))
    {}

    enum class Folders {
        Searched, ///< For documents.
        Refused,  ///< Such a name is a document that cannot be worked on.
    };

    /// Adds a document, or the documents in a folder.
    void add(const std::string& path, Folders folders = Folders::Searched);
    /// Adds the document that comes from standard input. Throws UsageError when its result has no place.
    void addStandardInput();

    /// Throws UsageError when two documents would have the same output, or an output would overwrite an
    /// input or another file that the run reads.
    void checkTargets(const std::vector<std::string>& filesRead = {}) const;

    /// Throws UsageError when two documents would have the same output where the case of names does not
    /// count. Makes a file there for a moment where names differ in case only.
    void checkCase() const;

    /// Throws UsageError when the report would overwrite one of the documents, their outputs or other files
    /// that the run reads, or be overwritten by an output.
    void checkReport(const std::string& path, const std::vector<std::string>& filesRead) const;

    const std::vector<Document>& documents() const { return m_documents; }
    /// What may be a mistake: folders in which there was nothing to do, and a list without documents.
    std::vector<std::string> notes() const;

private:
    /// Device and number.
    using FileId = std::pair<dev_t, ino_t>;

    void addDocument(const std::string& path, const std::string& pathBelowOutput, const struct stat& status);
    void addFolder(const std::string& folder);
    Failure whyMissing(const std::string& path, int problem);
    void append(Document document);
    std::string targetOf(const std::string& path);
    void checkOverwriting(const std::vector<std::string>& filesRead) const;
    static FileId idOf(const struct stat& status) { return {status.st_dev, status.st_ino}; }

    RunDestination m_destination;
    Found m_found;
    std::vector<Document> m_documents;
    std::map<FileId, std::size_t> m_inputs;                        ///< The first document with each file.
    std::vector<std::pair<FileId, std::size_t>> m_existingOutputs; ///< With their documents.
    std::map<std::string, std::string> m_resolvedFolders;
    std::vector<std::string> m_emptyFolders;
    int m_suggestions = 0;
};

} // namespace host
