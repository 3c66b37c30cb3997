#include "LanguageTag.h"

#include <QRegularExpression>

namespace host {

namespace {

// The productions of RFC 5646, 2.1, in its order; letters in any case.
const char grammar[] = R"(^(?:
    (?: [a-z]{2,3} (?:-[a-z]{3}){0,3} | [a-z]{4,8} )   # language, with up to three extensions
    (?:-[a-z]{4})?                                     # script
    (?:-(?: [a-z]{2} | [0-9]{3} ))?                    # region
    (?:-(?: [a-z0-9]{5,8} | [0-9][a-z0-9]{3} ))*       # variants
    (?:-[0-9a-wy-z](?:-[a-z0-9]{2,8})+)*               # extensions
    (?:-x(?:-[a-z0-9]{1,8})+)?                         # private use
  | x(?:-[a-z0-9]{1,8})+
  | en-GB-oed | i-(?:ami|bnn|default|enochian|hak|klingon|lux|mingo|navajo|pwn|tao|tay|tsu)
  | sgn-(?:BE-FR|BE-NL|CH-DE)                          # registered before the grammar was
)\z)";

} // namespace

bool isLanguageTag(const std::string& text)
{
    static const QRegularExpression tag(QString::fromLatin1(grammar),
                                        QRegularExpression::CaseInsensitiveOption |
                                            QRegularExpression::ExtendedPatternSyntaxOption);
    return tag.match(QString::fromStdString(text)).hasMatch();
}

} // namespace host
