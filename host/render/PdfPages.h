#pragma once

#include "host/failures/Failure.h"

#include <QImage>
#include <QSize>

#include <memory>
#include <string>

class QIODevice;
class QPdfDocument;

namespace host {

/// The pages of a document, as pictures.
class PdfPages
{
public:
    /// \param file is open, regular, and lives as long as the object. Throws DocumentError when it cannot be
    /// read.
    PdfPages(QIODevice& file, const std::string& password);
    ~PdfPages();

    int count() const;
    /// In points, as the page is shown.
    QSizeF sizeOf(int page) const;
    /// On white paper, RGB32, as large as fits into the room.
    /// \param page from 1 to count(). Throws DocumentError.
    QImage picture(int page, const QSize& room) const;

private:
    std::unique_ptr<QPdfDocument> m_document;
};

} // namespace host
