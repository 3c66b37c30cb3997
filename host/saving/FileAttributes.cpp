#include "FileAttributes.h"

#include "AccessRights.h"

#include <linux/limits.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <string_view>

namespace host {

namespace {

const char accessList[] = "system.posix_acl_access";

/// Never copied: these vouch for the old content, or let it run with more rights.
constexpr std::array<std::string_view, 3> boundToContent{"security.capability", "security.evm",
                                                         "security.ima"};

/// An attribute's value, empty when the file has none. None if it cannot be read.
std::optional<std::string> attribute(int file, const char* name)
{
    char value[XATTR_SIZE_MAX]; // the system has no larger ones
    const ssize_t size = fgetxattr(file, name, value, sizeof value);
    if (size >= 0)
        return std::string(value, static_cast<std::size_t>(size));
    return errno == ENODATA || errno == EOPNOTSUPP ? std::optional(std::string()) : std::nullopt;
}

/// The names of all attributes, each ended by NUL. None if they cannot be read.
std::optional<std::string> attributeNames(int file)
{
    char names[XATTR_LIST_MAX];
    const ssize_t size = flistxattr(file, names, sizeof names);
    if (size >= 0)
        return std::string(names, static_cast<std::size_t>(size));
    return errno == EOPNOTSUPP ? std::optional(std::string()) : std::nullopt;
}

bool copyAttribute(int from, int to, const char* name)
{
    char value[XATTR_SIZE_MAX];
    char present[XATTR_SIZE_MAX];
    const ssize_t size = fgetxattr(from, name, value, sizeof value);
    if (size < 0)
        return errno == ENODATA; // removed meanwhile
    const auto length = static_cast<std::size_t>(size);
    const bool isThere =
        fgetxattr(to, name, present, sizeof present) == size && std::equal(value, value + length, present);
    // The system may have given the same label, and not allow setting one.
    return isThere || fsetxattr(to, name, value, length, 0) == 0;
}

/// Folders give their new files lists of their own.
bool removeList(int file)
{
    return fgetxattr(file, accessList, nullptr, 0) < 0 || fremovexattr(file, accessList) == 0 ||
           errno == ENODATA;
}

void add(std::vector<std::string>& words, const char* word)
{
    if (std::find(words.begin(), words.end(), word) == words.end())
        words.emplace_back(word);
}

mode_t newFileMode()
{
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

} // namespace

bool FileAttributes::giveTo(int target, std::vector<std::string>& notKept) const
{
    if (m_file < 0)
        return fchmod(target, newFileMode()) == 0;
    struct stat status;
    if (fstat(m_file, &status) != 0)
        return false;
    const std::optional<std::string> list = attribute(m_file, accessList);
    AccessRights rights(status.st_mode, list.value_or("?"));
    if ((status.st_mode & (S_ISUID | S_ISGID)) != 0)
        add(notKept, "set-user-ID or set-group-ID");
    giveExtended(target, notKept); // first: as another owner's, or in its mode, it may not be allowed
    giveOwner(target, status, rights, notKept);
    return giveRights(target, rights, notKept);
}

void FileAttributes::giveOwner(int target, const struct stat& like, AccessRights& rights,
                               std::vector<std::string>& notKept) const
{
    if (fchown(target, like.st_uid, like.st_gid) == 0)
        return;
    rights.dropOwner();
    if (m_take == Take::All)
        add(notKept, "owner");
    if (fchown(target, static_cast<uid_t>(-1), like.st_gid) == 0)
        return;
    rights.dropGroup();
    if (m_take == Take::All)
        add(notKept, "group");
}

bool FileAttributes::giveRights(int target, AccessRights rights, std::vector<std::string>& notKept) const
{
    const std::string list = rights.list();
    mode_t hidden = 0;
    if (list.empty() || fsetxattr(target, accessList, list.data(), list.size(), 0) != 0) {
        if (!list.empty() || rights.isUnknown())
            add(notKept, "access control list");
        rights.dropList();
        hidden = removeList(target) ? 0 : 070; // the mask of the list that stays
    }
    return fchmod(target, rights.mode() & ~hidden) == 0;
}

void FileAttributes::giveExtended(int target, std::vector<std::string>& notKept) const
{
    const std::optional<std::string> names = attributeNames(m_file);
    if (!names)
        return add(notKept, "extended attributes");
    for (std::size_t begin = 0; begin < names->size(); begin = names->find('\0', begin) + 1) {
        const std::string name = names->c_str() + begin;
        if (takes(name) && !copyAttribute(m_file, target, name.c_str()))
            add(notKept, name.starts_with("user.") ? "extended attributes" : "security label");
    }
}

bool FileAttributes::takes(const std::string& name) const
{
    const bool label = name.starts_with("security.") &&
                       std::find(boundToContent.begin(), boundToContent.end(), name) == boundToContent.end();
    return name.starts_with("user.") || (label && m_take == Take::All);
}

} // namespace host
