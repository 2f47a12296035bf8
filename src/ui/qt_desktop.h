// The desktop as the program's user sees it.
#pragma once

#include <QString>

#include "base/desktop.h"
#include "data/program_folder.h"
#include "ui/sounds.h"

namespace kickwell {

/// Shows boxes and dialogs over the window in use. The save dialog opens in the folder that was last saved
/// to, at first in that of the user's documents.
class QtDesktop : public Desktop {
 public:
  explicit QtDesktop(ProgramFolder folder);

  void Inform(const std::string& text) override;
  void Warn(const std::string& text) override;
  bool Ask(const std::string& text, Enter enter) override;
  std::optional<std::string> AskSaveName(const std::string& proposedName) override;
  void OpenDocument(const std::string& file, std::function<void()> otherwise) override;
  void LoadSounds() override { sounds_.Load(folder_); }
  void PlaySound(Sound sound) override { sounds_.Play(sound); }

 private:
  ProgramFolder folder_;
  QString saveFolder_;
  Sounds sounds_;
};

}  // namespace kickwell
