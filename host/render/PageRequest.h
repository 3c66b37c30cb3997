#pragma once

#include <QSize>

#include <optional>
#include <string>

namespace host {

/// The document whose pages are wanted.
struct DocumentRequest
{
    std::string file; ///< Its bytes.
    std::string password;

    /// Nothing for what is none.
    static std::optional<DocumentRequest> fromJson(const std::string& line);
};

/// A picture of a page that is wanted.
struct PageRequest
{
    static constexpr int mostPixels = 4'000'000;

    int id = 0;   ///< Stands in the answer.
    int page = 0; ///< From 1.
    QSize room;   ///< What the picture has to fit into, in pixels.
    int epoch = 0;

    /// Nothing for what is none: numbers that are missing, and more pixels than there may be.
    static std::optional<PageRequest> fromJson(const std::string& line);
};

} // namespace host
