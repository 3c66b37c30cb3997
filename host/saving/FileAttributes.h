#pragma once

#include <sys/stat.h>

#include <string>
#include <vector>

namespace host {

class AccessRights;

/// What a file has besides its content: owner, group, mode, access control list, extended attributes.
class FileAttributes
{
public:
    enum class Take {
        All,    ///< For the new state of the same file: all of them, the security label included.
        ForCopy ///< Of extended attributes those in "user." only; owner and group if the system allows it.
    };

    /// Those of an open file. The descriptor must stay open as long as the object is used.
    FileAttributes(int file, Take take) : m_file(file), m_take(take) {}
    /// Those of a file that a program makes: what the umask leaves.
    static FileAttributes ofNewFile() { return {-1, Take::ForCopy}; }

    /// Gives them to a file that only its owner can open yet. Never grants anyone more than the other file
    /// does: what cannot be kept leads to fewer rights.
    /// \param notKept gets what was to be kept and could not be, in words.
    /// \returns false, with errno set, when not even the mode can be set.
    bool giveTo(int target, std::vector<std::string>& notKept) const;

private:
    bool giveRights(int target, AccessRights rights, std::vector<std::string>& notKept) const;
    void giveOwner(int target, const struct stat& like, AccessRights& rights,
                   std::vector<std::string>& notKept) const;
    void giveExtended(int target, std::vector<std::string>& notKept) const;
    bool takes(const std::string& name) const;

    int m_file;
    Take m_take;
};

} // namespace host
