#include "RequestQueue.h"

namespace host {

void RequestQueue::add(const PageRequest& request)
{
    std::erase_if(m_waiting, [&](const PageRequest& each) { return each.epoch < request.epoch; });
    if (!m_waiting.empty() && m_waiting.back().epoch > request.epoch)
        return;
    m_waiting.push_back(request);
    if (m_waiting.size() > mostWaiting)
        m_waiting.pop_front();
}

std::optional<PageRequest> RequestQueue::takeNext()
{
    if (m_waiting.empty())
        return std::nullopt;
    const PageRequest newest = m_waiting.back();
    m_waiting.pop_back();
    return newest;
}

} // namespace host
