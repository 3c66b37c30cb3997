// Runs a target over files and the files in folders, without libFuzzer: what was found once is tried again
// with every build.
#include "Oracle.h"

#include <iostream>
#include <set>

namespace {

std::set<std::filesystem::path> filesOf(const std::filesystem::path& path)
{
    if (!std::filesystem::exists(path)) // nothing was found with this target yet
        return {};
    if (!std::filesystem::is_directory(path))
        return {path};
    std::set<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path))
        if (entry.is_regular_file())
            files.insert(entry.path());
    return files;
}

} // namespace

int main(int count, char** arguments)
{
    std::size_t replayed = 0;
    for (int argument = 1; argument < count; ++argument) {
        for (const std::filesystem::path& file : filesOf(arguments[argument])) {
            std::cout << file.string() << std::endl; // the last one is the one that ends the process
            std::ifstream stream(file, std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            ++replayed;
        }
    }
    std::cout << replayed << " files replayed\n";
    return replayed > 0 ? 0 : 1;
}
