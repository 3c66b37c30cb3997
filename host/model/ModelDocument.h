#pragma once

#include "host/change/ViewChange.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace host {

class Cell;
class PresentView;

/// What a command wants to know of how one document opens: for others to open so, or for the window to start
/// with. The document may be anybody's, so a worker reads it.
struct ModelDocument
{
    ViewChange view;
    /// What kind of action it opens with, as ISO 32000 names it; empty for none.
    std::string openAction = {};

    /// Asks in the worker; what it throws is the reason why the document is refused.
    using Ask = std::function<ModelDocument(const PresentView&)>;

    /// Throws UsageError with the document's name when it cannot be read, std::runtime_error when the library
    /// cannot be used, StoppedEarly when a stop signal comes.
    /// \param cell is changed: it allows the document from now on.
    static ModelDocument read(const std::string& file, std::string_view password, Cell& cell, const Ask& ask);

    std::string toRecord() const;
    /// Nothing for what toRecord() cannot have written.
    static std::optional<ModelDocument> fromRecord(const std::string& record);
};

} // namespace host
