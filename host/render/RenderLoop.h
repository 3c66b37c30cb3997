#pragma once

#include "RequestQueue.h"
#include "host/files/PipeLines.h"

#include <cstddef>
#include <memory>

namespace host {

class PdfPages;

/// Draws pages of one document as they are asked for: lines on standard input, answers on standard output. The
/// first line names the document (DocumentRequest), the others pages (PageRequest). Each answer is a JSON
/// object in a line; that of a picture tells its `width`, `height` and `bytes`, and so many bytes follow: its
/// rows from the top, without gaps, a pixel in four bytes: blue, green, red, 255. docs/usage.md has an example.
class RenderLoop
{
public:
    static constexpr std::size_t longestLine = 64 << 10;
    static constexpr int idleSeconds = 10;

    RenderLoop();
    ~RenderLoop();

    /// Until nobody asks for anything any more. \returns the exit status: that of something that failed when
    /// the document cannot be drawn. Throws UsageError for what is no request; OutputError.
    int run();

private:
    bool waitForLine() const;
    int serve();
    void takeRequests();
    void answer(const PageRequest& request) const;

    PipeLines m_lines;
    RequestQueue m_waiting;
    std::unique_ptr<PdfPages> m_pages;
};

} // namespace host
