// Messages of the script tool: one line each, on standard error.
#pragma once

#include <string>

#include "platform/text.h"

namespace vorlane {

// "?" for each control character, so that a name with a line break or an escape code in it neither
// breaks the line nor does anything to a terminal.
std::string OnOneLine(std::string text);

// The same where standard output is a terminal; anywhere else the text as it is, so that another
// program gets the true name.
std::string ForOutput(std::string text);

// The message behind the program's name.
void PrintMessage(const std::string& message);
void PrintMessage(TextView message);

}  // namespace vorlane
