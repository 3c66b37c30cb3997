#pragma once

#include "PageRequest.h"

#include <cstddef>
#include <deque>
#include <optional>

namespace host {

/// The pictures that wait to be drawn. The newest one comes first: it is what somebody looks at now. Those of
/// an earlier epoch than the newest are not wanted any more, nor is what waits behind too many.
class RequestQueue
{
public:
    static constexpr std::size_t mostWaiting = 100;

    void add(const PageRequest& request);
    std::optional<PageRequest> takeNext();
    bool isEmpty() const { return m_waiting.empty(); }

private:
    std::deque<PageRequest> m_waiting; ///< The newest at the end.
};

} // namespace host
