#include <cstdlib>
#include <cstring>
#include <exception>
#include <iostream>
#include <string>

#include "Run.h"

namespace {

/// random_user --seed S --actions N: exit status 1 and a report when a rule is broken, 2 for other arguments.
int Main(int argc, char** argv) {
  std::uint64_t seed = 1;
  int actions = 20000;
  for (int i = 1; i < argc; i += 2) {
    const bool hasValue = i + 1 < argc;
    if (hasValue && std::strcmp(argv[i], "--seed") == 0) {
      seed = std::stoull(argv[i + 1]);
    } else if (hasValue && std::strcmp(argv[i], "--actions") == 0) {
      actions = std::stoi(argv[i + 1]);
    } else {
      std::cerr << "Usage: random_user [--seed S] [--actions N]\n";
      return 2;
    }
  }
  const std::string failure = ORXKMPrintProp::test::RunRandomUsers(seed, actions);
  std::cout << failure;
  return failure.empty() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Main(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "random_user: " << error.what() << "\n";
    return 2;
  }
}
