#include "shell/desktop_texts.h"

#include "platform/code_page.h"
#include "platform/interface_texts.h"

namespace vorlane {

namespace {

// An argument of an Exec line: in double quotes, in which four characters need a backslash. "%"
// begins a field code.
std::string QuotedArgument(const std::string& argument) {
  std::string quoted = "\"";
  for (const char character : argument) {
    if (std::string_view("\"`$\\").find(character) != std::string_view::npos) {
      quoted += '\\';
    }
    quoted.append(character == '%' ? 2 : 1, character);
  }
  return quoted += '"';
}

// A value of a key file, in which a backslash begins an escape.
std::string KeyFileValue(const std::string& value) {
  std::string escaped;
  for (const char character : value) {
    switch (character) {
      case '\\':
        escaped += "\\\\";
        break;
      case '\n':
        escaped += "\\n";
        break;
      case '\r':
        escaped += "\\r";
        break;
      case '\t':
        escaped += "\\t";
        break;
      default:
        escaped += character;
    }
  }
  return escaped;
}

std::string ExecLine(const std::string& program, std::string_view fieldCode) {
  std::string line = "Exec=";
  line += KeyFileValue(QuotedArgument(program));
  return line.append(" ").append(fieldCode).append("\n");
}

std::string NameLine() {
  return "Name=" + CodePageBytes(InterfaceText(TextNumber::OpenWithVorlane)) + "\n";
}

// A word of the shell: nothing but "'" means anything between two of them.
std::string ShellWord(const std::string& word) {
  std::string quoted = "'";
  for (const char character : word) {
    if (character == '\'') {
      quoted += "'\\''";
    } else {
      quoted += character;
    }
  }
  return quoted += '\'';
}

}  // namespace

std::string DesktopEntryText(const std::string& program) {
  std::string text = "[Desktop Entry]\nType=Application\n";
  text.append(NameLine()).append(ExecLine(program, "%f"));
  return text.append("MimeType=inode/directory;\nNoDisplay=true\n");
}

// Nautilus starts it in the folder that it shows, with the selected names, which may begin with
// "-".
std::string NautilusScriptText(const std::string& program) {
  std::string text = "#!/bin/sh\n";
  text.append("case $1 in\n/*) folder=$1 ;;\n*) folder=$PWD/$1 ;;\nesac\n");
  return text.append("exec ").append(ShellWord(program)).append(" \"$folder\"\n");
}

std::string NemoActionText(const std::string& program) {
  std::string text = "[Nemo Action]\n";
  text.append(NameLine()).append(ExecLine(program, "%F"));
  return text.append("Selection=s\nExtensions=dir;\nQuote=double\n");
}

std::string ServiceMenuText(const std::string& program) {
  std::string text = "[Desktop Entry]\nType=Service\nMimeType=inode/directory;\n";
  text.append("X-KDE-ServiceTypes=KonqPopupMenu/Plugin\nActions=openWithVorlane;\n");
  text.append("\n[Desktop Action openWithVorlane]\n");
  return text.append(NameLine()).append(ExecLine(program, "%f"));
}

}  // namespace vorlane
