// Reads settings files with QSettings: for each name on standard input a line with all keys and values. It
// bounds itself, for QSettings believes what files claim.
#include "StoredForm.h"

#include <QDataStream>
#include <QMap>
#include <QSettings>

#include <sys/resource.h>
#include <unistd.h>

#include <iostream>
#include <string>

namespace {

const rlim_t mostMemory = rlim_t(1) << 30;
const unsigned mostSeconds = 3;

} // namespace

int main()
{
    const rlimit memory{mostMemory, mostMemory};
    const rlimit core{0, 0};
    setrlimit(RLIMIT_AS, &memory);
    setrlimit(RLIMIT_CORE, &core);
    for (std::string name; std::getline(std::cin, name);) {
        alarm(mostSeconds);
        const QSettings settings(QString::fromStdString(name), QSettings::IniFormat);
        QMap<QString, QByteArray> values;
        for (const QString& key : settings.allKeys())
            values[key] = fuzz::storedForm(settings.value(key));
        QByteArray line;
        QDataStream stream(&line, QIODevice::WriteOnly);
        stream << values;
        std::cout << line.toBase64().constData() << std::endl;
        alarm(0);
    }
    return 0;
}
