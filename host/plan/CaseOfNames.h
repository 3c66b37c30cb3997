#pragma once

#include <map>
#include <string>

namespace host {

/// Some file systems, or folders in them, take no notice of the case of names: "A.PDF" and "a.pdf" are one file
/// there.
class CaseOfNames
{
public:
    /// What paths have in common that may be the same there. Letters count as the same however
    /// they are composed.
    static std::string folded(const std::string& path);

    /// Whether two different paths with the same folded() name one file, or would. Where a folder does not
    /// exist yet the nearest one above it counts. Makes a file there and removes it again; where that is not
    /// permitted the paths count as different, for no result can be written there either.
    bool areTheSame(const std::string& path, const std::string& other);

private:
    std::map<std::string, bool> m_ignoresCase; ///< By folders.
};

} // namespace host
