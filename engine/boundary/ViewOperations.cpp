#include "Arguments.h"
#include "Operations.h"
#include "Session.h"
#include "engine/document/Text.h"
#include "engine/pages/PageGeometry.h"
#include "pdflibrary/ViewerPreferences.h"

#include <array>

namespace engine::operations {

using pdflibrary::PreferenceRow;

namespace {

/// An entry's value as the getter returns it, and whether setting that value would change anything.
struct Stored
{
    int value;
    bool replaceable; ///< Something stands there that is no valid value.

    bool is(int wanted) const { return value == wanted && !replaceable; }
};

Stored storedName(QPDFObjectHandle entry, const auto& names, int absent)
{
    for (std::size_t number = 0; number < names.size(); ++number)
        if (entry.isNameAndEquals(names[number]))
            return {static_cast<int>(number), false};
    return {absent, !entry.isNull()};
}

Stored storedPageMode(Document& document)
{
    return storedName(document.key(document.catalog(), "/PageMode"), pdflibrary::pageModeNames,
                      pdflibrary::PageOnly);
}

Stored storedPageLayout(Document& document)
{
    return storedName(document.key(document.catalog(), "/PageLayout"), pdflibrary::pageLayoutNames,
                      pdflibrary::NoPageLayout);
}

QPDFObjectHandle preferencesOf(Document& document)
{
    return document.key(document.catalog(), "/ViewerPreferences");
}

Stored storedNumber(QPDFObjectHandle entry, const PreferenceRow& preference, int absent)
{
    const long long number = entry.isInteger() ? entry.getIntValue() : -1;
    if (number < 1 || number > preference.highest())
        return {absent, !entry.isNull()};
    return {static_cast<int>(number), false};
}

Stored storedPreference(Document& document, const PreferenceRow& preference, int absent)
{
    QPDFObjectHandle dictionary = preferencesOf(document);
    if (!dictionary.isDictionary())
        return {absent, !dictionary.isNull()};
    QPDFObjectHandle entry = document.key(dictionary, preference.pdfName);
    if (preference.isNumber)
        return storedNumber(entry, preference, absent);
    if (!preference.names.empty())
        return storedName(entry, preference.names, absent);
    return entry.isBool() ? Stored{entry.getBoolValue(), false} : Stored{absent, !entry.isNull()};
}

/// Of a text only whether there is one: 0.
Stored storedText(QPDFObjectHandle entry)
{
    if (entry.isString())
        return {0, false};
    return {pdflibrary::NoPreference, !entry.isNull()};
}

PreferenceRow preferenceOf(int option)
{
    const std::optional<PreferenceRow> preference = pdflibrary::findPreference(option);
    require(preference.has_value(), ErrorCode::BadArgument);
    return *preference;
}

/// An entry whose value is NoPreference where it has none.
Stored storedEntry(Document& document, int option)
{
    const auto entry = [&](const char* key) { return document.key(document.catalog(), key); };
    switch (option) {
    case pdflibrary::PageModeEntry:
        return storedName(entry("/PageMode"), pdflibrary::pageModeNames, pdflibrary::NoPreference);
    case pdflibrary::PageLayoutEntry:
        return storedName(entry("/PageLayout"), pdflibrary::pageLayoutNames, pdflibrary::NoPreference);
    case pdflibrary::LanguageEntry:
        return storedText(entry("/Lang"));
    case pdflibrary::TitleEntry:
        return storedText(document.key(document.trailerKey("/Info"), "/Title"));
    default:
        break;
    }
    const PreferenceRow preference = preferenceOf(option);
    if (!preferencesOf(document).isDictionary()) // which has no entries, valid or not
        return {pdflibrary::NoPreference, false};
    return storedPreference(document, preference, pdflibrary::NoPreference);
}

int asWritten(const Stored& entry)
{
    return entry.replaceable ? pdflibrary::InvalidPreference : entry.value;
}

QPDFObjectHandle preferenceValue(const PreferenceRow& preference, int value)
{
    if (preference.isNumber)
        return QPDFObjectHandle::newInteger(value);
    return preference.names.empty() ? QPDFObjectHandle::newBool(value != 0)
                                    : QPDFObjectHandle::newName(rowOf(preference.names, value));
}

/// The name at a number; null, which removes an entry, for the number behind the last one.
QPDFObjectHandle nameOrNull(const auto& names, int number)
{
    return number > lastOf(names) ? QPDFObjectHandle::newNull()
                                  : QPDFObjectHandle::newName(rowOf(names, number));
}

/// The dictionary that a viewer preference is written to, marked as changed.
QPDFObjectHandle changedPreferences(Document& document)
{
    QPDFObjectHandle dictionary = preferencesOf(document);
    if (!dictionary.isDictionary()) {
        dictionary = QPDFObjectHandle::newDictionary();
        document.catalog().replaceKey("/ViewerPreferences", dictionary);
    }
    if (dictionary.isIndirect())
        document.markChanged(dictionary);
    else
        document.markCatalogChanged();
    return dictionary;
}

/// A dictionary that becomes empty stays: it says the same as none, and only the entry was to go.
void removePreference(Document& document, const PreferenceRow& preference)
{
    QPDFObjectHandle dictionary = preferencesOf(document);
    if (!document.key(dictionary, preference.pdfName).isNull())
        changedPreferences(document).removeKey(preference.pdfName);
}

} // namespace

int GetPageMode(Session& session)
{
    return storedPageMode(session.document().document).value;
}

int SetPageMode(Session& session, int mode)
{
    Document& document = session.document().document;
    requireWithin(mode, pdflibrary::PageOnly, pdflibrary::NoPageMode);
    const bool isAsked = mode == pdflibrary::NoPageMode
                             ? document.key(document.catalog(), "/PageMode").isNull()
                             : storedPageMode(document).is(mode);
    if (!isAsked)
        document.setCatalogKey("/PageMode", nameOrNull(pdflibrary::pageModeNames, mode));
    return 1;
}

int GetPageLayout(Session& session)
{
    return storedPageLayout(session.document().document).value;
}

int SetPageLayout(Session& session, int layout)
{
    Document& document = session.document().document;
    requireWithin(layout, pdflibrary::SinglePage, pdflibrary::NoPageLayout);
    if (!storedPageLayout(document).is(layout))
        document.setCatalogKey("/PageLayout", nameOrNull(pdflibrary::pageLayoutNames, layout));
    return 1;
}

int GetViewerPreferences(Session& session, int option)
{
    Document& document = session.document().document;
    if (option > pdflibrary::AsWritten)
        return asWritten(storedEntry(document, option - pdflibrary::AsWritten));
    const PreferenceRow preference = preferenceOf(option);
    return storedPreference(document, preference, preference.absent).value;
}

int SetViewerPreferences(Session& session, int option, int value)
{
    Document& document = session.document().document;
    const PreferenceRow preference = preferenceOf(option);
    if (value == pdflibrary::NoPreference) {
        removePreference(document, preference);
        return 1;
    }
    require(preference.takes(value), ErrorCode::BadArgument);
    if (!storedPreference(document, preference, preference.absent).is(value))
        changedPreferences(document).replaceKey(preference.pdfName, preferenceValue(preference, value));
    return 1;
}

int GetOpenActionDestination(Session& session)
{
    OpenDocument& open = session.document();
    const auto target = openActionTarget(open.document);
    const auto destination = target ? readDestination(open.document, *target, open.pages) : std::nullopt;
    return destination ? session.destinationId(*destination) : 0;
}

int SetOpenActionDestinationFull(Session& session, int page, int zoom, int destType, double left, double top,
                                 double right, double bottom)
{
    OpenDocument& open = session.document();
    requireWithin(destType, pdflibrary::Zoomed, pdflibrary::FitRectangle);
    require(zoom >= 0, ErrorCode::BadArgument);
    for (const double coordinate : {left, top, right, bottom})
        require(isNumber(coordinate), ErrorCode::BadArgument);
    const PagePath& path = open.pages.page(page);
    const QPDFObjectHandle target = path.page;
    const Point corner = upperLeftAsShown(open.document, path, {left, bottom, right, top});
    const bool onItsSide = pageRotation(open.document, path) % 180 != 0;
    QPDFObjectHandle operands = destType == pdflibrary::FitRectangle
                                    ? rectangleOperands({left, bottom, right, top})
                                    : destinationOperands(destType, zoom, corner, onItsSide);
    const auto present = openActionTarget(open.document);
    if (present && isWrittenAs(open.document, present->array, target, operands))
        return 1;
    operands.insertItem(0, open.pages.reference(page));
    redirectOpenAction(open.document, operands);
    return 1;
}

int RemoveOpenAction(Session& session)
{
    Document& document = session.document().document;
    if (!document.key(document.catalog(), "/OpenAction").isNull())
        document.setCatalogKey("/OpenAction", QPDFObjectHandle::newNull());
    return 1;
}

int GetDestType(Session& session, int destId)
{
    return session.destination(destId).type;
}

int GetDestPage(Session& session, int destId)
{
    return session.destination(destId).page;
}

double GetDestValue(Session& session, int destId, int valueKey)
{
    const Destination& destination = session.destination(destId);
    const std::array values{&Destination::left, &Destination::top, &Destination::right, &Destination::bottom,
                            &Destination::zoom};
    requireWithin(valueKey, pdflibrary::DestinationLeft, pdflibrary::DestinationForm);
    if (valueKey == pdflibrary::DestinationForm)
        return destination.form;
    return destination.*values[static_cast<std::size_t>(valueKey - pdflibrary::DestinationLeft)];
}

std::wstring GetDestName(Session& session, int destId)
{
    return wideFromUtf8(session.destination(destId).name);
}

} // namespace engine::operations
