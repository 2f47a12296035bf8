// The sounds of the match.
#pragma once

#include <QSoundEffect>
#include <array>
#include <memory>

#include "base/desktop.h"
#include "data/program_folder.h"

namespace kickwell {

/// The wave files of the Sounds folder. Without a sound device nothing is loaded or played, and nothing
/// waits.
class Sounds {
 public:
  void Load(const ProgramFolder& folder);  ///< Reads each file once; what was loaded before is kept.

  void Play(
      Sound sound);  ///< From its beginning. A file that is missing or damaged gives the desktop's beep.

 private:
  bool silent_ = false;  ///< There is no device.
  std::array<std::unique_ptr<QSoundEffect>, 3> effects_;
};

}  // namespace kickwell
