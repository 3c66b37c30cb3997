// Plays the stream that tests/support/program/FakeQuintar.h stored for a command.
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

namespace {

std::string folder()
{
    const char* path = std::getenv("FAKE_QUINTAR");
    return path != nullptr ? path : ".";
}

std::string after(const std::vector<std::string>& words, const std::string& option)
{
    for (std::size_t place = 0; place + 1 < words.size(); ++place)
        if (words[place] == option)
            return words[place + 1];
    return {};
}

void keep(const std::string& from, const std::string& name)
{
    if (!from.empty())
        std::ofstream(folder() + "/" + name, std::ios::binary)
            << std::ifstream(from, std::ios::binary).rdbuf();
}

/// \returns false at the end of standard input.
bool hear(const std::string& word)
{
    for (std::string line; std::getline(std::cin, line);)
        if (line == word)
            return true;
    return false;
}

void play(std::istream& stream)
{
    for (std::string line; std::getline(stream, line);) {
        const std::string order = line.substr(0, line.find(' '));
        const std::string rest = order.size() < line.size() ? line.substr(order.size() + 1) : std::string();
        if (order == "#wait")
            std::this_thread::sleep_for(std::chrono::milliseconds(std::stoi(rest)));
        else if (order == "#hear" && !hear(rest))
            std::exit(1);
        else if (order == "#say")
            std::cerr << rest << std::endl;
        else if (order == "#exit")
            std::exit(std::stoi(rest));
        else if (order != "#hear")
            std::cout << line << '\n';
        if (order.front() == '#' || line.find("\"found\"") == std::string::npos)
            std::cout.flush();
    }
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> words(argv + 1, argv + argc);
    std::ofstream starts(folder() + "/starts", std::ios::app);
    bool tries = false;
    for (const std::string& word : words) {
        starts << word << ' ';
        tries = tries || word == "--dry-run";
    }
    starts << std::endl;
    keep(after(words, "--files-from"), "names");
    keep(after(words, "--password-file"), "password");
    std::ifstream stream(folder() + "/" + (tries ? "try" : words.at(0)));
    play(stream);
    return 0;
}
