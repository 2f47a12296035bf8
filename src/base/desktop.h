// What the screens' logic may ask of the desktop while an action runs.
#pragma once

#include <optional>
#include <string>

namespace kickwell {

enum class Sound { Whistle, Goal, Boo };

/// Every box is titled with the program's title and is answered before the call returns. Texts are UTF-8 and
/// shown as they stand, never as markup.
class Desktop {
 public:
  Desktop() = default;
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;
  virtual ~Desktop() = default;

  virtual void Inform(const std::string& text) = 0;  ///< Information icon, OK.
  virtual void Warn(const std::string& text) = 0;    ///< Exclamation icon, OK.
  virtual bool Ask(const std::string& text) = 0;     ///< Yes and No; true for Yes only.

  /// Asks where to save an HTML page, proposing `proposedName`; does not ask before an existing file is
  /// overwritten. Nothing when the user cancels.
  virtual std::optional<std::string> AskSaveName(const std::string& proposedName) = 0;

  virtual void LoadSounds() = 0;  ///< Makes all sounds ready, so that PlaySound need not wait for a file.
  virtual void PlaySound(Sound sound) = 0;  ///< Starts the sound and returns at once.
};

}  // namespace kickwell
