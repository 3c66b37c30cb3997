#include "host/files/FileDescriptor.h"
#include "host/saving/AccessRights.h"
#include "host/saving/FileAttributes.h"
#include "support/Rows.h"
#include "support/folders/FileStatus.h"
#include "support/folders/WorkFolder.h"

#include <QtTest>

#include <optional>

#include <fcntl.h>
#include <linux/posix_acl.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace host;

namespace {

const char accessList[] = "system.posix_acl_access";
const char defaultList[] = "system.posix_acl_default";
const unsigned nobody = 65534;

struct Entry
{
    int tag;
    unsigned rights;
    unsigned id = 0;
};

std::string aclOf(const QList<Entry>& entries)
{
    std::string bytes;
    const auto add = [&bytes](unsigned value, int size) {
        for (int byte = 0; byte < size; ++byte)
            bytes.push_back(static_cast<char>(value >> 8 * byte));
    };
    add(2, 4);
    for (const Entry& entry : entries) {
        add(unsigned(entry.tag), 2);
        add(entry.rights, 2);
        add(entry.tag == ACL_USER || entry.tag == ACL_GROUP ? entry.id : 0xffffffff, 4);
    }
    return bytes;
}

/// What "chmod 0600" and "setfacl -m u:nobody:rw" make.
const std::string nobodyToo =
    aclOf({{ACL_USER_OBJ, 6}, {ACL_USER, 6, nobody}, {ACL_GROUP_OBJ, 0}, {ACL_MASK, 6}, {ACL_OTHER, 0}});

bool set(const char* file, const char* name, const std::string& value)
{
    return setxattr(file, name, value.data(), value.size(), 0) == 0;
}

std::string get(const char* file, const char* name)
{
    char value[1024];
    const ssize_t size = getxattr(file, name, value, sizeof value);
    return size < 0 ? "none" : std::string(value, std::size_t(size));
}

// What the system refuses, as it does where a file system cannot, or the user may not.
std::string refused;
bool refusesOwner = false;

} // namespace

extern "C" {
int __real_fsetxattr(int file, const char* name, const void* value, size_t size, int flags);
int __wrap_fsetxattr(int file, const char* name, const void* value, size_t size, int flags)
{
    errno = EOPNOTSUPP;
    return refused == name ? -1 : __real_fsetxattr(file, name, value, size, flags);
}

int __real_fchown(int file, uid_t owner, gid_t group);
int __wrap_fchown(int file, uid_t owner, gid_t group)
{
    errno = EPERM;
    return refusesOwner ? -1 : __real_fchown(file, owner, group);
}
}

class TestFileAttributes : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        WorkFolder::put("original");
        chmod("original", 0600);
    }
    void cleanup()
    {
        m_folder.reset();
        refused.clear();
        refusesOwner = false;
    }

    void keepsModeAndOwner()
    {
        if (geteuid() == 0)
            QCOMPARE(chown("original", 1234, 2345), 0);
        QCOMPARE(chmod("original", 01751), 0);
        QCOMPARE(give(FileAttributes::Take::All), std::string());
        const struct stat status = statusOf("target");
        QCOMPARE(status.st_mode & 07777, 01751u);
        QCOMPARE(status.st_uid, statusOf("original").st_uid);
        QCOMPARE(status.st_gid, statusOf("original").st_gid);
    }

    // What a file with these bits holds runs with its owner's rights.
    void dropsRightsOfOwner()
    {
        for (const mode_t bit : {04000u, 02000u}) {
            QCOMPARE(chmod("original", 0751 | bit), 0);
            QCOMPARE(give(FileAttributes::Take::All), std::string("set-user-ID or set-group-ID"));
            QCOMPARE(statusOf("target").st_mode & 07777, 0751u);
        }
    }

    void keepsListAndExtendedAttributes()
    {
        if (!set("original", accessList, nobodyToo) || !set("original", "user.tag", "red"))
            QSKIP("this file system has none");
        const std::string large(3000, 'x');
        QVERIFY(set("original", "user.empty", ""));
        const bool label = set("original", "security.selinux", "label");
        for (const auto take : {FileAttributes::Take::All, FileAttributes::Take::ForCopy}) {
            QCOMPARE(give(take), std::string());
            QVERIFY(get("target", accessList) == nobodyToo);
            QCOMPARE(get("target", "user.tag"), std::string("red"));
            QCOMPARE(get("target", "user.empty"), std::string());
            if (label)
                QCOMPARE(get("target", "security.selinux"),
                         std::string(take == FileAttributes::Take::All ? "label" : "none"));
        }
    }

    // A mode that holds a list's mask grants it to the group if the list is gone.
    void neverWidensAccess()
    {
        if (!set("original", accessList, nobodyToo) || !set("original", "user.tag", "red"))
            QSKIP("this file system has none");
        refused = accessList;
        QCOMPARE(give(FileAttributes::Take::ForCopy), std::string("access control list"));
        QCOMPARE(statusOf("target").st_mode & 0777, 0600u);
        refused = "user.tag";
        QCOMPARE(give(FileAttributes::Take::ForCopy), std::string("extended attributes"));
        QCOMPARE(statusOf("target").st_mode & 0777, 0660u);
        refusesOwner = true;
        QCOMPARE(give(FileAttributes::Take::All), std::string("extended attributes, owner, group"));
    }

    void takesNoListFromTheFolder()
    {
        if (!set(".", defaultList, nobodyToo))
            QSKIP("this file system has none");
        QCOMPARE(removexattr("original", accessList), 0);
        QCOMPARE(chmod("original", 0660), 0);
        QCOMPARE(give(FileAttributes::Take::ForCopy), std::string());
        QCOMPARE(get("target", accessList), std::string("none"));
        QCOMPARE(statusOf("target").st_mode & 0777, 0660u);
    }

    void narrowsWhatCannotBeKept_data()
    {
        const Rows<unsigned, QByteArray, QByteArray, unsigned> row;
        const auto add = [&row](const char* name, unsigned mode, const QList<Entry>& list,
                                const char* dropped, unsigned left) {
            row(name, mode, list.isEmpty() ? QByteArray() : QByteArray::fromStdString(aclOf(list)), dropped,
                left);
        };
        add("plain", 0644, {}, "list", 0644);
        add("group", 0664, {}, "group", 0604);
        add("a group shut out", 02604, {}, "group", 0600);
        add("an owner shut out", 04044, {}, "owner", 0000);
        add("not a list", 0664, {{ACL_USER, 7, 1}}, "", 0600);
        const QList<Entry> base{{ACL_USER_OBJ, 6}, {ACL_GROUP_OBJ, 6}, {ACL_OTHER, 4}};
        add("mask", 0644, base + QList<Entry>{{ACL_MASK, 4}, {ACL_USER, 7, 1}}, "list", 0644);
        add("a user shut out", 0664, base + QList<Entry>{{ACL_MASK, 6}, {ACL_USER, 0, 1}}, "list", 0600);
        add("groups shut out", 0664, base + QList<Entry>{{ACL_MASK, 6}, {ACL_GROUP, 0, 1}}, "list", 0660);
        add("all", 0664, base + QList<Entry>{{ACL_MASK, 6}, {ACL_USER, 4, 1}}, "owner group list", 0604);
    }

    void narrowsWhatCannotBeKept()
    {
        const auto [mode, list, dropped, left] = Rows<unsigned, QByteArray, QByteArray, unsigned>::current();
        AccessRights rights(mode, list.toStdString());
        if (dropped.contains("owner"))
            rights.dropOwner();
        if (dropped.contains("group"))
            rights.dropGroup();
        if (dropped.contains("list"))
            rights.dropList();
        QCOMPARE(rights.mode(), left);
        QCOMPARE(rights.list(), std::string());
    }

private:
    /// Makes a target with the attributes of the original. \returns what was not kept.
    static std::string give(FileAttributes::Take take)
    {
        unlink("target");
        const FileDescriptor original = openRegularFile("original");
        const FileDescriptor target(open("target", O_RDWR | O_CREAT, 0600));
        std::vector<std::string> notKept;
        if (!FileAttributes(original.get(), take).giveTo(target.get(), notKept))
            return "failed";
        std::string text;
        for (const std::string& word : notKept)
            text += (text.empty() ? "" : ", ") + word;
        return text;
    }

    std::optional<WorkFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestFileAttributes)
#include "TestFileAttributes.moc"
