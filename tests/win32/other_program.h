// Another process that a test starts, talks to line by line, and ends.
#pragma once

#include <windows.h>
#undef Yield  // an empty macro, but a name of ours

#include <optional>
#include <string>

namespace holdem {

class OtherProgram {
 public:
  explicit OtherProgram(const std::string& program, const std::string& arguments) {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    STARTUPINFOA start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    CreatePipe(&start.hStdInput, &toProgram_, &inherited, 0);
    CreatePipe(&fromProgram_, &start.hStdOutput, &inherited, 0);
    // Its own ends only, so that each side sees the other one end.
    SetHandleInformation(toProgram_, HANDLE_FLAG_INHERIT, 0);
    SetHandleInformation(fromProgram_, HANDLE_FLAG_INHERIT, 0);
    std::string command = '"' + program + "\" " + arguments;
    CreateProcessA(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                   &process_);
    CloseHandle(start.hStdInput);
    CloseHandle(start.hStdOutput);
  }
  ~OtherProgram() {
    Kill();
    CloseHandle(toProgram_);
    CloseHandle(fromProgram_);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
  }
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;

  DWORD id() const { return process_.dwProcessId; }

  void WriteLine(std::string line) {
    line += '\n';
    DWORD written = 0;
    WriteFile(toProgram_, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  }

  // Waits for a line; nothing when the program has ended.
  std::optional<std::string> ReadLine() {
    std::string line;
    DWORD count = 0;
    for (char c = 0; ReadFile(fromProgram_, &c, 1, &count, nullptr) && count == 1;) {
      if (c == '\n') return line;
      if (c != '\r') line += c;
    }
    return std::nullopt;
  }

  void Kill() {
    TerminateProcess(process_.hProcess, 0);
    WaitForSingleObject(process_.hProcess, INFINITE);
  }

 private:
  PROCESS_INFORMATION process_{};
  HANDLE toProgram_ = nullptr;
  HANDLE fromProgram_ = nullptr;
};

}  // namespace holdem
