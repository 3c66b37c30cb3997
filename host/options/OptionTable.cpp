#include "OptionTable.h"

#include "host/change/ViewEntries.h"

#include <algorithm>

namespace host::options {

namespace {

using enum CommandId;
using enum Completes;

const bool common = true;
const bool rare = false;

// clang-format off
const std::vector<Option> commonRows{
    {"help", 'h', "", "prints the most common options", "", Nothing, {}, {}, Group::Output, rare},
    {"help-all", 0, "", "prints all options", "", Nothing, {}, {}, Group::Output, rare},
};

const std::vector<Option> optionRows{
    {"list", 0, "FILE|NAME", "an action list (.xqq), by its file or its name",
     "its entries are applied in their order; \"quintar lists\" tells the names",
     Files, {"xqq"}, {Run, Check}, Group::Source, common},
    {"favorite", 0, "FILE|NAME", "a favourite (.ini), by its file or its name", "",
     Files, {"ini"}, {Run, Check}, Group::Source, rare},
    {"tool-settings", 0, "FILE", "a tool settings file (.tsf)", "",
     Files, {"tsf"}, {Run, Check}, Group::Source, rare},
    {"set", 0, "KEY=VALUE", "one setting of the action; may be repeated",
     "of two values for one key the last counts",
     Nothing, {}, {Run, Check}, Group::Source, rare},

    {"list", 0, "FILE|NAME", "starts from an entry of an action list (.xqq)", "",
     Files, {"xqq"}, {Configure}, Group::Source, common},
    {"entry", 0, "N", "of its several entries the one in place N of \"quintar lists\"", "",
     Nothing, {}, {Configure}, Group::Source, common},
    {"favorite", 0, "FILE|NAME", "starts from a favourite (.ini)", "",
     Files, {"ini"}, {Configure}, Group::Source, common},
    {"tool-settings", 0, "FILE", "starts from a tool settings file (.tsf)", "",
     Files, {"tsf"}, {Configure}, Group::Source, common},

    {"view", 0, "FILE|-", "what a JSON file names, as \"quintar show --json\" prints it", "",
     Files, {"json"}, {Run, Check}, Group::View, rare},
    {"like", 0, "DOCUMENT", "makes documents open as this one does", "",
     Files, {"pdf"}, {Run, Check}, Group::View, common},
    {"title-from-file-name", 0, "", "the title is the name of the document's file", "",
     Nothing, {}, {Run, Check}, Group::View, rare},
    {"title-if-missing", 0, "", "leaves titles that are there",
     "goes with --title and --title-from-file-name",
     Nothing, {}, {Run, Check}, Group::View, rare},

    {"output", 'o', "DIR|FILE.pdf|-", "puts the results into this folder, or the one result into this file",
     "- is standard output; a folder is made if it is missing; a document that needs no change is copied",
     Files, {"pdf"}, {Run}, Group::Target, common},
    {"base", 0, "DIR", "with -o, keeps the documents' paths below this folder",
     "those of documents that are named by themselves as well",
     Folders, {}, {Run}, Group::Target, rare},
    {"suffix", 0, "TEXT", "writes manual-TEXT.pdf beside each manual.pdf",
     "in a folder, results of an earlier run are passed over",
     Nothing, {}, {Run}, Group::Target, rare},
    {"in-place", 0, "", "changes the documents in their own places",
     "one that needs no change is not touched",
     Nothing, {}, {Run}, Group::Target, common},
    {"replace", 0, "", "with --in-place, puts a changed copy into each document's place",
     "without it a change is appended where the document lies, if that is safe there",
     Nothing, {}, {Run}, Group::Target, rare},
    {"output", 'o', "FILE", "writes an action list, a favourite, tool settings or a view",
     "the suffix says which: .xqq, .ini, .tsf, .json; where it is the file that the settings come from, the "
     "rest of it stays",
     Files, {"xqq", "ini", "tsf", "json"}, {Configure}, Group::Target, common},
    {"all", 0, "", "of a document, takes everything that the window shows",
     "as words of --set, or in a view; without it what was changed there",
     Nothing, {}, {Configure}, Group::Target, common},

    {"password", 0, "P", "opens encrypted documents",
     "other users of the machine can see it in its list of processes for a moment",
     Nothing, {}, {Run, Show, Check}, Group::Documents, rare},
    {"password", 0, "P", "opens encrypted documents", "",
     Nothing, {}, {Configure}, Group::Documents, common},
    {"password-file", 0, "FILE|-", "the same, from the first line of a file", "- is standard input",
     Files, {}, {Run, Show, Check, Configure}, Group::Documents, rare},
    {"files-from", 0, "FILE|-", "takes further documents from a list, one a line",
     "- is standard input",
     Files, {}, {Run, Show, Check}, Group::Documents, rare},
    {"files-from", 0, "FILE|-", "takes back only what is done to the documents in a list, one a line",
     "- is standard input",
     Files, {}, {Undo}, Group::Documents, rare},
    {"null", 0, "", "the names in that list end with NUL instead", "",
     Nothing, {}, {Run, Show, Check, Undo}, Group::Documents, rare},
    {"no-folders", 0, "", "takes every name for a document's",
     "a folder fails, and is not searched for documents",
     Nothing, {}, {Run, Show, Check}, Group::Documents, rare},

    {"signed", 0, "HOW", "what becomes of signed documents",
     "refused (the default), or changed by an update behind what is signed; certified ones with append-certified only",
     Words, {"refuse", "append", "append-certified"}, {Run}, Group::Signed, rare},

    {"rewrite", 0, "", "with -o, writes documents anew that cannot be appended to",
     "if nothing is lost by that; without it such a document is refused",
     Nothing, {}, {Run}, Group::Work, rare},
    {"dry-run", 'n', "", "writes nothing and tells what would be changed", "",
     Nothing, {}, {Run}, Group::Work, common},
    {"dry-run", 'n', "", "writes nothing and tells what would be undone", "",
     Nothing, {}, {Undo}, Group::Work, common},
    {"jobs", 'j', "N", "works on N documents at a time",
     "by default as many as there are processors",
     Nothing, {}, {Run, Show, Check}, Group::Work, rare},
    {"timeout", 0, "SECONDS", "gives a document up after this time (default: 60)", "",
     Nothing, {}, {Run, Show, Check}, Group::Work, rare},
    {"memory", 0, "MIB", "gives a document up that needs more memory (default: 1024)", "",
     Nothing, {}, {Run, Show, Check}, Group::Work, rare},
    {"sandbox", 0, "HOW", "how far the processes that read documents are locked in",
     "even taken over by a document, they reach no files but this run's, no network and no other program; what they "
     "write into results is not judged; try (the default) takes what the kernel offers, require begins nothing "
     "without all of it",
     Words, {"try", "require", "off"}, {Run, Show, Check, Configure}, Group::Work, rare},
    {"sync", 0, "", "with -o, flushes each document to the disk before the next",
     "in place that is always so",
     Nothing, {}, {Run}, Group::Work, rare},

    {"control", 0, "", "takes the words pause, resume and stop from standard input",
     "a line each; its end means stop", Nothing, {}, {Run, Undo, Show, Check}, Group::Work, rare},

    {"events", 0, "", "tells other programs what is going on, a JSON object a line",
     "nothing else is printed on standard output then", Nothing, {}, {Run, Undo, Show, Check}, Group::Output, rare},
    {"report", 0, "FILE|-", "writes a JSON object a line about each document",
     "- is standard output",
     Files, {"jsonl"}, {Run}, Group::Output, common},
    {"resume", 0, "FILE", "leaves out what an earlier run's report lists as done",
     "what has changed since is done again; it may be the same file as --report, which is continued then",
     Files, {"jsonl"}, {Run}, Group::Output, rare},
    {"quiet", 'q', "", "prints failures only", "no notes either",
     Nothing, {}, {Run, Check}, Group::Output, common},
    {"quiet", 'q', "", "prints only what is left alone", "no notes either",
     Nothing, {}, {Undo}, Group::Output, common},
    {"outline", 0, "N|all", "tells the bookmarks as well, with their pages",
     "no more than N of each document; all of them end at 5000",
     Nothing, {}, {Show}, Group::Output, rare},
    {"table", 0, "", "prints a row a document",
     "in a terminal too narrow for all columns, the less important ones are left out",
     Nothing, {}, {Show}, Group::Output, common},
    {"json", 0, "", "prints a JSON object a line", "",
     Nothing, {}, {Show, Check, Lists}, Group::Output, common},
};

const std::vector<Command> commandRows{
    {Run, "run", "change how documents open",
     "CHANGE (-o DIR|FILE.pdf|- | --suffix TEXT | --in-place) DOCUMENT|FOLDER|- ...",
     "Changes how PDF documents open. View options change what they name and leave the rest; settings are those "
     "of the action. A folder stands for the PDF documents in it and its subfolders, - for standard input.",
     {{"quintar run --page-mode bookmarks -o changed/ manuals/", "open a folder's documents with the bookmarks"},
      {"quintar run --open-page unset --in-place -n manual.pdf", "see whether the opening page would be forgotten"},
      {"quintar run --list \"Monthly reports\" --in-place manuals/", "apply a stored action list"}},
     {{0, "all well"},
      {1, "some documents failed, or the report could not be written to its end"},
      {2, "nothing was begun"},
      {130, "stopped by a signal"}},
     {"pdf"}},
    {Undo, "undo", "take back what a run changed in place", "REPORT",
     "Cuts the updates that a run has appended off its documents again, newest first. It goes by the run's "
     "report (quintar run --in-place --report FILE). A document is left alone when it is no longer as the "
     "report says: by its size, its time of change, and the checksum of what stood before the update.",
     {{"quintar undo report.jsonl", "take a run back"},
      {"quintar undo -n report.jsonl", "see which documents that would change"},
      {"quintar run --favorite Slides --in-place --report report.jsonl talks/", "the run that can be taken back"}},
     {{0, "all of them are as they were"},
      {1, "some documents were left alone"},
      {2, "nothing was begun"},
      {130, "stopped by a signal"}},
     {"jsonl"}},
    {Show, "show", "tell how documents open", "DOCUMENT|FOLDER|- ...",
     "Tells how each document opens: panel, layout, page, magnification, viewer preferences, title and language. A "
     "folder stands for the PDF documents in it and its subfolders, - for standard input.",
     {{"quintar show manual.pdf", "how a document opens, in words"},
      {"quintar show --table manuals/", "a folder's documents, a row each"},
      {"quintar show --json manual.pdf > view.json", "for quintar run --view view.json"}},
     {{0, "all well"},
      {1, "some documents cannot be read"},
      {2, "nothing was begun"},
      {130, "stopped by a signal"}},
     {"pdf"}},
    {Check, "check", "tell which documents do not open as asked", "CHANGE DOCUMENT|FOLDER|- ...",
     "Names the documents that quintar run would change, and what it would change of each. Nothing is written. A "
     "folder stands for the PDF documents in it and its subfolders, - for standard input.",
     {{"quintar check --display-doc-title yes manuals/", "which documents do not show their titles"},
      {"quintar check --like cover.pdf --json manuals/", "which open otherwise than this one, as JSON"},
      {"quintar check --list \"Monthly reports\" -q manuals/", "whether a stored action list is applied"}},
     {{0, "all open as asked"},
      {1, "some do not, or cannot be read"},
      {2, "nothing was begun"},
      {130, "stopped by a signal"}},
     {"pdf"}},
    {Configure, "configure", "make settings in a window", "[DOCUMENT]",
     "Shows the settings in a window. They start as the document opens now, or as the file has them; with "
     "both, the file counts. OK prints words for \"quintar run\", for a document the view options that make "
     "what was changed in the window, or writes a file; Cancel does nothing.",
     {{"quintar configure manual.pdf", "start as a document opens"},
      {"quintar configure --list \"Monthly reports\" -o reports.xqq", "store them as an action list"},
      {"quintar run $(quintar configure manual.pdf) -o changed/ manuals/", "run what is chosen"}},
     {{0, "printed or written"}, {1, "cancelled or not written"}, {2, "no window was shown"}},
     {"pdf"}},
    {Lists, "lists", "tell the stored action lists and favourites", "",
     "Tells which action lists and favourites there are in the user's folders, and what they would do. "
     "\"quintar run\" takes them by their names, with --list and --favorite.",
     {{"quintar lists", "names and settings, in words"},
      {"quintar lists --json", "the same as JSON, an object a line"},
      {"quintar run --list \"Monthly reports\" -o changed/ manuals/", "use one by its name"}},
     {{0, "all well"}, {1, "some cannot be read"}, {2, "nothing was begun"}},
     {}},
    {Window, "window", "show documents and change them in a window", "[DOCUMENT|FOLDER ...]",
     "Starts the window with these documents in its list, beside those that it had when it was closed. The list shows "
     "how each document opens and, once a change is chosen, how it will; nothing is changed before a run is started. "
     "Runs in place can be undone.",
     {{"quintar window", "start with the list of the last time"},
      {"quintar window manuals/", "with the documents of a folder"},
      {"quintar window a.pdf b.pdf", "with two documents"}},
     {{0, "the window was closed"}, {2, "no window was shown"}},
     {"pdf"}},
};
// clang-format on

/// What --help of a command has room for.
bool isCommon(ViewEntry entry)
{
    return entry == ViewEntry::PageMode || entry == ViewEntry::OpenPage ||
           entry == ViewEntry::DisplayDocTitle;
}

/// An option for each entry of the view.
std::vector<Option> viewRows()
{
    std::vector<Option> rows;
    for (const viewentries::Description& each : viewentries::all()) {
        std::vector<std::string> words = viewentries::words(each);
        const Completes completes = words.empty() ? Nothing : Words;
        rows.push_back({each.option,
                        0,
                        each.value,
                        each.brief,
                        each.more,
                        completes,
                        std::move(words),
                        {Run, Check},
                        Group::View,
                        isCommon(each.entry)});
    }
    return rows;
}

} // namespace

bool Option::isOf(CommandId command) const
{
    return std::find(commands.begin(), commands.end(), command) != commands.end();
}

std::string Option::form() const
{
    return (letter != 0 ? std::string("-") + letter + ", " : "") + "--" + name +
           (value.empty() ? "" : " " + value);
}

std::string Option::rest() const
{
    std::string text = more;
    if (completes != Completes::Words || value.find('|') != std::string::npos) // which lists the words itself
        return text;
    text += (text.empty() ? "" : "; ") + value + " is ";
    for (const std::string& word : words)
        text += (&word == &words.front() ? "" : &word == &words.back() ? " or " : ", ") + word;
    return text;
}

const std::vector<Command>& commands()
{
    return commandRows;
}

const Command& command(CommandId id)
{
    return commandRows.at(static_cast<std::size_t>(id));
}

std::vector<std::string> commandNames()
{
    std::vector<std::string> names;
    names.reserve(commandRows.size());
    for (const Command& each : commandRows)
        names.push_back(each.name);
    return names;
}

const std::vector<Option>& commonOptions()
{
    return commonRows;
}

std::vector<Option> optionsOf(CommandId command)
{
    static const std::vector<Option> view = viewRows();
    std::vector<Option> options;
    for (const auto* rows : {&view, &optionRows})
        std::copy_if(rows->begin(), rows->end(), std::back_inserter(options),
                     [&](const Option& each) { return each.isOf(command); });
    std::stable_sort(options.begin(), options.end(),
                     [](const Option& one, const Option& other) { return one.group < other.group; });
    return options;
}

const char* titleOf(Group group)
{
    switch (group) {
    case Group::Source:
        return "Settings";
    case Group::View:
        return "View";
    case Group::Target:
        return "Results";
    case Group::Documents:
        return "Documents";
    case Group::Signed:
        return "Signed documents";
    case Group::Work:
        return "Work";
    case Group::Output:
        return "Output";
    }
    return "";
}

} // namespace host::options
