#include "championship/fixtures.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/at.h"
#include "data/knock_out.h"

namespace kickwell {
namespace {

/// Exchanges two drawn places, as many times as there are fixtures.
void Shuffle(std::vector<Pairing>& fixtures, Random& random) {
  const int count = static_cast<int>(fixtures.size());
  for (int i = 0; i < count; ++i) {
    Pairing& first = At(fixtures, random.Int(count));
    std::swap(first, At(fixtures, random.Int(count)));
  }
}

}  // namespace

std::vector<Pairing> LeagueFixture(const std::vector<std::string>& teams, Random& random) {
  std::vector<Pairing> fixtures;
  for (std::size_t i = 0; i < teams.size(); ++i) {
    for (std::size_t j = i + 1; j < teams.size(); ++j) {
      fixtures.push_back({teams[i], teams[j]});
      fixtures.push_back({teams[j], teams[i]});
    }
  }
  Shuffle(fixtures, random);
  return fixtures;
}

std::vector<Pairing> KnockOutFixture(const std::vector<std::string>& teams, Random& random) {
  const std::size_t half = teams.size() / 2;
  std::vector<Pairing> fixtures;
  for (std::size_t i = 0; i < half; ++i) fixtures.push_back({teams[i], teams[i + half]});
  Shuffle(fixtures, random);
  std::ranges::copy(LaterRounds(static_cast<int>(teams.size())), std::back_inserter(fixtures));
  return fixtures;
}

}  // namespace kickwell
