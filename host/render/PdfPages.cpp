#include "PdfPages.h"

#include <QPdfDocument>
#include <QPdfDocumentRenderOptions>

#include <algorithm>

namespace host {

namespace {

Failure whyNotLoaded(const QPdfDocument& document)
{
    switch (document.error()) {
    case QPdfDocument::IncorrectPasswordError:
        return {ReasonCode::Password, "a password is needed, and the one given is not right"};
    case QPdfDocument::UnsupportedSecuritySchemeError:
        return {ReasonCode::Encryption, "the document's encryption is not supported"};
    case QPdfDocument::InvalidFileFormatError:
        return {ReasonCode::Damaged, "it is no PDF document, or damaged"};
    default:
        return {ReasonCode::Damaged, "it cannot be drawn"};
    }
}

/// What is drawn has no paper of its own. A painter might start threads for this.
void putOnPaper(const QImage& drawn, QImage& picture)
{
    const auto onWhite = [](int colour, int opacity) {
        return (colour * opacity + 255 * (255 - opacity) + 127) / 255;
    };
    for (int y = 0; y < picture.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(drawn.constScanLine(y));
        auto* to = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const int opacity = qAlpha(from[x]);
            to[x] = qRgb(onWhite(qRed(from[x]), opacity), onWhite(qGreen(from[x]), opacity),
                         onWhite(qBlue(from[x]), opacity));
        }
    }
}

} // namespace

PdfPages::PdfPages(QIODevice& file, const std::string& password) : m_document(new QPdfDocument)
{
    m_document->setPassword(QString::fromStdString(password));
    m_document->load(&file);
    if (m_document->status() != QPdfDocument::Ready) // some failures leave no error
        throw DocumentError(whyNotLoaded(*m_document));
}

PdfPages::~PdfPages() = default;

int PdfPages::count() const
{
    return m_document->pageCount();
}

QSizeF PdfPages::sizeOf(int page) const
{
    return m_document->pageSize(page - 1);
}

QImage PdfPages::picture(int page, const QSize& room) const
{
    const QSizeF size = sizeOf(page);
    if (!(size.width() > 0 && size.height() > 0))
        throw DocumentError({ReasonCode::Damaged, "the page has no size"});
    const QSize pixels =
        size.scaled(room, Qt::KeepAspectRatio).toSize().expandedTo(QSize(1, 1)).boundedTo(room);
    QPdfDocumentRenderOptions options;
    options.setRenderFlags(QPdf::RenderAnnotations);
    const QImage drawn = m_document->render(page - 1, pixels, options);
    QImage picture(pixels, QImage::Format_RGB32);
    if (drawn.format() != QImage::Format_ARGB32 || drawn.size() != pixels || picture.isNull())
        throw DocumentError({ReasonCode::Memory, "there is no picture of the page"});
    putOnPaper(drawn, picture);
    return picture;
}

} // namespace host
