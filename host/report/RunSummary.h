#pragma once

#include "host/plan/DocumentJob.h"

#include <QJsonObject>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace host {

/// Counts what became of the documents, and says it in the end.
class RunSummary
{
public:
    /// \param place the document's in the input; failures are told in that order.
    void add(std::size_t place, const std::string& name, const DocumentResult& result);
    void addNotDone(const std::string& name) { m_notDone.push_back(name); }
    /// A document that an earlier run has done.
    void addDoneBefore() { ++m_doneBefore; }

    bool anyFailed() const { return !m_failures.empty(); }

    /// One line about one document, for readers without a progress bar. Safe to print.
    static std::string lineFor(const std::string& name, const DocumentResult& result, bool dryRun);

    /// Each failure with its file and reason, a line each. Safe to print, as are the others.
    std::string failures() const;
    /// What is to be noted of other documents.
    std::string notes() const;
    std::string notDone() const;
    /// "3 changed, 1 unchanged, 0 failed", with a line feed.
    std::string counts(bool dryRun) const;
    /// The same for programs.
    QJsonObject toJson() const;

private:
    struct About
    {
        std::string name;
        std::string text;
    };

    std::size_t m_changed = 0;
    std::size_t m_unchanged = 0;
    std::size_t m_doneBefore = 0;
    std::map<std::size_t, About> m_failures;
    std::map<std::size_t, About> m_notes;
    std::vector<std::string> m_notDone;
};

} // namespace host
