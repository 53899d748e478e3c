// Texts that are right because somebody has looked at them: tests/approved/NAME.txt, written anew
// by the same test with APPROVE=1 in its environment.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace holdem {

// A text of lines, each of a situation and what is so in it.
inline void ExpectApproved(const std::string& name, const std::string& text) {
  const std::string path = APPROVED_FOLDER "/" + name + ".txt";
  if (std::getenv("APPROVE") != nullptr) std::ofstream(path, std::ios::binary) << text;
  const auto linesOf = [](std::istream&& from) {
    std::vector<std::string> lines;
    for (std::string line; std::getline(from, line);) lines.push_back(line);
    return lines;
  };
  const auto wanted = linesOf(std::ifstream(path)), got = linesOf(std::istringstream(text));
  std::string difference;
  const auto tell = [&](const char* sign, const auto& lines, const auto& others) {
    for (const std::string& line : lines)
      if (std::ranges::find(others, line) == others.end()) difference += sign + line + "\n";
  };
  tell("- ", wanted, got);
  tell("+ ", got, wanted);
  const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
  EXPECT_TRUE(wanted == got) << "wanted (-) by " << path << ", got (+):\n"
                             << difference << "Is it meant? Then write it anew by\nAPPROVE=1 "
                             << "build/release/tests/core_tests --gtest_filter="
                             << test->test_suite_name() << '.' << test->name();
}

}  // namespace holdem
