#include "AccessRights.h"

#include <endian.h>
#include <linux/posix_acl.h>
#include <linux/posix_acl_xattr.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstring>

namespace host {

namespace {

const unsigned allRights = 7;

bool isNamed(unsigned tag)
{
    return tag == ACL_USER || tag == ACL_GROUP;
}

template <class Value>
void append(std::string& bytes, const Value& value)
{
    char raw[sizeof value];
    std::memcpy(raw, &value, sizeof value);
    bytes.append(raw, sizeof value);
}

} // namespace

AccessRights::AccessRights(mode_t mode, std::string_view list) : m_sticky(mode & S_ISVTX)
{
    if (readList(list))
        return;
    m_unknown = !list.empty();
    const unsigned others = m_unknown ? 0 : allRights;
    m_entries = {{ACL_USER_OBJ, mode >> 6 & allRights, 0},
                 {ACL_GROUP_OBJ, mode >> 3 & others, 0},
                 {ACL_OTHER, mode & others, 0}};
}

bool AccessRights::readList(std::string_view list)
{
    posix_acl_xattr_header header;
    posix_acl_xattr_entry entry;
    if (list.size() < sizeof header || (list.size() - sizeof header) % sizeof entry != 0)
        return false;
    std::memcpy(&header, list.data(), sizeof header);
    for (list.remove_prefix(sizeof header); !list.empty(); list.remove_prefix(sizeof entry)) {
        std::memcpy(&entry, list.data(), sizeof entry);
        m_entries.push_back({le16toh(entry.e_tag), le16toh(entry.e_perm) & allRights, le32toh(entry.e_id)});
    }
    return le32toh(header.a_version) == POSIX_ACL_XATTR_VERSION && find(ACL_USER_OBJ) != nullptr &&
           find(ACL_GROUP_OBJ) != nullptr && find(ACL_OTHER) != nullptr;
}

const AccessRights::Entry* AccessRights::find(unsigned tag) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [tag](const Entry& entry) { return entry.tag == tag; });
    return found == m_entries.end() ? nullptr : &*found;
}

/// What named users, groups and the file's group have at most.
unsigned AccessRights::mask() const
{
    const Entry* const entry = find(ACL_MASK);
    return entry != nullptr ? entry->rights : allRights;
}

void AccessRights::dropOwner()
{
    const unsigned owner = base(ACL_USER_OBJ).rights;
    for (Entry& entry : m_entries)
        entry.rights &= owner;
}

void AccessRights::dropGroup()
{
    Entry& group = base(ACL_GROUP_OBJ);
    base(ACL_OTHER).rights &= group.rights & mask();
    group.rights = 0;
}

void AccessRights::dropList()
{
    Entry& group = base(ACL_GROUP_OBJ);
    Entry& other = base(ACL_OTHER);
    group.rights &= mask();
    for (const Entry& entry : m_entries) {
        if (entry.tag == ACL_USER) // who may be in the group
            group.rights &= entry.rights & mask();
        if (isNamed(entry.tag))
            other.rights &= entry.rights & mask();
    }
    m_entries.erase(
        std::remove_if(m_entries.begin(), m_entries.end(),
                       [](const Entry& entry) { return isNamed(entry.tag) || entry.tag == ACL_MASK; }),
        m_entries.end());
}

mode_t AccessRights::mode() const
{
    const Entry* const group = find(find(ACL_MASK) != nullptr ? ACL_MASK : ACL_GROUP_OBJ);
    return m_sticky | find(ACL_USER_OBJ)->rights << 6 | group->rights << 3 | find(ACL_OTHER)->rights;
}

std::string AccessRights::list() const
{
    std::string bytes;
    if (m_entries.size() <= 3)
        return bytes;
    append(bytes, posix_acl_xattr_header{htole32(POSIX_ACL_XATTR_VERSION)});
    for (const Entry& entry : m_entries)
        append(bytes,
               posix_acl_xattr_entry{htole16(static_cast<std::uint16_t>(entry.tag)),
                                     htole16(static_cast<std::uint16_t>(entry.rights)), htole32(entry.id)});
    return bytes;
}

} // namespace host
