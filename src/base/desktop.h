// What the screens' logic may ask of the desktop while an action runs.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace kickwell {

enum class Sound { Whistle, Goal, Boo };

/// What Enter answers to a question: No where Yes would lose what the user has.
enum class Enter { Yes, No };

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

  /// Yes and No; true for Yes only.
  virtual bool Ask(const std::string& text, Enter enter) = 0;

  /// Asks where to save an HTML page, proposing `proposedName`; does not ask before an existing file is
  /// overwritten. Nothing when the user cancels.
  virtual std::optional<std::string> AskSaveName(const std::string& proposedName) = 0;

  /// Opens a file of the program folder with the program that the desktop has for it. Calls `otherwise` when
  /// the file is missing or nothing opens it, which may turn out only after the call has returned.
  virtual void OpenDocument(const std::string& file, std::function<void()> otherwise) = 0;

  virtual void LoadSounds() = 0;  ///< Makes all sounds ready, so that PlaySound need not wait for a file.
  virtual void PlaySound(Sound sound) = 0;  ///< Starts the sound and returns at once.
};

}  // namespace kickwell
