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
  SCOPED_TRACE("If it is meant, this test with APPROVE=1 before it writes " + path + " anew");
  if (std::getenv("APPROVE") != nullptr) std::ofstream(path, std::ios::binary) << got;
  std::ifstream approved(path);
  std::istringstream lines(got);
  for (std::string wanted, line; std::getline(approved, wanted);) {
    std::getline(lines, line);
    EXPECT_EQ(line, wanted);
  }
  EXPECT_EQ(lines.peek(), EOF) << "more than is approved: " << lines.rdbuf();
}

}  // namespace holdem
