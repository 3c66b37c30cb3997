#include "Destination.h"

#include "NamedDestinations.h"
#include "PageTree.h"
#include "engine/document/Document.h"
#include "pdflibrary/ViewNumbers.h"

#include <qpdf/QUtil.hh>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace engine {

namespace {

using namespace pdflibrary;

const int written = 6;      // decimal places of a number
const int firstOperand = 2; // of an explicit destination: page and type come before

using Operand = double Destination::*;

/// A form of explicit destinations, and which operands follow its name, in their order.
struct DestinationForm
{
    const char* name;
    DestinationType type;
    std::array<Operand, 4> operands;
};

// clang-format off
// At the number of the form, less one.
const DestinationForm forms[] = {
    {destinationNames[Zoomed],       Zoomed,     {&Destination::left, &Destination::top, &Destination::zoom}},
    {destinationNames[FitPage],      FitPage,    {}},
    {destinationNames[FitWidth],     FitWidth,   {&Destination::top}},
    {destinationNames[FitHeight],    FitHeight,  {&Destination::left}},
    {destinationNames[FitVisible],   FitVisible, {&Destination::top}},
    {destinationNames[FitBox],       FitVisible, {}},
    {destinationNames[FitBoxHeight], FitVisible, {&Destination::left}},
    {destinationNames[FitRectangle], Zoomed,     {&Destination::left, &Destination::bottom, &Destination::right, &Destination::top}},
};
// clang-format on

/// 0 for a name that is none of them.
int formOf(QPDFObjectHandle name)
{
    const auto* const found =
        std::find_if(std::begin(forms), std::end(forms),
                     [&](const DestinationForm& form) { return name.isNameAndEquals(form.name); });
    return found == std::end(forms) ? 0 : static_cast<int>(found - forms) + 1;
}

/// A destination without a type that is known shows the page as /XYZ without operands does.
const DestinationForm& rowOfForm(int form)
{
    return forms[std::max(form, 1) - 1];
}

/// An operand as it stands in a destination; null where that has none.
QPDFObjectHandle operandOf(QPDFObjectHandle array, const DestinationForm& form, Operand operand)
{
    const auto place = std::find(form.operands.begin(), form.operands.end(), operand) - form.operands.begin();
    const int index = firstOperand + static_cast<int>(place);
    return index < array.getArrayNItems() ? array.getArrayItem(index) : QPDFObjectHandle::newNull();
}

QPDFObjectHandle arrayOf(Document& document, QPDFObjectHandle destination)
{
    return destination.isDictionary() ? document.key(destination, "/D") : destination;
}

int pageOf(QPDFObjectHandle target, PageTree& pages)
{
    if (!target.isInteger())
        return pages.numberOf(target);
    const long long index = target.getIntValue();
    return index >= 0 && index < pages.pageCount() ? static_cast<int>(index) + 1 : 0;
}

bool isGoTo(Document& document, QPDFObjectHandle action)
{
    return action.isDictionary() && document.key(action, "/S").isNameAndEquals("/GoTo");
}

/// Within pdflibrary::largestNumber: one that is whole is written without a point, as an integer.
QPDFObjectHandle numberOrNull(double value, bool isNull)
{
    return isNull ? QPDFObjectHandle::newNull() : QPDFObjectHandle::newReal(value + 0.0, written); // no "-0"
}

QPDFObjectHandle operandsOf(const DestinationForm& form, const Destination& values)
{
    QPDFObjectHandle operands = QPDFObjectHandle::newArray();
    operands.appendItem(QPDFObjectHandle::newName(form.name));
    for (const Operand operand : form.operands)
        if (operand != nullptr)
            operands.appendItem(
                numberOrNull(values.*operand, operand == &Destination::zoom && values.zoom == 0));
    return operands;
}

bool isNone(QPDFObjectHandle zoom)
{
    return zoom.isNull() || (zoom.isNumber() && zoom.getNumericValue() == 0);
}

bool sameOperand(QPDFObjectHandle one, QPDFObjectHandle other)
{
    if (one.isNumber() && other.isNumber())
        return QUtil::double_to_string(one.getNumericValue() + 0.0, written) ==
               QUtil::double_to_string(other.getNumericValue() + 0.0, written);
    return one.isNull() && other.isNull();
}

} // namespace

std::optional<ActionTarget> openActionTarget(Document& document)
{
    return destinationTarget(document, document.key(document.catalog(), "/OpenAction"));
}

std::optional<ActionTarget> destinationTarget(Document& document, QPDFObjectHandle action)
{
    if (action.isDictionary())
        action = isGoTo(document, action) ? document.key(action, "/D") : QPDFObjectHandle::newNull();
    ActionTarget target{action, {}};
    if (action.isName() || action.isString()) {
        target.array = arrayOf(document, findNamedDestination(document, action));
        target.name = action.isName() ? action.getName().substr(1) : action.getUTF8Value();
    }
    if (!target.array.isArray() || target.array.getArrayNItems() == 0)
        return std::nullopt;
    return target;
}

std::optional<Destination> readDestination(Document& document, ActionTarget target, PageTree& pages)
{
    Destination destination;
    destination.name = std::move(target.name);
    destination.page = pageOf(document.item(target.array, 0), pages);
    if (destination.page == 0)
        return std::nullopt;
    destination.form = formOf(document.item(target.array, 1));
    const DestinationForm& form = rowOfForm(destination.form);
    destination.type = form.type;
    int index = firstOperand;
    for (const Operand member : form.operands) {
        if (member == nullptr)
            break;
        QPDFObjectHandle operand = document.item(target.array, index++);
        if (operand.isNumber())
            destination.*member = withinNumbers(operand.getNumericValue());
    }
    destination.zoom = std::round(destination.zoom * 1e6) / 1e4; // no binary fractions: 0.07 is 7 %
    return destination;
}

QPDFObjectHandle destinationOperands(int form, int zoom, const Point& corner, bool onItsSide)
{
    const bool isPoint = form == Zoomed; // the others name an edge of the page as it is shown
    Destination values;
    values.left = onItsSide && !isPoint ? corner.y : corner.x;
    values.top = onItsSide && !isPoint ? corner.x : corner.y;
    values.zoom = zoom / 100.0;
    return operandsOf(rowOfForm(form), values);
}

QPDFObjectHandle rectangleOperands(const QPDFObjectHandle::Rectangle& rectangle)
{
    Destination values;
    values.left = rectangle.llx;
    values.bottom = rectangle.lly;
    values.right = rectangle.urx;
    values.top = rectangle.ury;
    return operandsOf(rowOfForm(FitRectangle), values);
}

QPDFObjectHandle magnified(Document& document, QPDFObjectHandle array, double percent)
{
    const DestinationForm& form = rowOfForm(formOf(document.item(array, 1)));
    return QPDFObjectHandle::newArray(
        {array.getArrayItem(0), QPDFObjectHandle::newName(destinationNames[Zoomed]),
         operandOf(array, form, &Destination::left), operandOf(array, form, &Destination::top),
         numberOrNull(percent / 100, percent == 0)});
}

void redirectOpenAction(Document& document, QPDFObjectHandle array)
{
    QPDFObjectHandle action = document.key(document.catalog(), "/OpenAction");
    if (isGoTo(document, action)) {
        action = action.shallowCopy();
        action.replaceKey("/D", array);
        action.removeKey("/SD"); // the same for structure elements, which would count before it
        array = action;
    }
    document.setCatalogKey("/OpenAction", array);
}

bool isWrittenAs(Document& document, QPDFObjectHandle array, const QPDFObjectHandle& page,
                 QPDFObjectHandle operands)
{
    QPDFObjectHandle target = document.item(array, 0);
    const int size = operands.getArrayNItems();
    if (!page.isIndirect() || target.getObjGen() != page.getObjGen() || array.getArrayNItems() != size + 1 ||
        !document.item(array, 1).isNameAndEquals(operands.getArrayItem(0).getName()))
        return false;
    const DestinationForm& form = rowOfForm(formOf(operands.getArrayItem(0)));
    for (int index = 1; index < size; ++index) {
        QPDFObjectHandle stored = document.item(array, index + 1);
        QPDFObjectHandle wanted = operands.getArrayItem(index);
        const bool isZoom = form.operands[static_cast<std::size_t>(index) - 1] == &Destination::zoom;
        if (!(isZoom && isNone(stored) && isNone(wanted)) && !sameOperand(stored, wanted))
            return false;
    }
    return true;
}

} // namespace engine
