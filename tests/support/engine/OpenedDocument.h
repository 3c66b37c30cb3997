#pragma once

#include "support/documents/PdfBuilder.h"

#include "engine/boundary/Operations.h"
#include "engine/boundary/Session.h"
#include "pdflibrary/ViewNumbers.h"

#include <QByteArrayList>

#include <functional>

/// A session with one document, whose objects are looked at behind the operations' back.
struct OpenedDocument
{
    explicit OpenedDocument(const std::string& bytes)
    {
        engine::operations::LoadFromString(session, bytes, {});
    }

    engine::Document& document() { return session.document().document; }

    /// An entry of the catalog as it stands there.
    QByteArray entry(const char* key)
    {
        return QByteArray::fromStdString(document().catalog().getKey(key).unparse());
    }

    /// The numbers of the objects that are marked as changed.
    QByteArray changed()
    {
        QByteArrayList objects;
        for (const QPDFObjGen& object : document().changedObjects())
            objects << QByteArray::number(object.getObj());
        return objects.join(' ');
    }

    /// Three pages, objects 3 to 5; further objects from 10 on.
    static std::string bytes(const std::string& catalogEntries,
                             const std::map<int, std::string>& objects = {})
    {
        PdfBuilder builder;
        builder.catalog(catalogEntries).pages(3);
        for (const auto& [number, body] : objects)
            builder.object(number, body);
        return builder.bytes();
    }

    engine::Session session;
};

/// A call of an operation, for tables of data.
using Operation = std::function<int(engine::Session&)>;

/// One with these arguments.
Operation call(auto operation, auto... arguments)
{
    return [=](engine::Session& session) { return static_cast<int>(operation(session, arguments...)); };
}

/// Lets a document with pages of a letter's size open at a page.
inline Operation openAt(int page, int zoom, int type, double left = 0, double top = 792)
{
    return call(engine::operations::SetOpenActionDestinationFull, page, zoom, type, left, top, 612, 0);
}

/// Gives what it opens at another magnification, in percent.
inline Operation magnified(double percent)
{
    return [=](engine::Session& session) {
        using namespace engine::operations;
        const int id = GetOpenActionDestination(session);
        return SetDestValue(session, id, pdflibrary::DestinationZoom, percent);
    };
}
