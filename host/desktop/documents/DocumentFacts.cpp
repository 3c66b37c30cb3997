#include "DocumentFacts.h"

namespace host::desktop {

DocumentFacts DocumentFacts::fromJson(const QJsonObject& object)
{
    DocumentFacts facts;
    facts.pages = object.value("pages").toInt();
    facts.bookmarks = object.value("bookmarks").toInt(-1);
    facts.signatures = object.value("signatures").toInt();
    facts.isCertified = object.value("certified").toBool();
    facts.isEncrypted = object.value("encrypted").toBool();
    facts.view = ViewReading::fromJson(object);
    return facts;
}

QString DocumentFacts::title() const
{
    const ViewValue title = (*this)[ViewEntry::Title];
    const auto* text = std::get_if<std::string>(&title);
    return text != nullptr ? QString::fromStdString(*text).simplified() : QString();
}

bool DocumentFacts::hasOpenAction() const
{
    return !view.action.isEmpty() || (*this)[ViewEntry::OpenPage] != ViewValue(Unset());
}

} // namespace host::desktop
