#pragma once

#include "ViewDifference.h"

#include <array>
#include <string>
#include <vector>

class TelvarPDFLibraryCPDylibCPP1311;

namespace host {

/// How a document opens at one time, in words, to be held against another time.
class ViewSnapshot
{
public:
    /// Of the selected document. Throws std::runtime_error when the library cannot tell.
    explicit ViewSnapshot(TelvarPDFLibraryCPDylibCPP1311& library);

    /// What is other in a later one.
    std::vector<ViewDifference> differencesTo(const ViewSnapshot& later) const;

private:
    std::array<std::string, viewEntryCount> m_words;
    std::array<double, 4> m_place{}; ///< On the page, of an open action that is a destination.
};

} // namespace host
