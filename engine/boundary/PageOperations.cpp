#include "Operations.h"
#include "Session.h"
#include "engine/files/EngineError.h"
#include "pdflibrary/ViewNumbers.h"

#include <algorithm>
#include <cmath>

namespace engine::operations {

using namespace pdflibrary;

namespace {

// What viewers take for a page that states no size.
const QPDFObjectHandle::Rectangle letterSize(0, 0, 612, 792);

bool isBox(Document& document, QPDFObjectHandle object)
{
    if (!object.isArray() || object.getArrayNItems() != 4)
        return false;
    for (int index = 0; index < 4; ++index) {
        QPDFObjectHandle corner = document.item(object, index);
        if (!corner.isNumber() || !std::isfinite(corner.getNumericValue()))
            return false;
    }
    return true;
}

QPDFObjectHandle::Rectangle normalised(QPDFObjectHandle box)
{
    const QPDFObjectHandle::Rectangle raw = box.getArrayAsRectangle();
    return {std::min(raw.llx, raw.urx), std::min(raw.lly, raw.ury), std::max(raw.llx, raw.urx),
            std::max(raw.lly, raw.ury)};
}

/// The media and crop boxes are inherited; the crop box is by default the media box, the others the crop box.
QPDFObjectHandle::Rectangle pageBox(Document& document, const PagePath& path, int box)
{
    const char* const key = pageBoxNames[static_cast<std::size_t>(box)];
    const bool inherits = box == MediaBox || box == CropBox;
    QPDFObjectHandle stored = inherits ? path.inherited(document, key, isBox) : document.key(path.page, key);
    if (isBox(document, stored))
        return normalised(stored);
    if (box == MediaBox)
        return letterSize;
    return pageBox(document, path, box == CropBox ? MediaBox : CropBox);
}

const PagePath& selectedPage(Session& session)
{
    OpenDocument& open = session.document();
    return open.pages.page(open.selectedPage);
}

double dimensionOf(const QPDFObjectHandle::Rectangle& box, int dimension)
{
    switch (dimension) {
    case BoxLeft:
        return box.llx;
    case BoxTop:
        return box.ury;
    case BoxWidth:
        return box.urx - box.llx;
    case BoxHeight:
        return box.ury - box.lly;
    case BoxRight:
        return box.urx;
    case BoxBottom:
        return box.lly;
    default:
        throw EngineError(ErrorCode::BadArgument);
    }
}

bool isInteger(Document&, QPDFObjectHandle object)
{
    return object.isInteger();
}

} // namespace

int PageCount(Session& session)
{
    return session.document().pages.pageCount();
}

int SelectPage(Session& session, int page)
{
    OpenDocument& open = session.document();
    open.pages.requirePage(page);
    open.selectedPage = page;
    return 1;
}

int SelectedPage(Session& session)
{
    return session.document().selectedPage;
}

double GetPageBox(Session& session, int box, int dimension)
{
    OpenDocument& open = session.document();
    if (box < MediaBox || box > ArtBox)
        throw EngineError(ErrorCode::BadArgument);
    if (open.lastBox.page != open.selectedPage || open.lastBox.box != box)
        open.lastBox = {open.selectedPage, box, pageBox(open.document, selectedPage(session), box)};
    return dimensionOf(open.lastBox.rectangle, dimension);
}

double PageWidth(Session& session)
{
    return GetPageBox(session, MediaBox, BoxWidth);
}

double PageHeight(Session& session)
{
    return GetPageBox(session, MediaBox, BoxHeight);
}

int PageRotation(Session& session)
{
    QPDFObjectHandle rotate =
        selectedPage(session).inherited(session.document().document, "/Rotate", isInteger);
    const long long degrees = rotate.isInteger() ? rotate.getIntValue() % 360 : 0;
    return degrees % 90 == 0 ? static_cast<int>((degrees + 360) % 360) : 0;
}

} // namespace engine::operations
