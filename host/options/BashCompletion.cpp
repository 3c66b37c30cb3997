#include "Completion.h"
#include "OptionTable.h"

namespace host::completion {

using options::Completes;
using options::Option;

namespace {

std::string joined(const std::vector<std::string>& words, const std::string& separator)
{
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : separator) + word;
    return text;
}

/// What completes the value, as the script's functions say it.
std::string actionOf(const Option& option)
{
    switch (option.completes) {
    case Completes::Words:
        return "_quintar_words \"" + joined(option.words, " ") + "\"";
    case Completes::Folders:
        return "_quintar_files -d";
    case Completes::Files:
        return "_quintar_files -f '" + joined(option.words, "|") + "'";
    case Completes::Nothing:
        break;
    }
    return ":";
}

std::string namesOf(options::CommandId command)
{
    std::string text;
    for (const auto& each : {options::optionsOf(command), options::commonOptions()})
        for (const Option& option : each)
            text += (text.empty() ? "--" : " --") + option.name +
                    (option.letter != 0 ? std::string(" -") + option.letter : "");
    return text;
}

std::string caseOf(const options::Command& command)
{
    std::string text = "    " + command.name + ")\n        case $previous in\n";
    for (const Option& each : options::optionsOf(command.id))
        if (!each.value.empty())
            text += "        --" + each.name + (each.letter != 0 ? std::string("|-") + each.letter : "") +
                    ") " + actionOf(each) + "; return ;;\n";
    return text + "        esac\n        options=\"" + namesOf(command.id) + "\"\n        files='" +
           joined(command.files, "|") + "'\n        ;;\n";
}

const char begin[] = R"(# Completes the words of quintar in bash.

_quintar_words() {
    COMPREPLY=($(compgen -W "$1" -- "$current"))
}

# Folders (-d), or folders and the files with certain suffixes (-f "pdf|json", all when empty).
_quintar_files() {
    compopt -o filenames 2>/dev/null
    local IFS=$'\n' name
    COMPREPLY=($(compgen -d -- "$current"))
    [ "$1" = -f ] || return
    for name in $(compgen -f -- "$current"); do
        [ -d "$name" ] && continue
        [[ -z $2 || ${name,,} =~ \.($2)$ ]] && COMPREPLY+=("$name")
    done
}

_quintar() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} options files
    COMPREPLY=()
    # "--name=value" is three words here.
    if [ "$current" = = ]; then
        current=
    elif [ "$previous" = = ]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    fi
)";

const char end[] = R"(    *)
        return
        ;;
    esac
    if [[ $current == -* ]]; then
        _quintar_words "$options"
    elif [ -n "$files" ]; then
        _quintar_files -f "$files"
    fi
}

complete -F _quintar quintar
)";

} // namespace

std::string forBash()
{
    const std::string names = joined(options::commandNames(), " ");
    std::string text = begin;
    text += "    if [ \"$COMP_CWORD\" -eq 1 ]; then\n        _quintar_words \"" + names +
            " help --help --help-all --version\"\n        return\n    fi\n    case ${COMP_WORDS[1]} in\n    "
            "help)\n"
            "        _quintar_words \"" +
            names + "\"\n        return\n        ;;\n";
    for (const options::Command& each : options::commands())
        text += caseOf(each);
    return text + end;
}

} // namespace host::completion
