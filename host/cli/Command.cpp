#include "Command.h"

#include "host/arguments/OptionParser.h"
#include "host/terminal/ExitStatus.h"
#include "host/terminal/StandardOutput.h"
#include "host/workers/RunControl.h"

namespace host {

int Command::run(int argc, char** argv)
{
    OptionParser parser(options::command(id()));
    takeOptions(parser);
    const std::vector<std::string> words = parser.parse(argc, argv);
    if (!parser.help().empty()) {
        printResult(parser.help());
        return exitstatus::done;
    }
    try {
        return work(words);
    } catch (const StoppedEarly&) {
        return exitstatus::stopped;
    }
}

} // namespace host
