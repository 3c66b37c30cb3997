// What libFuzzer calls to change an input. Nearly every change of a document breaks its cross-reference, and
// then only the ways of damaged documents are tried; so most of the time the table is made right again.
#include "Oracle.h"

#include <algorithm>
#include <cstring>
#include <map>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t largest);

namespace {

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// Where objects begin that stand at the begin of a line and are of generation 0, the last one of each number.
std::map<unsigned long, std::size_t> offsetsOf(const std::string& bytes)
{
    std::map<unsigned long, std::size_t> offsets;
    const std::string mark = " 0 obj";
    for (std::size_t at = bytes.find(mark); at != bytes.npos; at = bytes.find(mark, at + 1)) {
        std::size_t begin = at;
        while (begin > 0 && at - begin < 4 && isDigit(bytes[begin - 1]))
            --begin;
        if (begin < at && begin > 0 && (bytes[begin - 1] == '\n' || bytes[begin - 1] == '\r'))
            offsets[std::stoul(bytes.substr(begin, at - begin))] = begin;
    }
    offsets.erase(0);
    return offsets;
}

std::string tableOf(const std::map<unsigned long, std::size_t>& offsets)
{
    std::string table = "xref\n0 " + std::to_string(offsets.rbegin()->first + 1) + "\n0000000000 65535 f \n";
    for (unsigned long number = 1; number <= offsets.rbegin()->first; ++number) {
        const auto found = offsets.find(number);
        const std::string digits = std::to_string(found == offsets.end() ? 0 : found->second);
        table += std::string(10 - digits.size(), '0') + digits +
                 (found == offsets.end() ? " 65535 f \n" : " 00000 n \n");
    }
    return table;
}

/// The same document with a table that is right; as it is where it ends with another kind of section.
std::string withRightTable(const std::string& bytes)
{
    const std::size_t trailer = bytes.rfind("trailer");
    const std::size_t table = bytes.rfind("xref\n", trailer);
    const std::size_t end = bytes.find("startxref\n", trailer);
    if (trailer == bytes.npos || table == bytes.npos || end == bytes.npos)
        return bytes;
    const auto offsets = offsetsOf(bytes.substr(0, table));
    if (offsets.empty())
        return bytes;
    std::string rest = bytes.substr(trailer, end - trailer);
    if (const std::size_t size = rest.find("/Size "); size != rest.npos) {
        const std::size_t behind = std::min(rest.find_first_not_of("0123456789", size + 6), rest.size());
        rest.replace(size + 6, behind - size - 6, std::to_string(offsets.rbegin()->first + 1));
    }
    return bytes.substr(0, table) + tableOf(offsets) + rest + "startxref\n" + std::to_string(table) +
           "\n%%EOF\n";
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t largest,
                                               unsigned seed)
{
    size = LLVMFuzzerMutate(data, size, largest);
    if (seed % 4 == 0)
        return size;
    const std::string repaired = withRightTable(std::string(fuzz::textOf(data, size)));
    if (repaired.size() > largest)
        return size;
    std::memcpy(data, repaired.data(), repaired.size());
    return repaired.size();
}
