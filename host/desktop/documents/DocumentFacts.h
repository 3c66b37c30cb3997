#pragma once

#include "ViewReading.h"

namespace host::desktop {

/// What the program tells of a document that it could read.
struct DocumentFacts
{
    int pages = 0;
    /// -1 where the program does not tell.
    int bookmarks = -1;
    int signatures = 0;
    bool isCertified = false;
    bool isEncrypted = false;
    ViewReading view;

    /// What `document` events say.
    static DocumentFacts fromJson(const QJsonObject& object);

    ViewValue operator[](ViewEntry entry) const { return view.view[entry].value_or(Unset()); }
    QString title() const;
    bool showsTitle() const { return (*this)[ViewEntry::DisplayDocTitle] == ViewValue(1); }
    /// Also by an action that is none that shows a page.
    bool hasOpenAction() const;
};

} // namespace host::desktop
