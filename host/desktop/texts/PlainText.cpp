#include "PlainText.h"

#include "host/terminal/TerminalText.h"

#include <QTextDocument>

#include <algorithm>

namespace host::desktop::plaintext {

QString tip(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

QString shown(const QString& text)
{
    const QVector<uint> characters = text.toUcs4();
    if (std::none_of(characters.begin(), characters.end(), [](uint each) { return misleads(each); }))
        return text;
    return QString::fromStdString(surelyForTerminal(text.toStdString())).replace('\n', "\\n");
}

} // namespace host::desktop::plaintext
