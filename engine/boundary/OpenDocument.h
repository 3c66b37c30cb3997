#pragma once

#include "engine/document/Document.h"
#include "engine/document/PageTree.h"

namespace engine {

/// A document of a session, with the page that is selected in it.
struct OpenDocument
{
    OpenDocument(std::shared_ptr<ByteSource> source, std::string fileName, std::string_view password)
        : document(std::move(source), std::move(fileName), password), pages(document)
    {}

    /// Opens the document whole when reading it piece by piece came to its end.
    void readWhole()
    {
        document.readWhole();
        pages.forget();
        lastBox = {};
    }

    Document document;
    PageTree pages;
    int selectedPage = 1;

    /// A page box that was asked for: its sides are asked for one by one.
    struct
    {
        int page = 0;
        int box = 0;
        QPDFObjectHandle::Rectangle rectangle;
    } lastBox;
};

} // namespace engine
