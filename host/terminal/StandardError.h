#pragma once

#include <string>
#include <string_view>

/// Lines on standard error. Texts may hold any bytes and are made safe to print; nobody may be listening, so
/// that writing fails is no failure.
namespace host {

/// "quintar: TEXT", in one line.
void complain(std::string_view text);

/// The same with the text's own line feeds.
void complainInLines(std::string_view text);

/// "quintar: note: TEXT", in one line.
void note(std::string_view text);

/// That memory did not suffice for the rest of a run. What is thrown further than that counts as a run
/// that was not begun.
void complainOfEarlyEnd();

/// What is safe to print already.
void printError(const std::string& lines);

} // namespace host
