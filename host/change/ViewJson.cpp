#include "ViewJson.h"

#include "ViewValues.h"
#include "host/terminal/NamedFile.h"
#include "host/terminal/Suggestion.h"
#include "host/terminal/UsageError.h"

#include "pdflibrary/ViewNumbers.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>

namespace host::viewjson {

namespace {

using viewentries::Description;
using viewentries::Kind;
using Names = std::vector<std::string>;

const std::size_t largestFile = 1 << 20;
const char openAction[] = "openAction";
const char rectangle[] = "rectangle";
const char preferences[] = "viewerPreferences";
const char fromFileName[] = "titleFromFileName";
const char ifMissing[] = "titleIfMissing";
const char invalid[] = "invalid";

/// What stands in the object of a document besides its view.
const Names facts{"file",      "fileBytes", "pages",   "encrypted",   "signatures",
                  "certified", "bookmarks", "outline", "outlineNote", invalid};

bool isPreference(const Description& entry)
{
    return entry.preference != 0;
}

bool isOfOpenAction(ViewEntry entry)
{
    return entry == ViewEntry::OpenPage || entry == ViewEntry::Zoom;
}

/// Keys of the catalog begin with a small letter.
QString nameOf(const Description& entry)
{
    QString name = entry.key;
    if (!isPreference(entry))
        name[0] = name[0].toLower();
    return name;
}

QString textOf(const QJsonValue& value)
{
    return QString::fromUtf8(
        QJsonDocument(QJsonObject{{"", value}}).toJson(QJsonDocument::Compact).mid(4).chopped(1));
}

[[noreturn]] void refuse(const QString& name, const QJsonValue& value, const std::string& why)
{
    throw UsageError(name.toStdString() + " cannot be " + textOf(value).toStdString() + ": it is " + why);
}

void requireKnown(const QString& name, const Names& known)
{
    if (std::find(known.begin(), known.end(), name.toStdString()) == known.end())
        throw UsageError("unknown name \"" + name.toStdString() + "\"" +
                         suggestion::didYouMean(name.toStdString(), known));
}

int wholeNumber(const QString& name, const QJsonValue& value)
{
    const double number = value.toDouble();
    if (number < 1 || number > INT_MAX || number != std::floor(number))
        refuse(name, value, "a whole number from 1");
    return static_cast<int>(number);
}

/// Only ISO 32000's own names count here: the words of the command line are for people.
int numberOfName(const QString& name, const QJsonValue& value, std::span<const viewentries::Name> names)
{
    Names known;
    for (const viewentries::Name& each : names) {
        if (value == QJsonValue(each.name))
            return each.number;
        known.emplace_back(each.name);
    }
    std::string choices;
    for (const std::string& each : known)
        choices += (choices.empty() ? "" : ", ") + each;
    throw UsageError(name.toStdString() + " cannot be " + textOf(value).toStdString() +
                     suggestion::didYouMean(value.toString().toStdString(), known) + "\nit is one of " +
                     choices);
}

/// Any text: documents have them of all kinds.
ViewValue textValue(const QString& name, const QJsonValue& value)
{
    if (!value.isString())
        refuse(name, value, "a text or null");
    if (!value.toString().isValidUtf16())
        refuse(name, value, "a text of whole characters; half a pair of \\u... is none");
    return value.toString().toStdString();
}

ViewValue valueOf(const Description& entry, const QString& name, const QJsonValue& value)
{
    if (value.isNull())
        return Unset();
    switch (entry.kind) {
    case Kind::Name:
        return numberOfName(name, value, entry.names);
    case Kind::Flag:
        if (!value.isBool())
            refuse(name, value, "true, false or null");
        return value.toBool() ? 1 : 0;
    case Kind::Count:
        return wholeNumber(name, value);
    default:
        return textValue(name, value);
    }
}

ViewValue pageOf(const QJsonValue& value)
{
    if (value == QJsonValue("last"))
        return LastPage();
    if (value.isString())
        refuse("page", value, "a whole number from 1, or \"last\"");
    return wholeNumber("page", value);
}

/// Left, bottom, right and top.
std::array<double, 4> rectangleOf(const QJsonValue& value)
{
    const QJsonArray array = value.toArray();
    std::array<double, 4> sides{};
    bool areNumbers = array.size() == static_cast<int>(sides.size());
    for (std::size_t side = 0; areNumbers && side < sides.size(); ++side) {
        const QJsonValue number = array.at(static_cast<int>(side));
        areNumbers = number.isDouble() && std::abs(number.toDouble()) <= pdflibrary::largestNumber;
        sides.at(side) = number.toDouble();
    }
    if (!areNumbers)
        throw UsageError("openAction of the type FitR needs a rectangle: [left, bottom, right, top], "
                         "in numbers up to 2147483647");
    return sides;
}

/// Any percentage that a document can have, also those beyond what viewers show.
double percentOf(const QJsonValue& value)
{
    const double percent = viewvalues::storedPercent(value.toDouble());
    if (!(percent > 0 && percent <= pdflibrary::largestNumber * 100))
        refuse("zoom", value, "a percentage above 0, up to 214748364700, or null");
    return percent;
}

Magnification magnificationOf(const QJsonObject& object)
{
    Magnification zoom;
    if (const QJsonValue type = object.value("type"); !type.isUndefined() && !type.isNull())
        zoom.type = numberOfName("type", type, viewentries::allMagnifications());
    if (zoom.type == pdflibrary::FitRectangle)
        zoom.rectangle = rectangleOf(object.value(rectangle));
    const QJsonValue percent = object.value("zoom");
    if (percent.isUndefined() || percent.isNull())
        return zoom;
    if (zoom.type != Magnification().type)
        refuse("zoom", percent, "null, for only the type XYZ has a percentage");
    zoom.percent = percentOf(percent);
    return zoom;
}

/// An action that shows no page.
OtherAction otherActionOf(const QJsonObject& object)
{
    const QJsonValue type = object.value("action");
    if (!type.isString() || type.toString().isEmpty())
        refuse("the action of openAction", type, "the type of an action, as \"JavaScript\"");
    for (const char* name : {"page", "type", "zoom"})
        if (object.contains(name))
            throw UsageError("openAction has an action, so it has no " + std::string(name));
    return {type.toString().toStdString()};
}

void parseOpenAction(const QJsonValue& value, ViewChange& change)
{
    if (value.isNull())
        return change.set(ViewEntry::OpenPage, Unset());
    if (!value.isObject())
        refuse(openAction, value, "an object or null");
    const QJsonObject object = value.toObject();
    for (const QString& name : object.keys())
        requireKnown(name, {"page", "type", "zoom", rectangle, "name", "action"});
    if (object.contains("action"))
        return change.set(ViewEntry::OpenPage, otherActionOf(object));
    if (object.contains("page"))
        change.set(ViewEntry::OpenPage, pageOf(object.value("page")));
    else if (object.contains("name"))
        throw UsageError("openAction has no page; a named destination is given by its page");
    if (object.contains("type") || object.contains("zoom"))
        change.set(ViewEntry::Zoom, magnificationOf(object));
}

void parsePreferences(const QJsonValue& value, ViewChange& change)
{
    if (!value.isObject() && !value.isNull())
        refuse(preferences, value, "an object or null");
    const QJsonObject object = value.toObject();
    Names known;
    for (const Description& each : viewentries::all()) {
        if (!isPreference(each))
            continue;
        known.emplace_back(each.key);
        if (value.isNull())
            change.set(each.entry, Unset());
        else if (object.contains(each.key))
            change.set(each.entry, valueOf(each, each.key, object.value(each.key)));
    }
    for (const QString& name : object.keys())
        requireKnown(name, known);
}

bool flagOf(const QJsonObject& object, const char* name)
{
    const QJsonValue value = object.value(name);
    if (!value.isUndefined() && !value.isBool())
        refuse(name, value, "true or false");
    return value.toBool();
}

/// Of the entries that stand in the object of the document itself.
void parseEntries(const QJsonObject& object, ViewChange& change)
{
    Names known = facts;
    known.insert(known.end(), {openAction, preferences, fromFileName, ifMissing});
    for (const Description& each : viewentries::all()) {
        if (isPreference(each) || isOfOpenAction(each.entry))
            continue;
        const QString name = nameOf(each);
        known.push_back(name.toStdString());
        if (object.contains(name))
            change.set(each.entry, valueOf(each, name, object.value(name)));
    }
    for (const QString& name : object.keys())
        requireKnown(name, known);
}

std::string contentOf(const std::string& path)
{
    try {
        return readNamedFile(path, largestFile, "the view");
    } catch (const UsageError& error) {
        if (!path.starts_with('{'))
            throw;
        throw UsageError(std::string(error.what()) +
                         "; --view takes the name of a file, or - for standard input");
    }
}

bool saysNothing(const ViewValue& value)
{
    return std::holds_alternative<Unset>(value) || std::holds_alternative<Invalid>(value);
}

QJsonValue jsonOf(const Description& entry, const ViewValue& value)
{
    if (saysNothing(value))
        return {};
    const int* number = std::get_if<int>(&value);
    if (number == nullptr)
        return QString::fromStdString(viewvalues::wordOf(entry.entry, value));
    if (entry.kind == Kind::Flag)
        return *number != 0;
    const viewentries::Name* name = viewvalues::nameOf(entry.names, *number);
    return name != nullptr ? QJsonValue(name->name) : QJsonValue(*number);
}

void insertMagnification(QJsonObject& object, const Magnification& zoom)
{
    const viewentries::Name* type = viewvalues::nameOf(viewentries::allMagnifications(), zoom.type);
    object.insert("type", type != nullptr ? QJsonValue(type->name) : QJsonValue());
    object.insert("zoom", zoom.percent > 0 ? QJsonValue(zoom.percent) : QJsonValue());
    if (zoom.type != pdflibrary::FitRectangle)
        return;
    QJsonArray sides;
    for (const double side : zoom.rectangle)
        sides.append(side);
    object.insert(rectangle, sides);
}

QJsonValue openActionOf(const ViewChange& change)
{
    QJsonObject object;
    if (const auto& page = change[ViewEntry::OpenPage]; page) {
        if (saysNothing(*page))
            return {};
        if (const auto* action = std::get_if<OtherAction>(&*page))
            return QJsonObject{{"action", QString::fromStdString(action->type)}};
        object.insert("page", jsonOf(viewentries::describe(ViewEntry::OpenPage), *page));
    }
    if (const auto& zoom = change[ViewEntry::Zoom]; zoom) {
        insertMagnification(object, std::get<Magnification>(*zoom));
    }
    return object;
}

QJsonArray invalidEntriesOf(const ViewChange& view)
{
    QJsonArray names;
    for (const Description& each : viewentries::all())
        if (view[each.entry] == ViewValue(Invalid()))
            names.append(nameOf(each));
    return names;
}

} // namespace

ViewChange parse(const QJsonObject& object)
{
    ViewChange change;
    parseEntries(object, change);
    if (object.contains(openAction))
        parseOpenAction(object.value(openAction), change);
    if (object.contains(preferences))
        parsePreferences(object.value(preferences), change);
    if (flagOf(object, fromFileName))
        change.set(ViewEntry::Title, FileNameAsTitle());
    if (flagOf(object, ifMissing))
        change.keepTitles();
    return change;
}

ViewChange readFile(const std::string& path)
{
    QJsonParseError problem;
    const std::string bytes = contentOf(path);
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(bytes), &problem);
    if (!document.isObject())
        throw UsageError("the view " + path + " is not a JSON object" +
                         (bytes.starts_with("%PDF-") ? "; \"--like " + path + "\" takes a document"
                          : document.isNull()        ? ": " + problem.errorString().toStdString()
                                                     : ""));
    try {
        return parse(document.object());
    } catch (const UsageError& error) {
        throw UsageError("the view " + path + ": " + error.what());
    }
}

QJsonObject write(const ViewChange& change)
{
    QJsonObject object;
    QJsonObject preferenceObject;
    for (const Description& each : viewentries::all()) {
        const std::optional<ViewValue>& value = change[each.entry];
        if (!value || isOfOpenAction(each.entry))
            continue;
        if (std::holds_alternative<FileNameAsTitle>(*value))
            object.insert(fromFileName, true);
        else if (isPreference(each))
            preferenceObject.insert(nameOf(each), jsonOf(each, *value));
        else
            object.insert(nameOf(each), jsonOf(each, *value));
    }
    if (change[ViewEntry::OpenPage] || change[ViewEntry::Zoom])
        object.insert(openAction, openActionOf(change));
    if (!preferenceObject.isEmpty())
        object.insert(preferences, preferenceObject);
    if (const QJsonArray names = invalidEntriesOf(change); !names.isEmpty())
        object.insert(invalid, names);
    if (change.keepsTitles())
        object.insert(ifMissing, true);
    return object;
}

} // namespace host::viewjson
