// The sounds of the match.
#pragma once

#include <QSoundEffect>
#include <array>
#include <memory>

#include "base/desktop.h"
#include "data/program_folder.h"

namespace kickwell {

/// The wave files of the Sounds folder. Without a sound device nothing is loaded or played, and nobody has to
/// wait.
class Sounds {
 public:
  void Load(const ProgramFolder& folder);  ///< Reads the files as they are now.

  /// Plays a sound from its beginning; the desktop's beep where its file is missing or damaged.
  void Play(Sound sound);

 private:
  bool silent_ = false;  ///< There is no device.
  std::array<std::unique_ptr<QSoundEffect>, 3> effects_;
};

}  // namespace kickwell
