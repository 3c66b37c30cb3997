#pragma once

#include <optional>
#include <string>
#include <vector>

namespace host {

class OptionParser;

/// The options that name documents by a list: --files-from and --null.
class ListOptions
{
public:
    /// The object must outlive the parser.
    void take(OptionParser& parser);
    /// Throws UsageError.
    void check() const;

    bool isGiven() const { return m_list.has_value(); }
    bool isStandardInput() const { return m_list == "-"; }
    /// The list's own name.
    const std::string& file() const { return *m_list; }
    /// Reads the list, if there is one. \returns names of files, also for what looks like standard input.
    /// Throws UsageError.
    std::vector<std::string> read() const;

private:
    std::optional<std::string> m_list;
    bool m_nullSeparated = false;
};

} // namespace host
