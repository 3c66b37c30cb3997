#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// Who may do what with a file: its mode and its access control list. What cannot be kept is taken out so
/// that nobody is granted more than before: whoever matched an entry that goes falls to the later ones, which
/// are narrowed to what that entry gave. Nor does it let the file run with its owner's rights: no document has
/// use for that.
class AccessRights
{
public:
    /// \param mode as stat gives it; with a list, its group bits are the list's mask.
    /// \param list the value of system.posix_acl_access, empty when there is none. One that cannot be
    /// understood leaves the owner's rights only.
    AccessRights(mode_t mode, std::string_view list);

    /// The file has another owner now.
    void dropOwner();
    /// The file has another group now.
    void dropGroup();
    /// The file cannot have a list.
    void dropList();

    /// Permission bits, the sticky one included.
    mode_t mode() const;
    /// The value of system.posix_acl_access; empty when the mode says it all.
    std::string list() const;
    /// Whether a list was given that cannot be understood.
    bool isUnknown() const { return m_unknown; }

private:
    struct Entry
    {
        unsigned tag;
        unsigned rights;
        std::uint32_t id;
    };

    bool readList(std::string_view list);
    /// The entry of the owner, the group, the others or the mask; null when there is none.
    const Entry* find(unsigned tag) const;
    Entry& base(unsigned tag) { return const_cast<Entry&>(*find(tag)); }
    unsigned mask() const;

    unsigned m_sticky;
    std::vector<Entry> m_entries;
    bool m_unknown = false;
};

} // namespace host
