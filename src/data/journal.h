// Files of championships that change together: all of them or none, whatever happens in the middle.
//
// The new files are written beside the old ones first, under temporary names. Then a journal that says what
// is to become of them is written, the changes are made, and the journal is deleted. While it is there, the
// changes can be finished, also by another start of the program.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/program.h"
#include "data/text_file.h"

namespace kickwell {

inline constexpr std::string_view JournalName = "unfinished.journal";

/// What becomes of one file of a championship.
struct ChangedFile {
  std::string File;                  ///< From the program folder, for example "Leagues/Top.rec".
  std::optional<std::string> Bytes;  ///< Its new content; nothing deletes it, where it exists.
};

/// Makes all `changes` or none. Only a disk that fails in the middle of the renaming can keep it from either:
/// the journal stays then. Refuses files that are none of a championship, the deletion of what is no file,
/// and any change while a journal is there.
FileResult ChangeFiles(const ProgramFolder& folder, const std::vector<ChangedFile>& changes);

/// Finishes the changes that a journal tells of, if there is one. A journal that makes no sense is not
/// followed but renamed, for a look at it, and the user is to be told.
FileResult FinishChanges(const ProgramFolder& folder);

/// What each start of the program does first: finishes the changes, and deletes the temporary files that no
/// process and no journal needs any more.
FileResult CleanUp(const ProgramFolder& folder);

}  // namespace kickwell
