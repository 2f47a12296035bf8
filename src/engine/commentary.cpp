#include "engine/commentary.h"

#include <utility>

namespace kickwell {

void Commentator::SayOneOf(Phrases phrases) {
  std::string line(PickFrom(phrases, random_));
  const std::size_t place = line.find('*');
  if (place != std::string::npos) line.replace(place, 1, session_.PhrasePlayer);
  Say(std::move(line));
}

void Commentator::CommentaryMain() {
  if (random_.Int(30) != 0) return;
  session_.PhrasePlayer = PickFrom(session_.WithBall().Outfield, random_);
  SayOneOf(GeneralPhrases);
}

void Commentator::AfterShot() {
  switch (random_.Int(3)) {
    case 0:
      Say("Here comes the shot...");
      SayOneOf(CornerPhrases);
      Say("A corner kick awarded by the referee");
      ++session_.WithBall().Corners;
      Say(session_.PhrasePlayer + " to take it");
      Say("He crosses it nicely");
      break;
    case 1:
      Say("A shot flies towards the target...");
      SayOneOf(WidePhrases);
      Say("And its a goal kick signalled");
      break;
    default:
      Say("Here's the shot and...");
      SayOneOf(SavePhrases);
      Say("A nice kick taken by the keeper");
  }
}

void Commentator::AfterFoul() {
  SayOneOf(FoulPhrases);
  if (random_.Int(3) == 2) {
    ++session_.WithoutBall().Bookings;
    Say("Surely the referee is going to book him");
    Say("Here's the yellow card for " + session_.PhrasePlayer);
  }
  session_.PhrasePlayer = PickFrom(session_.WithBall().Outfield, random_);
  Say("The referee awards a freekick");
  Say(session_.PhrasePlayer + " to take it");
  Say("The freekick nicely taken there");
}

}  // namespace kickwell
