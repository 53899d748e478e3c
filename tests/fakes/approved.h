// Texts that are right because somebody has looked at them: tests/approved/NAME.txt, written anew
// by the same test with APPROVE=1 in its environment.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

namespace holdem {

// A text of lines, each of a situation and what is so in it.
inline void ExpectApproved(const std::string& name, const std::string& got) {
  const std::string path = APPROVED_FOLDER "/" + name + ".txt";
  if (std::getenv("APPROVE") != nullptr) std::ofstream(path, std::ios::binary) << got;
  std::ostringstream wanted, difference;
  wanted << std::ifstream(path).rdbuf();
  const auto tell = [&](const char* sign, const std::string& text, const std::string& other) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
      if (("\n" + other).find("\n" + line + "\n") == other.npos) difference << sign << line << "\n";
  };
  tell("wanted: ", wanted.str(), got);
  tell("got:    ", got, wanted.str());
  const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
  EXPECT_TRUE(got == wanted.str())
      << difference.str() << "If that is meant, this writes " << path << " anew:\nAPPROVE=1 "
      << "build/release/tests/core_tests --gtest_filter=" << test->test_suite_name() << '.'
      << test->name();
}

}  // namespace holdem
