#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

extern char** environ;

namespace {

using Command = std::vector<std::string>;

/// Milliseconds from the start of the program to its end, which is its first paint.
double Run(const Command& command) {
  std::vector<char*> arguments;
  for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  const auto begin = std::chrono::steady_clock::now();
  pid_t child = 0;
  int status = 0;
  if (posix_spawn(&child, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0 ||
      waitpid(child, &status, 0) != child || status != 0) {
    std::fprintf(stderr, "start_bench: %s fails\n", arguments[0]);
    std::exit(1);
  }
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

double Median(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

}  // namespace

/// start_bench RUNS EDIT DOCUMENT EMPTY WIDTH HEIGHT
int main(int argc, char** argv) {
  if (argc != 7) return 2;
  ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
  struct Program {
    const char* name;
    Command command;
    std::vector<double> times = {};
  };
  Program programs[] = {{"prnprop edit", {argv[2], argv[3]}},
                        {"an empty window", {argv[4], argv[5], argv[6]}},
                        {"a window with one word", {argv[4], argv[5], argv[6], "word"}}};
  // Files and fonts are in memory after a first run.
  for (const Program& program : programs) Run(program.command);
  // In turn, so that whatever else the machine does slows down all of them.
  for (int run = 0; run < std::max(1, std::atoi(argv[1])); ++run) {
    for (Program& program : programs) program.times.push_back(Run(program.command));
  }
  std::printf("milliseconds to the first paint, and prnprop's in proportion (wanted: within 1.3 of an empty window)\n");
  const double edit = Median(programs[0].times);
  for (const Program& program : programs) {
    const double time = Median(program.times);
    std::printf("%-24s %7.1f %7.2f\n", program.name, time, edit / time);
  }
}
