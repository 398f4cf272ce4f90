// A small operations file for tests of the script tool.
#pragma once

#include <string>

namespace vorlane {

// The text with CR LF at its line ends.
inline std::string WithCrLf(const std::string& text) {
  std::string lines;
  for (const char byte : text) {
    lines += byte == '\n' ? "\r\n" : std::string(1, byte);
  }
  return lines;
}

// A heading with three operations below it and one of the same title below another heading:
//   1 Names, 2 Names/Upper case, 3 Names/Framed, 4 Names/Checked, 5 Others, 6 Others/Upper case
inline std::string TestCatalogue() {
  return WithCrLf(
      "Operation Name:\tNames\n\n"
      "Operation Name:\t\tUpper case\n"
      "Step: <UPPERCASE><NAMEONLY></UPPERCASE><EXTONLY>\n"
      "Help Message: All in capitals.\n"
      "Available Boxes: 0\n\n"
      "Operation Name:\t\tFramed\n"
      "Step: <BOX1><NAMEONLY><BOX2><EXTONLY>\n"
      "Help Message: A text on each side.\n"
      "Wildcard: *.txt\n"
      "Available Boxes: 2\n"
      "Box Name: Front\n"
      "Box Name: Back\n"
      "Box Display: Registry(Front|New )\n"
      "Box Display:\n"
      "Box ToolTip: Stands in front\n"
      "Box ToolTip: Stands behind\n\n"
      "Operation Name:\t\tChecked\n"
      "Step: <BOX1><EXTONLY>\n"
      "Help Message: A formula that a tick opens.\n"
      "Available Boxes: 1\n"
      "Box Name: Name\n"
      "Box Display: <UPPERCASE><NAMEONLY></UPPERCASE>\n"
      "Box ToolTip:\n"
      "Box Check: Own text\n\n"
      "Operation Name:\tOthers\n\n"
      "Operation Name:\t\tUpper case\n"
      "Step: <UPPERCASE><FILENAME></UPPERCASE>\n"
      "Help Message: The extension too.\n"
      "Available Boxes: 0\n\n");
}

}  // namespace vorlane
