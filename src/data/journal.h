// Files of championships that change together: all of them or none, whatever happens in between.
//
// The new files are written under temporary names first. Then the journal is written, which says what becomes
// of them; the changes are made; the journal is deleted. As long as the journal exists, the changes can be
// finished, even by a later start of the program.
//
// A second journal takes changes back that are made before it is known whether they may stay: it says how a
// file becomes what it was, and is followed unless a change ends it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/file_result.h"
#include "data/program_folder.h"

namespace kickwell {

inline constexpr std::string_view JournalName = "unfinished.journal";
inline constexpr std::string_view PutByName = "unrecorded.journal";

/// What becomes of one file of a championship.
struct ChangedFile {
  std::string File;                  ///< Its path from the program folder, for example "Leagues/Top.rec".
  std::optional<std::string> Bytes;  ///< Its new content; none deletes it, if it exists.
};

/// Makes all `changes` or none. If the disk fails in the middle of the renaming, the journal stays and the
/// rest is made later. Refuses files that do not belong to a championship, the deletion of what is no file,
/// and any change while a journal exists. The deletion of PutByName among them makes what was put by end with
/// this change.
FileResult ChangeFiles(const ProgramFolder& folder, const std::vector<ChangedFile>& changes);

/// Finishes the changes that an earlier journal lists, if there is one. A damaged journal is renamed instead,
/// and the result says so. Nothing may build on a championship's files while this fails.
FileResult FinishChanges(const ProgramFolder& folder);

/// Whether the rest of a change is still to be made.
bool ChangesAreUnfinished(const ProgramFolder& folder);

/// Puts `file` of a championship by as it is now, or as missing. Restores first what was put by before.
FileResult PutBy(const ProgramFolder& folder, const std::string& file);

/// Finishes changes, and then makes what was put by what it was.
FileResult Restore(const ProgramFolder& folder);

/// What each start of the program does first: finishes and restores, then deletes temporary files that nobody
/// needs.
FileResult CleanUp(const ProgramFolder& folder);

}  // namespace kickwell
