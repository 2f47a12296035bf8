// The one source of chance: every draw of the program goes through Random.
#pragma once

#include <cstdint>
#include <random>

#include "base/at.h"

namespace kickwell {

class Random {
 public:
  Random() = default;
  Random(const Random&) = delete;
  Random& operator=(const Random&) = delete;
  virtual ~Random() = default;

  /// A fresh whole number, uniform over 0..n-1. A draw from an empty range (n <= 0) gives 0.
  virtual int Int(int n) = 0;
};

/// The program's own source. Not for secrets: a Mersenne Twister, seeded once.
class SeededRandom : public Random {
 public:
  SeededRandom() : SeededRandom(std::random_device{}()) {}  ///< Seeded from the system.
  explicit SeededRandom(std::uint_fast64_t seed) : engine_(seed) {}

  int Int(int n) override { return n <= 0 ? 0 : std::uniform_int_distribution<int>(0, n - 1)(engine_); }

 private:
  std::mt19937_64 engine_;
};

/// One element drawn from `list`, each as likely as the others. An empty list gives an empty value.
template <typename List>
typename List::value_type PickFrom(const List& list, Random& random) {
  const int place = random.Int(Count(list));
  return list.empty() ? typename List::value_type() : At(list, place);
}

}  // namespace kickwell
