#include "ViewWords.h"

namespace host::viewwords {

namespace {

const std::size_t labelWidth = 31;

} // namespace

std::string line(const std::string& label, const std::string& text)
{
    return "  " + label + std::string(label.size() < labelWidth ? labelWidth - label.size() : 1, ' ') + text +
           "\n";
}

const char* yesOrNo(bool answer)
{
    return answer ? "yes" : "no";
}

} // namespace host::viewwords
