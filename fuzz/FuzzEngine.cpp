// The library file as its callers meet it: a document is opened, all is read, how it opens is changed, the
// change is appended, and the result is read again.
#include "DocumentAccount.h"
#include "SameObjects.h"

namespace {

using namespace fuzz;

const wchar_t password[] = L"secret"; // of the seeds that are encrypted

/// A new instance now and then, for it keeps the ids that it has given.
Library& freshLibrary()
{
    static Library* library = nullptr; // lives on: the library file's own data end before this program's
    static int used = 0;
    if (used++ % 200 == 0) {
        Library* const fresh =
            new Library(engine::wideFromFileName(ENGINE_FILE)); // first, so that the file stays open
        delete library;
        library = fresh;
    }
    require(library->LibraryLoaded(), "the library file is not there");
    return *library;
}

/// A document that is open while the object lives.
class Opened
{
public:
    Opened(Library& library, const std::string& bytes, bool fromFile = false) : m_library(library)
    {
        const int opened = fromFile ? library.LoadFromFile(fileName("source.pdf", bytes), password)
                                    : library.LoadFromString(bytes, password);
        const int code = library.LastErrorCode();
        m_id = opened == 1 ? library.SelectedDocument() : 0;
        require(opened == 1 || code > static_cast<int>(engine::ErrorCode::Internal) ||
                    code == static_cast<int>(engine::ErrorCode::OutOfMemory),
                "a document is refused without a reason: " + std::to_string(code));
    }
    ~Opened()
    {
        if (m_id != 0)
            m_library.RemoveDocument(m_id);
    }
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;

    int id() const { return m_id; } ///< 0 when it was refused.

private:
    static std::wstring fileName(const std::string& name, const std::string& bytes)
    {
        return engine::wideFromFileName(workFolder().put(name, bytes));
    }

    Library& m_library;
    int m_id;
};

/// Changes how the selected document opens, and notes which entries of its account may differ then.
class Changing
{
public:
    Changing(Library& library, Choices& choices) : m_library(library), m_choices(choices)
    {
        if (m_choices.oneIn(2))
            modeAndLayout();
        for (const pdflibrary::PreferenceRow& row : pdflibrary::allPreferences)
            if (m_choices.oneIn(4))
                preference(row.option);
        if (m_choices.oneIn(2))
            openAction();
        if (m_choices.oneIn(2))
            texts();
        if (m_choices.oneIn(6))
            metadata();
    }

    const std::set<std::string>& touched() const { return m_touched; }

private:
    template <class Value>
    void done(int result, const Value& asked, const Value& present, const std::set<std::string>& touched)
    {
        if (result == 1)
            require(asked == present, *touched.begin() + " is not as asked");
        if (result == 1)
            m_touched.insert(touched.begin(), touched.end());
    }

    void modeAndLayout()
    {
        const int mode = m_choices.below(pdflibrary::NoPageMode + 1);
        const int modeSet = m_library.SetPageMode(mode);
        done(modeSet, mode % pdflibrary::NoPageMode, m_library.GetPageMode(),
             {"mode", "entry 13", "catalog PageMode"});
        const int layout = m_choices.below(pdflibrary::NoPageLayout + 1);
        const int layoutSet = m_library.SetPageLayout(layout);
        done(layoutSet, layout, m_library.GetPageLayout(), {"layout", "entry 14", "catalog PageLayout"});
    }

    void preference(int option)
    {
        const std::string name = std::to_string(option);
        const int value = m_choices.below(7) - 1;
        const int result = m_library.SetViewerPreferences(option, value);
        const int present = m_library.GetViewerPreferences(option + (value < 0 ? pdflibrary::AsWritten : 0));
        done(result, value, present, {"preference " + name, "entry " + name});
    }

    void openAction()
    {
        const int what = m_choices.below(6);
        const int type = 1 + m_choices.below(pdflibrary::FitRectangle);
        const int zoom = m_choices.oneIn(2) ? 0 : m_choices.below(300);
        int result = 0;
        if (what == 0)
            result = m_library.RemoveOpenAction();
        else if (what == 1)
            result = m_library.SetDestValue(m_library.GetOpenActionDestination(), pdflibrary::DestinationZoom,
                                            zoom);
        else
            result =
                m_library.SetOpenActionDestinationFull(1 + m_choices.below(4), zoom, type, 10, 700, 400, 20);
        const int id = m_library.GetOpenActionDestination();
        if (result == 1 && what == 0)
            require(m_library.GetActionType(0).empty(), "the open action is still there");
        if (result == 1 && what > 1)
            require(id != 0 && m_library.GetDestValue(id, pdflibrary::DestinationForm) == type,
                    "the open action is not as asked");
        if (result == 1 && what > 0 && (what == 1 || type == pdflibrary::Zoomed))
            require(m_library.GetDestValue(id, pdflibrary::DestinationZoom) == zoom,
                    "the zoom is not as asked");
        if (result == 1)
            m_touched.insert("action");
    }

    void texts()
    {
        const std::wstring values[] = {L"", L"A title", L"\u00fcber \u20ac \U0001F4C4", L"(a\\",
                                       std::wstring(300, L'x')};
        const std::wstring& text = values[m_choices.below(5)];
        const int key = m_choices.oneIn(2) ? 1 : 1 + m_choices.below(8);
        const int set = m_library.SetInformation(key, text);
        done(set, text, m_library.GetInformation(key), {"information " + std::to_string(key), "entry 16"});
        const std::wstring language = m_choices.oneIn(3) ? L"" : L"en-GB";
        const int languageSet = m_library.SetCatalogInformation(L"Lang", language);
        done(languageSet, language, m_library.GetCatalogInformation(L"Lang"), {"catalog Lang", "entry 15"});
    }

    void metadata()
    {
        const std::wstring packet =
            m_choices.oneIn(4) ? L"" : L"<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\u20ac</x:xmpmeta>";
        const int set = m_library.SetDocumentMetadata(packet);
        done(set, packet, m_library.GetDocumentMetadata(), {"metadata"});
    }

    Library& m_library;
    Choices& m_choices;
    std::set<std::string> m_touched;
};

class Trial
{
public:
    Trial(const std::string& source, unsigned variant)
        : m_source(source), m_choices(source, variant), m_library(freshLibrary())
    {}

    void run()
    {
        const Opened document(m_library, m_source, m_choices.oneIn(8));
        if (document.id() == 0)
            return;
        const DocumentAccount first(m_library); // what is found on the way may change what was told before
        const DocumentAccount before(m_library);
        if (before.gaveUp())
            return;
        const std::set<std::string> touched = Changing(m_library, m_choices).touched();
        const DocumentAccount after(m_library);
        if (after.gaveUp())
            return;
        m_before = before.entries();
        m_after = after.entries();
        requireSame(m_before, m_after, touched, "changed besides what was asked for");
        append();
        appendInPlace();
        if (m_choices.oneIn(4))
            rewrite();
        m_library.IsLinearized();
        require(m_library.GetDocumentID(m_library.DocumentCount()) == document.id(),
                "other documents are open");
    }

private:
    void append()
    {
        const int refusal = m_library.SecurityInfo(engine::AppendRefusal);
        const std::string update = m_library.AppendToString(engine::ForCopy);
        const int code = m_library.LastErrorCode();
        require(code == refusal, "appending ends with " + std::to_string(code) + " and was to end with " +
                                     std::to_string(refusal));
        require(code != static_cast<int>(engine::ErrorCode::Internal), "appending is an internal error");
        require((code == 0) == !update.empty(), "an update is empty, or one that was refused is not");
        if (update.empty())
            return;
        const std::string result = m_source + update;
        if (m_choices.oneIn(8)) {
            require(m_library.AppendToFile(engine::wideFromFileName(workFolder().file("result.pdf"))) == 1,
                    "the update can be had and not be written");
            const std::string written = workFolder().take("result.pdf"); // encrypted, it differs each time
            require(written.starts_with(m_source) && (written == result || m_library.EncryptionStatus() != 0),
                    "a file is not its document and the update");
            judge(written, m_after, "appended to a file");
        }
        judge(result, m_after, "appended");
        if (!hasUnendedStreams(m_source))
            requireSameObjects(m_source, result);
    }

    void appendInPlace()
    {
        const std::string update = m_library.AppendToString(engine::ForInPlace);
        if (update.empty())
            return;
        judge(m_source + update, m_after, "appended in place");
        const std::size_t unfinished = update.rfind("startxref");
        require(unfinished != update.npos, "an update does not tell where its section is");
        const int cut = m_choices.below(static_cast<int>(unfinished) + 1);
        judge(m_source + update.substr(0, static_cast<std::size_t>(cut)), m_before,
              "appended in place, up to " + std::to_string(cut));
    }

    void rewrite()
    {
        const std::wstring name = engine::wideFromFileName(workFolder().file("whole.pdf"));
        const bool toFile = m_choices.oneIn(4) && m_library.SaveToFile(name) == 1;
        const std::string whole = toFile ? workFolder().take("whole.pdf") : m_library.SaveToString();
        require(m_library.LastErrorCode() != static_cast<int>(engine::ErrorCode::Internal),
                "rewriting is an internal error");
        if (!whole.empty())
            judge(whole, m_after, "rewritten", {"information 0"}); // encryption needs its version
    }

    void judge(const std::string& result, const Account& expected, const std::string& how,
               const std::set<std::string>& mayDiffer = {})
    {
        const int selected = m_library.SelectedDocument();
        {
            const Opened again(m_library, result);
            require(again.id() != 0,
                    how + ", it cannot be opened: " + std::to_string(m_library.LastErrorCode()));
            if (DocumentAccount(m_library).entries() != expected && !hasUnendedStreams(m_source)) {
                const DocumentAccount account(m_library); // once more: so was told what is expected
                if (!account.gaveUp())
                    requireSame(expected, account.entries(), mayDiffer, how);
            }
        }
        m_library.SelectDocument(selected);
    }

    const std::string& m_source;
    Choices m_choices;
    Library& m_library;
    Account m_before;
    Account m_after;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string source(textOf(data, size));
    for (unsigned variant = 0; variant < VARIANTS; ++variant)
        Trial(source, variant).run();
    return 0;
}
