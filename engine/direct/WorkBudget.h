#pragma once

#include <cstdint>

namespace engine {

/// How much work a document may cost, in bytes decoded and handed out: a file that exceeds it is hostile, and
/// reading it whole is cheaper.
class WorkBudget
{
public:
    /// \param fileSize in bytes.
    explicit WorkBudget(std::uint64_t fileSize) : m_most(base + perByte * fileSize) {}

    /// \returns false once the budget is exceeded.
    bool spend(std::uint64_t bytes)
    {
        m_spent += bytes;
        return m_spent <= m_most;
    }

private:
    static constexpr std::uint64_t base = 512 << 20;
    static constexpr std::uint64_t perByte = 8;

    std::uint64_t m_most;
    std::uint64_t m_spent = 0;
};

} // namespace engine
