// What a sweep over random cases holds: a fault in a kind that never comes would go unseen, so
// every kind that is named has to come often enough.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace holdem {

class Kinds {
 public:
  explicit Kinds(int least) : least_(least) {}
  Kinds(const Kinds&) = delete;
  ~Kinds() {
    std::string rare;
    for (const auto& [kind, count] : counts_) {
      if (count < least_) rare += kind + ": " + std::to_string(count) + "\n";
    }
    EXPECT_TRUE(rare.empty()) << "kinds of which there are less than " << least_ << ":\n" << rare;
  }

  void Count(const std::string& kind, bool is) { counts_[kind] += is; }

  // One of so many; none of them when it is negative.
  void CountOneOf(int count, const std::string& kind, int which) {
    for (int one = 0; one < count; ++one) Count(kind + " " + std::to_string(one), one == which);
  }

 private:
  const int least_;
  std::map<std::string, int> counts_;
};

}  // namespace holdem
