#pragma once

#include "Oracle.h"
#include "pdflibrary/ErrorCodes.h"
#include "pdflibrary/FileNameCodec.h"
#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"
#include "pdflibrary/ViewerPreferences.h"

#include <cstdio>
#include <map>
#include <set>
#include <string>

namespace fuzz {

using Library = TelvarPDFLibraryCPDylibCPP1311;
using Account = std::map<std::string, std::string>;

/// All that the library tells of the selected document, by what was asked.
class DocumentAccount
{
public:
    explicit DocumentAccount(Library& library) : m_library(library)
    {
        view();
        texts();
        openAction();
        const int count = m_library.PageCount();
        add("pages", count);
        for (const int number : std::set{1, 2, count / 2, count})
            if (number > 0 && number <= count)
                page(number);
        m_library.SelectPage(1);
        add("bookmarks", m_library.OutlineCount());
        bookmarks(m_library.GetFirstOutline());
        for (const int item : {engine::SignatureCount, engine::ModificationAllowed, engine::Certification})
            add("security " + std::to_string(item), m_library.SecurityInfo(item));
        add("encryption", m_library.EncryptionStatus());
    }

    const Account& entries() const { return m_entries; }
    /// Whether a bound of work or memory was met. Other ways to the same answers meet it elsewhere.
    bool gaveUp() const { return m_gaveUp; }

    static constexpr int mostBookmarks = 40;

private:
    static std::string textOf(int value) { return std::to_string(value); }
    static std::string textOf(const std::wstring& value) { return engine::fileNameFromWide(value); }
    static std::string textOf(double value)
    {
        char text[40];
        std::snprintf(text, sizeof text, "%.17g", value);
        return text;
    }

    template <class Value>
    void add(const std::string& what, const Value& value)
    {
        const auto code = static_cast<engine::ErrorCode>(m_library.LastErrorCode());
        require(code != engine::ErrorCode::Internal, what + " is an internal error");
        m_gaveUp =
            m_gaveUp || code == engine::ErrorCode::OutOfMemory || code == engine::ErrorCode::TooMuchWork;
        m_entries[what] =
            code == engine::ErrorCode::None ? textOf(value) : "code " + textOf(static_cast<int>(code));
    }

    void view()
    {
        add("mode", m_library.GetPageMode());
        add("layout", m_library.GetPageLayout());
        for (const pdflibrary::PreferenceRow& row : pdflibrary::allPreferences) {
            add("preference " + textOf(row.option), m_library.GetViewerPreferences(row.option));
            asWritten(row.option);
        }
        for (int entry = pdflibrary::PageModeEntry; entry <= pdflibrary::TitleEntry; ++entry)
            asWritten(entry);
    }

    void asWritten(int entry)
    {
        add("entry " + textOf(entry), m_library.GetViewerPreferences(pdflibrary::AsWritten + entry));
    }

    void texts()
    {
        for (int key = 0; key <= pdflibrary::InformationModificationDate; ++key)
            add("information " + textOf(key), m_library.GetInformation(key));
        for (const wchar_t* key : {L"Lang", L"PageMode", L"PageLayout", L"Version"})
            add("catalog " + textOf(key), m_library.GetCatalogInformation(key));
        add("metadata", m_library.GetDocumentMetadata());
    }

    void openAction()
    {
        add("action", m_library.GetActionType(pdflibrary::OpenAction));
        const int destination = m_library.GetOpenActionDestination();
        add("action shows a page", destination != 0 ? 1 : 0);
        if (destination == 0)
            return;
        add("action's type", m_library.GetDestType(destination));
        add("action's page", m_library.GetDestPage(destination));
        add("action's name", m_library.GetDestName(destination));
        for (int key = pdflibrary::DestinationLeft; key <= pdflibrary::DestinationForm; ++key)
            add("action's value " + textOf(key), m_library.GetDestValue(destination, key));
    }

    void page(int number)
    {
        const std::string what = "page " + textOf(number);
        add(what, m_library.SelectPage(number));
        for (int box = pdflibrary::MediaBox; box <= pdflibrary::ArtBox; ++box)
            for (int side = pdflibrary::BoxLeft; side <= pdflibrary::BoxBottom; ++side)
                add(what + "'s box " + textOf(box) + textOf(side), m_library.GetPageBox(box, side));
        const int rotation = m_library.PageRotation();
        require(rotation >= 0 && rotation <= 270 && rotation % 90 == 0, "a page is turned oddly");
        add(what + "'s rotation", rotation);
        add(what + "'s size", m_library.PageWidth() + m_library.PageHeight());
    }

    void bookmarks(int id)
    {
        for (; id != 0 && ++m_bookmarks <= mostBookmarks; id = m_library.GetNextOutline(id)) {
            const std::string what = "bookmark " + textOf(m_bookmarks);
            add(what, m_library.OutlineTitle(id));
            add(what + "'s page", m_library.GetOutlinePage(id));
            add(what + "'s style", m_library.GetOutlineStyle(id));
            bookmarks(m_library.GetFirstChildOutline(id));
        }
    }

    Library& m_library;
    Account m_entries;
    bool m_gaveUp = false;
    int m_bookmarks = 0;
};

/// Ends the process unless two accounts are the same but for what was touched.
inline void requireSame(const Account& one, const Account& other, const std::set<std::string>& touched,
                        const std::string& what)
{
    const auto entryOf = [](const Account& account, const std::string& key) {
        const auto found = account.find(key);
        return found == account.end() ? "nothing" : found->second;
    };
    for (const Account& each : {one, other})
        for (const auto& [key, value] : each)
            if (touched.count(key) == 0 && touched.count(key.substr(0, key.find_first_of(" '"))) == 0)
                requireSame(entryOf(one, key), entryOf(other, key),
                            std::string(what).append(": ").append(key));
}

} // namespace fuzz
