#pragma once

#include "support/documents/SpecialDocuments.h"

#include <QTest>

#include <algorithm>
#include <functional>
#include <optional>

/// What tests of runs over documents share: a folder of their own, which is the current one, and the program
/// as a user has it. Tests derive from it besides QObject.
class BatchFixture
{
protected:
    void begin() { m_folder.emplace(); }
    void end() { m_folder.reset(); }

    QString path() const { return m_folder->path(); }
    QString path(const std::string& name) const { return m_folder->path(name); }

    static std::string put(const std::string& name, const std::string& bytes = PdfBuilder::simple())
    {
        return WorkFolder::put(name, bytes);
    }
    static std::string contentOf(const std::string& name) { return WorkFolder::contentOf(name); }

    /// Settings that change documents to bookmarks, one column, and page 2 as a whole.
    static const QStringList& panelAndPage()
    {
        static const QStringList words =
            QString("--set LayoutAndMagnCheckBox=true --set NavigationTabComboBox=1 --set "
                    "PageLayoutComboBox=1 --set MagnificationComboBox=1 --set OpenToPageSpinBox=2")
                .split(' ');
        return words;
    }

    ProgramRun quintar(const QStringList& arguments, const QByteArray& input = QByteArray()) const
    {
        return ProgramRun(PROGRAM_FILE, arguments, path(), input);
    }

    /// "quintar run" with panelAndPage().
    ProgramRun apply(const QStringList& arguments) const
    {
        return quintar(QStringList{"run"} + arguments + panelAndPage());
    }

    /// What became of the documents, by the file "report".
    static QList<QJsonObject> report()
    {
        QList<QJsonObject> lines = ProgramRun::jsonLines(QByteArray::fromStdString(contentOf("report")));
        const auto isOfNoResult = [](const QJsonObject& line) {
            return line.value("status") == "begun" || line.contains("event");
        };
        lines.erase(std::remove_if(lines.begin(), lines.end(), isOfNoResult), lines.end());
        return lines;
    }

    /// Why a document failed, as the run told it.
    static QString reasonFor(const QByteArray& err, const QByteArray& name)
    {
        for (const QByteArray& line : err.split('\n'))
            if (line.startsWith("failed: " + name + ": "))
                return QString::fromUtf8(line.mid(10 + name.size()));
        return QString();
    }

    /// Temporary files that should have gone.
    static QStringList strays()
    {
        QStringList found;
        for (const auto& entry : std::filesystem::recursive_directory_iterator("."))
            if (entry.path().filename().string().find(".quintar-") != std::string::npos)
                found += QString::fromStdString(entry.path().string());
        return found;
    }

    static bool waitFor(const std::function<bool()>& condition)
    {
        for (int attempt = 0; attempt < 500 && !condition(); ++attempt)
            QTest::qWait(20);
        return condition();
    }

private:
    std::optional<WorkFolder> m_folder;
};
