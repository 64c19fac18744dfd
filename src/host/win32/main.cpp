#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cwchar>
#include <span>
#include <string>
#include <vector>

#include "host/Utf8.h"
#include "host/editor/WindowCommands.h"
#include "host/win32/Edit.h"
#include "host/win32/Measure.h"
#include "host/win32/Shot.h"

int wmain(int argc, wchar_t** argv) {
  using namespace ORXKMPrintProp;
  // What is printed is the same on every system: UTF-8, and lines that end with one character.
  for (std::FILE* const stream : {stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  const UINT formerPage = ::GetConsoleOutputCP();
  ::SetConsoleOutputCP(CP_UTF8);

  std::vector<std::string> arguments;
  for (const wchar_t* const argument : std::span(argv, static_cast<std::size_t>(argc))) {
    arguments.push_back(host::ToUtf8(Text(argument, argument + std::wcslen(argument))));
  }
  std::vector<char*> pointers(arguments.size());
  std::transform(arguments.begin(), arguments.end(), pointers.begin(), [](std::string& text) { return text.data(); });
  const int status =
      host::RunProgram(argc, pointers.data(), {.edit = host::Edit, .shot = host::Shot, .measure = host::Measure});
  ::SetConsoleOutputCP(formerPage);
  return status;
}
