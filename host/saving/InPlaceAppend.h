#pragma once

#include "host/failures/Failure.h"

#include <sys/stat.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace host {

class InPlaceFile;

/// Appends an update to a document where it lies, so that whatever happens the document opens as before or as
/// asked: all but the last lines, which readers pass over as long as those are missing, then, when that is on
/// the disk, the last lines, in one piece.
class InPlaceAppend
{
public:
    /// \param file locked, and lent as long as the object lives. \param before the document's state.
    /// \param update in the library's form for this, UpdateForm::ForInPlace.
    InPlaceAppend(const InPlaceFile& file, const struct stat& before, std::string_view update);

    struct Outcome
    {
        /// Empty when the document is as asked, else why not.
        Failure problem = {};
        /// Empty when the document is as asked or as it was; else what is the matter with it.
        std::string aftermath = {};
        /// What the user should know of a document that is as asked; may be empty.
        std::string note = {};

        bool isAppended() const { return !problem; }
        /// The problem and what is left of it.
        Failure whole() const;
    };

    /// On failure the document is cut back, wherever its path leads by then, unless another program has
    /// changed it meanwhile: then it is left as that program left it.
    Outcome perform();

    /// Brings to an end what a process has begun that is no more: cuts half an update off, and flushes a
    /// whole one. \param why the process ended.
    Outcome settle(const Failure& why);

    /// All of an update that stands behind a document before its last lines are written.
    static std::string_view withoutLastLines(std::string_view update);

private:
    /// What is behind the document.
    struct Found
    {
        bool isOfUpdate = false;
        std::size_t size = 0;
        std::string problem = {}; ///< Why it cannot be told.
    };

    /// \returns false, with errno set, on failure.
    bool write(std::string_view bytes);
    /// \returns false, with errno set or 0 for a change, when another program has been there.
    bool isAsLeft() const;
    bool isUntouched() const;
    bool isFileAsLeft() const;
    /// Takes the document's state for the one that this object left it in.
    /// \returns false, with errno set, on failure.
    bool look();
    std::string leftOver() const;
    Found found() const;
    static bool isNothing(const Found& found) { return found.isOfUpdate && found.size == 0; }
    bool isAll(const Found& found) const { return found.isOfUpdate && found.size == m_update.size(); }
    std::optional<std::string> behindDocument() const;
    Outcome failed(const Failure& why) const;
    Outcome cutBack(const Found& found, const Failure& why) const;
    std::int64_t endOf(std::string_view part) const;

    const InPlaceFile& m_file;
    const struct stat m_before;
    std::string_view m_update;
    std::string_view m_begin; ///< Without the last lines.
    /// As this object left the document last; nothing when that is not known.
    std::optional<struct stat> m_left;
};

} // namespace host
