// Texts that users and others give: page ranges, names of files, what is shown on a terminal, settings files.
// The first byte says which of them the others are.
#include "CActionUtils.h"
#include "Oracle.h"
#include "engine/document/Text.h"
#include "host/change/LanguageTag.h"
#include "host/terminal/TerminalText.h"
#include "shared/ini/IniText.h"

#include <QRegularExpression>

#include <algorithm>
#include <set>

namespace {

using namespace fuzz;

QString fromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

bool matches(const QString& text, const char* form)
{
    return QRegularExpression(form).match(text).hasMatch();
}

bool isPageRange(QString text)
{
    text.remove(' ');
    const bool isPlain =
        std::none_of(text.begin(), text.end(), [](QChar each) { return each.isSurrogate(); });
    return isPlain && matches(text, "^(?!0)\\p{N}+(-(?!0)\\p{N}+)?(,(?!0)\\p{N}+(-(?!0)\\p{N}+)?)*,?\\z");
}

std::set<int> pagesOf(const QString& range, int pageCount, bool skipOdd, bool skipEven)
{
    std::set<int> pages;
    for (const QString& item : range.split(',')) {
        const int dash = item.indexOf('-');
        const int first = item.left(dash).toInt();
        const int last = dash < 0 ? first : item.mid(dash + 1).toInt();
        for (int page = first; first <= pageCount && page <= last; ++page)
            if (!(page % 2 == 0 ? skipEven : skipOdd))
                pages.insert(page);
    }
    return pages;
}

void pageLists(const QString& range, Choices& choices)
{
    const int pageCount = choices.below(60);
    const bool skipOdd = choices.oneIn(4);
    const bool skipEven = choices.oneIn(4);
    QList<int> pages;
    require(CActionUtils::GetPageList(range, pageCount, skipOdd, skipEven, &pages) == !range.isEmpty(),
            "a list of pages is refused");
    const std::set<int> found(pages.begin(), pages.end());
    require(found == pagesOf(range, pageCount, skipOdd, skipEven) || range.isEmpty(), "other pages");
    require(std::is_sorted(pages.begin(), pages.end()) && static_cast<int>(found.size()) == pages.size(),
            "pages that are not in order, or twice");
    QList<int> runs;
    CActionUtils::CollectPageList(&pages, &runs);
    QList<int> counted;
    for (int run = runs.size() - 2; run >= 0; run -= 2)
        for (int page = 0; page < runs[run + 1]; ++page)
            counted.append(runs[run] + page);
    require(counted == pages, "runs of other pages");
}

void pageRanges(std::string_view text)
{
    Choices choices(text);
    const QString range = fromUtf8(text);
    const bool isRange = CActionUtils::ValidatePageRange(range, true);
    require(isRange == isPageRange(range), "what is a page range is not, or the other way round");
    require(isRange || !CActionUtils::ValidatePageRange(range, false),
            "only without reversed ranges it is one");
    const QStringList parts = range.split(';');
    require(CActionUtils::ValidateSplitPageRange(range) ==
                std::all_of(parts.begin(), parts.end(), isPageRange),
            "parts of page ranges");
    if (!matches(range, "[0-9]{5}")) // a list has an entry for each page
        pageLists(range, choices);
}

void fileNames(std::string_view bytes)
{
    const std::wstring wide = engine::wideFromFileName(bytes);
    requireSame(engine::fileNameFromWide(wide), std::string(bytes), "a name comes back as another one");
    const QString text = fromUtf8(bytes);
    if (text.toStdString() == bytes)
        require(wide == text.toStdWString() && engine::wideFromUtf8(bytes) == wide,
                "text is read as another one");
    const std::string made = "a" + engine::utf8FromWide(engine::wideFromUtf8(bytes));
    requireSame(fromUtf8(made).toStdString(), made, "what is made of text is none");
}

void requireHarmless(const std::string& shown, bool linesStay)
{
    require(QString::fromStdString(shown).toStdString() == shown, "what is shown is no text");
    for (const uint character : QString::fromStdString(shown).toUcs4())
        require((linesStay && character == '\n') || !host::misleads(character),
                "something that misleads is shown");
}

void shownTexts(std::string_view bytes)
{
    requireHarmless(host::forTerminal(bytes), false);
    const std::string lines = host::forTerminalLines(bytes);
    requireHarmless(lines, true);
    requireSame(host::surelyForTerminal(lines), lines, "what is safe is not left alone");
    requireHarmless(host::surelyForTerminal(std::string(bytes)), true);
    const std::string text(bytes);
    require(!host::isLanguageTag(text) ||
                matches(QString::fromStdString(text), "^[a-zA-Z]+[0-9]*(-[a-zA-Z0-9]+)*\\z"),
            "that is no language");
}

std::string accountOf(const initext::Values& values)
{
    QString account;
    for (auto value = values.begin(); value != values.end(); ++value)
        account +=
            value.key() + (value->isList ? " = list " : " = ") + value->texts.join(QChar(0xfffe)) + "\n";
    return account.toStdString();
}

void settings(std::string_view bytes)
{
    const initext::Values values = initext::parse({bytes.data(), static_cast<int>(bytes.size())});
    const QByteArray written = initext::format(values);
    const initext::Values again = initext::parse(written);
    requireSame(accountOf(values), accountOf(again), "settings are read again otherwise");
    require(initext::format(again) == written, "settings are written again otherwise");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static constexpr void (*kinds[])(std::string_view) = {pageRanges, fileNames, shownTexts, settings};
    if (size > 0)
        kinds[data[0] % std::size(kinds)](textOf(data, size).substr(1));
    return 0;
}
