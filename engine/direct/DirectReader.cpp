#include "DirectReader.h"

#include <algorithm>
#include <cstdio>

namespace engine {

namespace {

const std::size_t tailSize = 1024;

std::optional<SyntaxScanner::Reference> wholeReference(std::string_view text)
{
    SyntaxScanner scanner(text);
    const auto id = scanner.reference();
    return scanner.atEnd() ? id : std::nullopt;
}

/// The reference that a dictionary has for a key.
std::optional<SyntaxScanner::Reference> referenceOf(const std::optional<DictionaryEntries>& entries,
                                                    std::string_view key)
{
    if (!entries || !entries->contains(key))
        return std::nullopt;
    return wholeReference(entries->at(key));
}

/// A document that holds no object but these, with a cross-reference table.
class SkeletonText
{
public:
    explicit SkeletonText(std::string_view header) : m_text(header) { m_text += "\n"; }

    void add(const SyntaxScanner::Reference& id, const char* value)
    {
        char entry[32];
        std::snprintf(entry, sizeof entry, "%010zu %05d n \n", m_text.size(), id.generation);
        m_table += std::to_string(id.number) + " 1\n" + entry;
        m_text +=
            std::to_string(id.number) + " " + std::to_string(id.generation) + " obj\n" + value + "\nendobj\n";
    }

    std::string ended(const std::string& trailer) const
    {
        return m_text + "xref\n" + m_table + "trailer\n" + trailer + "\nstartxref\n" +
               std::to_string(m_text.size()) + "\n%%EOF\n";
    }

private:
    std::string m_text;
    std::string m_table;
};

} // namespace

DirectReader::DirectReader(std::shared_ptr<const ByteSource> source)
    : m_file(source), m_objects(m_file), m_budget(source->size()), m_index(m_file, m_budget),
      m_streams(m_file, m_index, m_budget)
{}

std::unique_ptr<DirectReader> DirectReader::open(std::shared_ptr<const ByteSource> source)
{
    std::unique_ptr<DirectReader> reader(new DirectReader(std::move(source)));
    const std::string_view header = reader->m_file.bytes(0, 9);
    if (!header.starts_with("%PDF-1.") || header.size() < 9 || !isDigit(header[7]) || !isSpace(header[8]))
        return nullptr;
    const auto last = reader->lastStartXref();
    return last && reader->m_index.read(*last) ? std::move(reader) : nullptr;
}

/// The number behind the last "startxref", when nothing but the end-of-file marker follows it.
std::optional<std::int64_t> DirectReader::lastStartXref()
{
    // A whole window, not the tail alone: in a small document it holds the cross-reference as well.
    const auto windowSize = static_cast<std::int64_t>(FileWindows::readAtOnce);
    const std::string_view end =
        m_file.bytes(std::max<std::int64_t>(0, m_file.size() - windowSize), FileWindows::readAtOnce);
    const std::string_view tail = end.substr(end.size() - std::min(end.size(), tailSize));
    const std::size_t found = tail.rfind("startxref");
    if (found == tail.npos)
        return std::nullopt;
    SyntaxScanner scanner(tail, found);
    if (!scanner.keyword("startxref"))
        return std::nullopt;
    scanner.skipSpace();
    const auto offset = scanner.integer();
    scanner.skipSpace();
    std::string_view rest = tail.substr(scanner.position());
    if (!offset || *offset >= m_file.size() || !rest.starts_with("%%EOF"))
        return std::nullopt;
    rest.remove_prefix(std::string_view("%%EOF").size());
    return std::all_of(rest.begin(), rest.end(), isSpace) ? offset : std::nullopt;
}

std::optional<std::string_view> DirectReader::object(int number, int generation)
{
    const auto place = m_index.find(number);
    const auto text = place ? textAt(*place, number, generation) : std::nullopt;
    return text && m_budget.spend(text->size()) ? text : std::nullopt;
}

std::optional<std::string_view> DirectReader::textAt(const ObjectPlace& place, int number, int generation)
{
    switch (place.kind) {
    case ObjectPlace::Kind::Free:
        return "null";
    case ObjectPlace::Kind::Plain:
        if (place.detail != generation)
            return std::nullopt;
        return m_objects.object(place.position, number, generation);
    case ObjectPlace::Kind::Compressed:
        if (generation != 0 || place.position > INT32_MAX)
            return std::nullopt;
        return m_streams.object(static_cast<int>(place.position), place.detail, number);
    }
    return std::nullopt;
}

std::optional<std::string> DirectReader::skeleton()
{
    const auto root = usableCatalog();
    if (!root)
        return std::nullopt;
    SkeletonText text(m_file.bytes(0, 8));
    text.add(*root, "<< >>");
    // libqpdf numbers new objects from the last one on.
    if (root->number != size() - 1)
        text.add({size() - 1, 0}, "null");
    return text.ended(skeletonTrailer());
}

/// The catalog, if it can be read and names a page tree.
std::optional<SyntaxScanner::Reference> DirectReader::usableCatalog()
{
    const auto root = referenceOf(dictionaryEntries(trailer()), "Root");
    const auto catalog = root ? object(root->number, root->generation) : std::nullopt;
    const auto pages = referenceOf(dictionaryEntries(catalog.value_or("")), "Pages");
    return pages && pages->number != root->number ? root : std::nullopt;
}

std::string DirectReader::skeletonTrailer() const
{
    const auto entries = dictionaryEntries(trailer());
    std::string text = "<<";
    for (const auto& [key, value] : *entries)
        if (!describesSection(key))
            text.append("/").append(key).append(" ").append(value).append("\n");
    return text + "/Size " + std::to_string(size()) + " >>";
}

} // namespace engine
