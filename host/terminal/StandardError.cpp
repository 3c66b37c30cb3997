#include "StandardError.h"

#include "TerminalText.h"
#include "host/files/FileDescriptor.h"

#include <unistd.h>

namespace host {

void complain(std::string_view text)
{
    printError("quintar: " + forTerminal(text) + "\n");
}

void complainInLines(std::string_view text)
{
    printError("quintar: " + forTerminalLines(text) + "\n");
}

void note(std::string_view text)
{
    printError("quintar: note: " + forTerminal(text) + "\n");
}

void complainOfEarlyEnd()
{
    complain("the run ended early, for it is out of memory; some documents may have been changed");
}

void printError(const std::string& lines)
{
    writeAll(STDERR_FILENO, lines.data(), lines.size());
}

} // namespace host
