#pragma once

#include <qpdf/QPDFObjectHandle.hh>

namespace engine {

class Document;
struct PagePath;

/// What a number of a document counts as: the nearest one that every reader takes.
double withinNumbers(double number);

/// A page's box, its corners in order, in points of default user space. The media and crop boxes are
/// inherited; the crop box is by default the media box, the others the crop box, and the media box a
/// letter's. \param box pdflibrary::PageBox.
QPDFObjectHandle::Rectangle pageBox(Document& document, const PagePath& path, int box);

/// Degrees clockwise in which the page is shown: 0, 90, 180 or 270. Inherited; what is no multiple of 90 is
/// as good as absent.
int pageRotation(Document& document, const PagePath& path);

/// A place on a page, in points of default user space.
struct Point
{
    double x = 0;
    double y = 0;
};

/// The corner of a rectangle on a page that is at the upper left when the page is shown, moved to the nearest
/// edge of what viewers show of the page.
/// \param rectangle its sides as they lie on the page before it is rotated.
Point upperLeftAsShown(Document& document, const PagePath& path,
                       const QPDFObjectHandle::Rectangle& rectangle);

} // namespace engine
