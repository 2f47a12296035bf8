#include "championship/fixtures.h"

#include <utility>

#include "data/championship_store.h"

namespace kickwell {
namespace {

/// As many exchanges of two drawn places as there are fixtures.
void Shuffle(std::vector<Pairing>& fixtures, Random& random) {
  const int count = static_cast<int>(fixtures.size());
  for (int i = 0; i < count; ++i) {
    const auto a = static_cast<std::size_t>(random.Int(count));
    const auto b = static_cast<std::size_t>(random.Int(count));
    std::swap(fixtures[a], fixtures[b]);
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
  for (int i = 1; i <= static_cast<int>(teams.size()) - 2; i += 2) {
    fixtures.push_back({WinnerPlaceholder(i), WinnerPlaceholder(i + 1)});
  }
  return fixtures;
}

}  // namespace kickwell
