#pragma once

#include "PageGeometry.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <optional>
#include <string>

namespace engine {

class Document;
class PageTree;

/// What a destination shows, in the library's numbers, none beyond pdflibrary::largestNumber (of the zoom: as a
/// factor). Coordinates that the destination leaves open are 0.
struct Destination
{
    int page = 0; ///< From 1.
    int type = 0; ///< A pdflibrary::DestinationType of the first five.
    int form = 0; ///< The pdflibrary::DestinationType that is written; 0 for none that is known.
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
    double zoom = 0;  ///< Percent, 0 for none.
    std::string name; ///< UTF-8; empty unless it is a named destination.

    bool operator==(const Destination&) const = default;
};

/// Where an action leads to, as the document has it.
struct ActionTarget
{
    QPDFObjectHandle array; ///< The explicit destination.
    std::string name;       ///< As in Destination.
};

/// \param action a destination, or an action that goes to one. Nothing for anything else, and when its name is
/// not defined.
std::optional<ActionTarget> destinationTarget(Document& document, QPDFObjectHandle action);
/// The same of the document's open action.
std::optional<ActionTarget> openActionTarget(Document& document);

/// Nothing when the target's page is no page of the document.
std::optional<Destination> readDestination(Document& document, ActionTarget target, PageTree& pages);

/// What follows the page in an explicit destination: its type and all operands.
/// \param form a pdflibrary::DestinationType but FitRectangle.
/// \param zoom in percent, 0 for none.
/// \param corner the upper left one of what is to be seen, as the page is shown.
/// \param onItsSide the page is shown rotated by 90 or 270 degrees: what is at the top is one of its sides.
QPDFObjectHandle destinationOperands(int form, int zoom, const Point& corner, bool onItsSide);

/// The same for /FitR, which shows this part of the page.
QPDFObjectHandle rectangleOperands(const QPDFObjectHandle::Rectangle& rectangle);

/// A destination of type /XYZ that shows what `array`, which reads as that type, shows at another
/// magnification.
/// \param percent 0 for none.
QPDFObjectHandle magnified(Document& document, QPDFObjectHandle array, double percent);

/// Lets the document open at this explicit destination. What else an action does stays where it is one that
/// goes to a destination; any other is replaced.
void redirectOpenAction(Document& document, QPDFObjectHandle array);

/// True when an explicit destination shows this page object with these operands, exactly as it would be
/// written.
bool isWrittenAs(Document& document, QPDFObjectHandle array, const QPDFObjectHandle& page,
                 QPDFObjectHandle operands);

} // namespace engine
