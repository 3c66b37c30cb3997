#include "Arguments.h"
#include "Operations.h"
#include "Session.h"
#include "engine/pages/PageGeometry.h"
#include "pdflibrary/ViewNumbers.h"

namespace engine::operations {

using namespace pdflibrary;

namespace {

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
    requireWithin(box, MediaBox, ArtBox);
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
    return pageRotation(session.document().document, selectedPage(session));
}

} // namespace engine::operations
