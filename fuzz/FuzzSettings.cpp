// Settings files, against QSettings in a process of its own: what QSettings makes of a stranger's file
// may well end it.
#include "Oracle.h"
#include "StoredForm.h"
#include "host/settings/SettingsFile.h"
#include "host/terminal/UsageError.h"
#include "shared/ini/CIniFile.h"
#include "shared/ini/IniText.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QProcess>

#include <algorithm>
#include <memory>
#include <optional>

namespace {

using namespace fuzz;

const int patience = 5000; // in milliseconds

/// QSettings as a server: takes names of files, and answers with what it reads in them.
class TheirReader
{
public:
    /// \returns nothing when QSettings did not survive the file.
    std::optional<QMap<QString, QByteArray>> read(const std::string& file)
    {
        if (m_process.state() == QProcess::NotRunning)
            start();
        m_process.write(QByteArray::fromStdString(file) + "\n");
        while (!m_process.canReadLine())
            if (!m_process.waitForReadyRead(patience)) {
                m_process.kill();
                m_process.waitForFinished();
                return std::nullopt;
            }
        QDataStream stream(QByteArray::fromBase64(m_process.readLine()));
        QMap<QString, QByteArray> values;
        stream >> values;
        return values;
    }

    ~TheirReader()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }

private:
    void start()
    {
        m_process.setStandardErrorFile(QProcess::nullDevice());
        m_process.start(READSETTINGS_FILE, QStringList());
        require(m_process.waitForStarted(-1), "QSettings' process cannot be started");
    }

    QProcess m_process;
};

QCoreApplication& application()
{
    static int count = 1;
    static char name[] = "FuzzSettings";
    static char* arguments[] = {name, nullptr};
    static QCoreApplication application(count, arguments);
    return application;
}

/// What differs on purpose (docs/decisions/reading-ini-ourselves.md).
bool differsOnPurpose(const initext::Value& value, const QVariant& decoded)
{
    const auto isOddForm = [](const QString& text) { return text.startsWith('@') && text.count(')') > 1; };
    return std::any_of(value.texts.begin(), value.texts.end(), isOddForm) ||
           decoded.userType() == QMetaType::QEasingCurve;
}

void compare(const std::string& file, std::string_view bytes)
{
    static TheirReader reader;
    const CIniFile ours(QByteArray::fromStdString(file), CIniFile::Access::Read);
    QMap<QString, std::optional<QVariant>> values;
    for (const QString& key : ours.keys()) {
        QString problem;
        values[key] = ours.decoded(key, problem);
        require(values[key].has_value() || !problem.isEmpty(), "a value is refused without a reason");
    }
    const auto theirs = reader.read(file);
    if (!theirs || bytes.starts_with("\xef\xbb\xbf")) // which QSettings takes for a part of the first key
        return;
    const initext::Values texts = initext::parse({bytes.data(), static_cast<int>(bytes.size())});
    require(QStringList(values.keys()) == QStringList(theirs->keys()), "other keys");
    for (auto value = values.begin(); value != values.end(); ++value)
        if (*value && !differsOnPurpose(texts[initext::normalizedKey(value.key())], **value))
            requireSame(storedForm(**value).toHex().toStdString(),
                        theirs->value(value.key()).toHex().toStdString(),
                        "value of " + value.key().toStdString());
}

/// Each of the program's own files refuses or takes it.
void readAsStored(const std::string& file)
{
    using namespace host::settingsfile;
    for (auto* read : {readActionList, readFavorite, readToolSettings}) {
        try {
            read(file);
        } catch (const host::UsageError& error) {
            require(std::string(error.what()).find(file) != std::string::npos,
                    "a refusal does not name the file");
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    application();
    static int number = 0; // QSettings remembers files
    const std::string name = std::to_string(++number) + ".ini";
    const std::string file = workFolder().put(name, textOf(data, size));
    compare(file, textOf(data, size));
    readAsStored(file);
    workFolder().take(name);
    return 0;
}
