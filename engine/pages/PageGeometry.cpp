#include "PageGeometry.h"

#include "PageTree.h"
#include "engine/document/Document.h"

#include "pdflibrary/ViewNumbers.h"

#include <algorithm>

namespace engine {

namespace {

using pdflibrary::CropBox;
using pdflibrary::MediaBox;
using Rectangle = QPDFObjectHandle::Rectangle;

// What viewers take for a page that states no size.
const Rectangle letterSize(0, 0, 612, 792);

bool isBox(Document& document, QPDFObjectHandle object)
{
    if (!object.isArray() || object.getArrayNItems() != 4)
        return false;
    for (int index = 0; index < 4; ++index) {
        QPDFObjectHandle corner = document.item(object, index);
        if (!corner.isNumber())
            return false;
    }
    return true;
}

bool isInteger(Document&, QPDFObjectHandle object)
{
    return object.isInteger();
}

Rectangle normalised(QPDFObjectHandle box)
{
    const Rectangle raw = box.getArrayAsRectangle();
    // In braces: of two temporary numbers it would return references.
    const auto [left, right] = std::minmax({withinNumbers(raw.llx), withinNumbers(raw.urx)});
    const auto [bottom, top] = std::minmax({withinNumbers(raw.lly), withinNumbers(raw.ury)});
    return {left, bottom, right, top};
}

/// Viewers show of the crop box what lies in the media box; a crop box beside it counts for nothing.
Rectangle shownBox(Document& document, const PagePath& path)
{
    const Rectangle media = pageBox(document, path, MediaBox);
    const Rectangle crop = pageBox(document, path, CropBox);
    const Rectangle shown(std::max(media.llx, crop.llx), std::max(media.lly, crop.lly),
                          std::min(media.urx, crop.urx), std::min(media.ury, crop.ury));
    return shown.llx < shown.urx && shown.lly < shown.ury ? shown : media;
}

} // namespace

double withinNumbers(double number)
{
    return std::clamp(number, -pdflibrary::largestNumber, pdflibrary::largestNumber);
}

Rectangle pageBox(Document& document, const PagePath& path, int box)
{
    const char* const boxKey = pdflibrary::pageBoxNames[static_cast<std::size_t>(box)];
    const bool inherits = box == MediaBox || box == CropBox;
    QPDFObjectHandle stored =
        inherits ? path.inherited(document, boxKey, isBox) : document.key(path.page, boxKey);
    if (isBox(document, stored))
        return normalised(stored);
    if (box == MediaBox)
        return letterSize;
    return pageBox(document, path, box == CropBox ? MediaBox : CropBox);
}

int pageRotation(Document& document, const PagePath& path)
{
    QPDFObjectHandle rotate = path.inherited(document, "/Rotate", isInteger);
    const long long degrees = rotate.isInteger() ? rotate.getIntValue() % 360 : 0;
    return degrees % 90 == 0 ? static_cast<int>((degrees + 360) % 360) : 0;
}

Point upperLeftAsShown(Document& document, const PagePath& path, const Rectangle& rectangle)
{
    const int rotation = pageRotation(document, path);
    const bool atRight = rotation == 180 || rotation == 270;
    const bool atBottom = rotation == 90 || rotation == 180;
    const Rectangle shown = shownBox(document, path);
    return {std::clamp(atRight ? rectangle.urx : rectangle.llx, shown.llx, shown.urx),
            std::clamp(atBottom ? rectangle.lly : rectangle.ury, shown.lly, shown.ury)};
}

} // namespace engine
