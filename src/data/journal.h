// Files of championships that change together: all of them or none, whatever interrupts the change.
//
// A change first writes the new files under temporary names. Then it writes the journal, which lists what is
// to be renamed and deleted, does that, and deletes the journal. While the journal exists, the change can be
// finished, also by a later start of the program.
//
// A file that changes before it is certain that the change may stay is set aside first, in a journal of its
// own. From it the file is restored, unless a later change says that it may stay.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/file_result.h"
#include "data/program_folder.h"

namespace kickwell {

inline constexpr std::string_view JournalName = "unfinished.journal";
inline constexpr std::string_view SetAsideName = "unrecorded.journal";

/// The new content of one file of a championship.
struct ChangedFile {
  std::string File;                  ///< Its path from the program folder, for example "Leagues/Top.rec".
  std::optional<std::string> Bytes;  ///< Its new content; none deletes it, if it exists.
};

/// Makes all `changes` or none. If the disk fails during the renaming, the journal stays and the rest of the
/// change is made later. Refuses files that do not belong to a championship, to delete what is not a file,
/// and any change while a journal exists. A last change that deletes SetAsideName lets what was set aside go.
FileResult ChangeFiles(const ProgramFolder& folder, const std::vector<ChangedFile>& changes);

/// Finishes the change that a journal lists, if there is one. Renames a damaged journal instead, and the
/// result says so. Nothing may build on a championship's files while this fails.
FileResult FinishChanges(const ProgramFolder& folder);

/// Whether a change is still to be finished.
bool ChangesAreUnfinished(const ProgramFolder& folder);

/// Keeps `file` of a championship as it is now, also as missing, so that Restore can bring it back. First
/// restores what was set aside before.
FileResult SetAside(const ProgramFolder& folder, const std::string& file);

/// Finishes a change, then restores the file that was set aside.
FileResult Restore(const ProgramFolder& folder);

/// Each start of the program begins with this: finishes and restores, then deletes temporary files that
/// nobody needs.
FileResult CleanUp(const ProgramFolder& folder);

}  // namespace kickwell
