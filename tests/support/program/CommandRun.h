#pragma once

#include <QByteArray>
#include <QStringList>
#include <QTemporaryFile>

#include <unistd.h>

#include <cstdio>
#include <vector>

/// One run of a command within the test, whose dialogs the test can then answer, and what it printed.
struct CommandRun
{
    int status = -1;
    QByteArray out;
    QByteArray err;

    template <class Command>
    CommandRun(Command command, const QStringList& words)
    {
        std::vector<QByteArray> bytes;
        bytes.reserve(static_cast<std::size_t>(words.size()) + 1);
        bytes.emplace_back(command.name());
        for (const QString& word : words)
            bytes.push_back(word.toUtf8());
        std::vector<char*> arguments;
        arguments.reserve(bytes.size() + 1);
        for (QByteArray& word : bytes)
            arguments.push_back(word.data());
        arguments.push_back(nullptr);
        const Capture capturedOut(STDOUT_FILENO, out);
        const Capture capturedErr(STDERR_FILENO, err);
        status = command.run(static_cast<int>(bytes.size()), arguments.data());
    }

private:
    class Capture
    {
    public:
        Capture(int descriptor, QByteArray& bytes) : m_descriptor(descriptor), m_bytes(bytes)
        {
            std::fflush(nullptr);
            m_saved = dup(descriptor);
            if (!m_file.open() || dup2(m_file.handle(), descriptor) < 0)
                qFatal("no capture");
        }
        ~Capture()
        {
            std::fflush(nullptr);
            dup2(m_saved, m_descriptor);
            close(m_saved);
            m_file.seek(0);
            m_bytes = m_file.readAll();
        }
        Capture(const Capture&) = delete;
        Capture& operator=(const Capture&) = delete;

    private:
        QTemporaryFile m_file;
        int m_descriptor;
        int m_saved = -1;
        QByteArray& m_bytes;
    };
};
