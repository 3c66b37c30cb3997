#pragma once

#include "Outline.h"
#include "PageTree.h"
#include "engine/document/Document.h"

namespace engine {

/// A document of a session: its objects, its pages, and which page is selected. Owned by the session, used by
/// its thread. All that reads an object may throw DirectReadingEnded; who runs an operation then calls
/// readWhole() and runs it again.
struct OpenDocument
{
    /// Reads the cross-reference and the catalog; pages are looked for when they are asked for.
    /// \param source, fileName, password as Document takes them.
    /// \throws EngineError when the file is no document, is damaged beyond repair, or stays closed to the
    ///     password.
    OpenDocument(std::shared_ptr<ByteSource> source, std::string fileName, std::string_view password)
        : document(std::move(source), std::move(fileName), password), pages(document), outline(document)
    {}

    /// Opens the document whole, by libqpdf, when reading it piece by piece came to its end. The selected
    /// page and all changes stay; handles of objects that were got before are not to be used any more, so the
    /// operation that came to the end runs again from its beginning.
    void readWhole()
    {
        document.readWhole();
        pages.forget();
        lastBox = {};
    }

    /// The objects, and which of them were changed.
    Document document;
    /// The pages of `document`.
    PageTree pages;
    Outline outline;
    /// From 1. The document may have fewer pages: that shows when the page is used.
    int selectedPage = 1;

    /// The page box that was asked for last: its sides are asked for one by one.
    struct
    {
        int page = 0; ///< From 1; 0 for none.
        int box = 0;  ///< A pdflibrary::PageBox.
        QPDFObjectHandle::Rectangle rectangle;
    } lastBox;
};

} // namespace engine
