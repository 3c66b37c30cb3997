#include "ViewWords.h"

#include <array>

namespace host::viewwords {

namespace {

const std::size_t labelWidth = 22;

constexpr std::array preferences{
    "", "Hide tool bars", "Hide menu bar", "Hide window controls", "Fit window to page", "Center window"};

} // namespace

std::string line(const std::string& label, const std::string& text)
{
    return "  " + label + std::string(label.size() < labelWidth ? labelWidth - label.size() : 1, ' ') + text +
           "\n";
}

const char* preference(std::size_t option)
{
    return preferences.at(option);
}

const char* yesOrNo(bool answer)
{
    return answer ? "yes" : "no";
}

} // namespace host::viewwords
