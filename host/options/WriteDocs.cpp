// Writes what is made from the table of options: manual pages, completions, and the chapter of the user's
// guide.
#include "Completion.h"
#include "ManualPage.h"
#include "UsageChapter.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

void write(const fs::path& file, const std::string& text)
{
    fs::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary);
    if (!(stream << text << std::flush))
        throw std::runtime_error(file.string() + " cannot be written");
}

std::string contentOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw std::runtime_error(file.string() + " cannot be read");
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Where the system looks for them, below its "share".
void writeShared(const fs::path& share)
{
    write(share / "man/man1/quintar.1", host::manualpage::program());
    for (const host::options::Command& each : host::options::commands())
        write(share / "man/man1" / ("quintar-" + each.name + ".1"), host::manualpage::of(each));
    write(share / "bash-completion/completions/quintar", host::completion::forBash());
    write(share / "zsh/site-functions/_quintar", host::completion::forZsh());
    write(share / "fish/vendor_completions.d/quintar.fish", host::completion::forFish());
}

int run(const std::vector<std::string>& words)
{
    if (words.size() != 2 || (words[0] != "share" && words[0] != "usage")) {
        std::cerr
            << "Usage: quintar-docs share FOLDER    writes manual pages and completions\n"
               "       quintar-docs usage FILE.md   puts the chapter about the options into its place\n";
        return 2;
    }
    if (words[0] == "share")
        writeShared(words[1]);
    else
        write(fs::absolute(words[1]), host::usagechapter::inserted(contentOf(words[1])));
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return run({argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::cerr << "quintar-docs: " << error.what() << "\n";
        return 1;
    }
}
