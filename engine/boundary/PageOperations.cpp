#include "Operations.h"
#include "Session.h"
#include "engine/files/EngineError.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace engine::operations {

namespace {

enum Box { Media = 1, Crop, Bleed, Trim, Art };
enum Dimension { Left, Top, Width, Height, Right, Bottom };

const std::array boxKeys{"", "/MediaBox", "/CropBox", "/BleedBox", "/TrimBox", "/ArtBox"};

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
    const bool inherits = box == Media || box == Crop;
    QPDFObjectHandle own = document.key(path.page, boxKeys[box]);
    QPDFObjectHandle stored = inherits ? path.inherited(document, boxKeys[box], isBox) : own;
    if (isBox(document, stored))
        return normalised(stored);
    if (box == Media)
        return letterSize;
    return pageBox(document, path, box == Crop ? Media : Crop);
}

const PagePath& selectedPage(Session& session)
{
    OpenDocument& open = session.document();
    return open.pages.page(open.selectedPage);
}

double dimensionOf(const QPDFObjectHandle::Rectangle& box, int dimension)
{
    switch (dimension) {
    case Left:
        return box.llx;
    case Top:
        return box.ury;
    case Width:
        return box.urx - box.llx;
    case Height:
        return box.ury - box.lly;
    case Right:
        return box.urx;
    case Bottom:
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
    if (box < Media || box > Art)
        throw EngineError(ErrorCode::BadArgument);
    if (open.lastBox.page != open.selectedPage || open.lastBox.box != box)
        open.lastBox = {open.selectedPage, box, pageBox(open.document, selectedPage(session), box)};
    return dimensionOf(open.lastBox.rectangle, dimension);
}

double PageWidth(Session& session)
{
    return GetPageBox(session, Media, Width);
}

double PageHeight(Session& session)
{
    return GetPageBox(session, Media, Height);
}

int PageRotation(Session& session)
{
    QPDFObjectHandle rotate =
        selectedPage(session).inherited(session.document().document, "/Rotate", isInteger);
    const long long degrees = rotate.isInteger() ? rotate.getIntValue() % 360 : 0;
    return degrees % 90 == 0 ? static_cast<int>((degrees + 360) % 360) : 0;
}

} // namespace engine::operations
