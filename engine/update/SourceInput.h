#pragma once

#include <qpdf/InputSource.hh>

#include <array>
#include <cstdint>
#include <memory>
#include <string>

namespace engine {

class ByteSource;

/// Reading a document costs far more than its size explains. It is thrown through libqpdf, which goes on after
/// exceptions of the standard library.
struct WorkBudgetSpent
{};

/// Lets libqpdf read a byte source. Small reads come from a window of a few kilobytes, large ones go past it.
/// A long tail that belongs to no document is left out, so that libqpdf finds the document's end.
/// Every function that moves the position may throw WorkBudgetSpent.
class SourceInput : public InputSource
{
public:
    /// `name` appears in libqpdf's messages.
    SourceInput(std::shared_ptr<const ByteSource> source, std::string name);

    qpdf_offset_t findAndSkipNextEOL() override;
    const std::string& getName() const override { return m_name; }
    qpdf_offset_t tell() override { return m_position; }
    void seek(qpdf_offset_t offset, int whence) override;
    void rewind() override { m_position = 0; }
    std::size_t read(char* into, std::size_t size) override;
    void unreadCh(char) override;

private:
    std::size_t available(std::size_t size) const;
    bool windowHolds(qpdf_offset_t position) const;
    void moveWindow();
    void spend(std::size_t work);
    bool peek(char& character);

    std::shared_ptr<const ByteSource> m_source;
    std::string m_name;
    qpdf_offset_t m_end;
    qpdf_offset_t m_position = 0;
    qpdf_offset_t m_windowStart = 0;
    std::size_t m_windowSize = 0;
    std::array<char, 8192> m_window;
    std::uint64_t m_budget;
};

} // namespace engine
