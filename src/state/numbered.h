// Numbers that count different things, so that one cannot be passed for the other: a slot as a
// seat, or a card as a slot. A plain int may stand for either.
#pragma once

#include <concepts>
#include <type_traits>

namespace holdem {

template <typename Kind>
class Numbered {
 public:
  constexpr Numbered() = default;
  constexpr Numbered(std::same_as<int> auto number) : number_(number) {}  // NOLINT: implicit

  constexpr operator int() const { return number_; }  // NOLINT: likewise

 private:
  int number_ = 0;
};

static_assert(!std::is_convertible_v<Numbered<struct OneKind>, Numbered<struct AnotherKind>>);
static_assert(!std::is_convertible_v<short, Numbered<struct OneKind>>);

}  // namespace holdem
