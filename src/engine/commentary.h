// The running commentary of a simulated match, and the corners and bookings that its draws decide.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "base/random.h"
#include "engine/match_session.h"

namespace kickwell {

// The phrases, in the order that draws count them. "*" stands for PhrasePlayer.
using Phrases = std::span<const std::string_view>;

inline constexpr auto GeneralPhrases = std::to_array<std::string_view>({
    "* dribbles it upfield",
    "* makes a nice pass",
    "* still has the ball",
    "* keeps possession",
    "* passes forward",
    "* has the ball",
    "* retains the ball",
    "* is in the clear",
    "* beats his marker",
    "* got the ball",
    "* receives the pass",
    "* receives a great pass",
    "* sprints through with the ball",
    "* uses his pace",
    "* crosses the ball",
    "* provides a fine cross",
    "* with the header",
    "* brings his head into play",
    "* with a fine volley",
    "The pass to * goes through nicely",
    "It's *'s ball",
    "A little touch pass there from *",
    "Nice run here by *",
});

inline constexpr auto GoalPhrases = std::to_array<std::string_view>({
    "Great shot from a distance by *",
    "* comes up with a fine shot",
    "A brilliant shot by * into the goal",
    "Powerful shot towards the target by *",
    "An artistic kick by * finds the target",
    "A superb shot by * hits the target",
    "Here's the accurate shot from *",
});

inline constexpr auto CornerPhrases = std::to_array<std::string_view>({
    "The ball hits defender on the back and goes out",
    "Powerful shot blocked by defender",
    "The ball touches the defender and goes out",
    "Remarkable finger tip save by the keeper",
    "The keeper lobs the ball over the bar",
    "A slight touch by the keeper on its way out",
});

inline constexpr auto WidePhrases = std::to_array<std::string_view>({
    "Thundered towards the net by *",
    "A poor shot, nowhere near the target",
    "The shot whistles past the post",
    "A powerful shot by *",
    "A superb attempt on goal by *",
    "The ball just hits the bar on its way out",
    "The shot flies over the cross bar",
    "A powerful shot wide of target",
});

inline constexpr auto SavePhrases = std::to_array<std::string_view>({
    "The keeper collects the ball",
    "The ball is nicely collected by the keeper",
    "The keeper saves the goal",
    "An acrobatic save by the keeper",
    "The keeper comes up with a fine save",
});

inline constexpr auto FoulPhrases = std::to_array<std::string_view>({
    "Not a good challenge there",
    "* has been spotted by the referee",
    "* looks to be in some kind of trouble",
    "* appears to have done something wrong",
    "A tackle by * from behind",
    "Foul signalled by the referee",
    "* and the referee are arguing",
    "A nasty bit of play there",
    "* with a horrible challenge",
});

inline constexpr auto PenaltyGoalPhrases = std::to_array<std::string_view>({
    "It's gone straight into the top corner",
    "A brilliant shot into the goal",
    "The goalkeeper had no chance at all",
    "Superb penalty taken there",
    "Brilliant! great shot into the goal",
});

inline constexpr auto PenaltyMissPhrases = std::to_array<std::string_view>({
    "It's gone straight over the bar",
    "The shot was wide of target",
    "That's a poor penalty taken",
    "Great save by the goalkeeper",
    "What a brilliant save there by the keeper",
});

class Commentator {
 public:
  Commentator(MatchSession& session, Random& random) : session_(session), random_(random) {}

  void Say(std::string line) { AddLine(session_.Commentary, std::move(line)); }

  /// Says one of the phrases, drawn at random.
  void SayOneOf(Phrases phrases);

  /// In one second of thirty, remarks on a player of the side with the ball.
  void CommentaryMain();

  /// What comes of a shot by PhrasePlayer, whose side has the ball: a corner, a goal kick or a catch.
  void AfterShot();

  /// A foul by PhrasePlayer, whose side does not have the ball: perhaps a booking, then the free kick.
  void AfterFoul();

 private:
  MatchSession& session_;
  Random& random_;
};

}  // namespace kickwell
