#pragma once

#include "host/failures/Failure.h"

#include <sys/stat.h>

#include <string>

namespace host {

/// Where the results of a run go: into a folder, to one file or standard output, beside the documents, or into
/// the documents' own places.
class RunDestination
{
public:
    /// How standard input and output are called among documents and results.
    static constexpr char standardStream[] = "-";

    static RunDestination inPlace();
    /// Of documents that are only read.
    static RunDestination none();
    /// \param base the folder that results keep their documents' paths below; empty to keep the paths of
    /// documents from folders only.
    static RunDestination folder(const std::string& path, const std::string& base = {});
    /// One document's result; "-" is standard output.
    static RunDestination file(const std::string& path);
    /// "manual.pdf" becomes "manual-TEXT.pdf". Throws UsageError for what cannot be in a file's name.
    static RunDestination beside(const std::string& suffix);
    /// What a user means by a name: a folder that is there, a file if the name ends in ".pdf", else a folder
    /// to be made. Throws UsageError for what can be neither.
    static RunDestination named(const std::string& path, const std::string& base);

    bool isInPlace() const { return m_kind == Kind::InPlace; }
    bool isNone() const { return m_kind == Kind::None; }
    bool isStandardOutput() const { return m_kind == Kind::File && m_path == standardStream; }
    /// The one result's file, or "-"; empty when there may be several.
    const std::string& onlyFile() const;

    /// The result's path, with links not followed. \param pathBelow the document's path below the folder that
    /// it was found in, else its file name. Throws UsageError for a document that does not lie below the base.
    std::string pathFor(const std::string& document, const std::string& pathBelow) const;

    /// Whether a folder that is walked is the one with an earlier run's results.
    bool isResultFolder(const struct stat& folder) const;
    /// Whether a document that a walk finds is an earlier run's result: the name is one, and the document
    /// that it belongs to is there.
    bool isEarlierResult(const std::string& document) const;

    /// Makes the folder for the results, or for the one result: a worker has no business above it.
    Failure makeFolder() const;

private:
    enum class Kind { None, InPlace, Folder, File, Beside };

    RunDestination(Kind kind, std::string path) : m_kind(kind), m_path(std::move(path)) {}
    std::string belowBase(const std::string& document) const;

    Kind m_kind;
    std::string m_path; ///< The folder, the file, or the suffix.
    std::string m_base; ///< Absolute.
};

} // namespace host
