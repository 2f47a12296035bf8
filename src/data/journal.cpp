#include "data/journal.h"

#include <algorithm>
#include <array>
#include <sstream>

#include "data/file_names.h"

namespace kickwell {
namespace {

constexpr std::string_view FirstLine = "Kickwell journal 1", LastLine = "End";
constexpr std::string_view Deleted = "-";  ///< In the place of a temporary file's name.

struct Step {
  std::string Temporary;  ///< In the program folder; or Deleted.
  std::string File;       ///< From the program folder.
};

std::filesystem::path JournalOf(const ProgramFolder& folder) {
  return folder.Root / JournalName;
}

/// Whether `file` is "Leagues/" or "Tournies/" and the name of a championship's file in it.
bool IsChampionshipFile(const ProgramFolder& folder, std::string_view file) {
  const std::size_t slash = file.find('/');
  if (slash == std::string_view::npos) return false;
  const std::string_view place = file.substr(0, slash), name = file.substr(slash + 1);
  constexpr std::array<std::string_view, 5> Extensions = {".leg", ".trn", ".rec", ".sco", ".lrs"};
  const auto ends = [name](std::string_view extension) { return name.ends_with(extension); };
  return (place == folder.Leagues().filename() || place == folder.Tournies().filename()) &&
         StaysInFolder(name) && name.find('\n') == std::string_view::npos &&
         std::any_of(Extensions.begin(), Extensions.end(), ends);
}

/// The journal's text is bytes, not encoded as other files are: a name must come back exactly.
std::string ToText(const std::vector<Step>& steps) {
  std::string text = std::string(FirstLine) + "\n";
  for (const Step& step : steps) text += step.Temporary + "\n" + step.File + "\n";
  return text + std::string(LastLine) + "\n";
}

/// The steps of a journal; nothing when it makes no sense.
std::optional<std::vector<Step>> FromText(const ProgramFolder& folder, const std::string& text) {
  std::vector<Step> steps;
  std::istringstream lines(text);
  std::string line;
  if (!std::getline(lines, line) || line != FirstLine) return std::nullopt;
  while (std::getline(lines, line) && line != LastLine) {
    Step step{line, {}};
    std::getline(lines, step.File);
    const bool known = step.Temporary == Deleted || IsTemporaryName(step.Temporary);
    if (!known || !IsChampionshipFile(folder, step.File)) return std::nullopt;
    steps.push_back(std::move(step));
  }
  if (line != LastLine || ToText(steps) != text) return std::nullopt;
  return steps;
}

FileResult Make(const ProgramFolder& folder, const Step& step) {
  if (step.Temporary == Deleted) return DeleteFile(folder.Root / step.File);
  return MoveIntoPlace(folder.Root / step.Temporary, folder.Root / step.File);
}

/// Whether a step that cannot be made has been made already, before an interruption.
bool WasMade(const ProgramFolder& folder, const Step& step) {
  return step.Temporary != Deleted && FileIsMissing(folder.Root / step.Temporary);
}

/// Ends the journal, for good: one that comes back after a power cut could meet files of a later one.
FileResult EndJournal(const ProgramFolder& folder) {
  FileResult ended = DeleteFile(JournalOf(folder));
  FlushFolderOf(JournalOf(folder));
  return ended;
}

/// Makes the steps, but for those that an earlier attempt has made, and ends the journal. `made` counts how
/// many are made.
FileResult Follow(const ProgramFolder& folder, const std::vector<Step>& steps, std::size_t& made) {
  for (made = 0; made < steps.size(); ++made) {
    FileResult result = Make(folder, steps[made]);
    if (!result.Ok() && !WasMade(folder, steps[made])) return result;
  }
  for (const Step& step : steps) FlushFolderOf(folder.Root / step.File);
  return EndJournal(folder);
}

FileResult MayBeDeleted(const std::filesystem::path& file) {
  std::error_code error;
  if (FileIsMissing(file) || std::filesystem::is_regular_file(file, error)) return {};
  return {"The file " + file.string() + " can't be deleted: it is no file."};
}

void DeleteTemporaries(const ProgramFolder& folder, const std::vector<Step>& steps) {
  for (const Step& step : steps) {
    if (step.Temporary == Deleted) continue;
    const FileResult left = DeleteFile(folder.Root / step.Temporary);
    if (!left.Ok()) continue;  // Some later start tries again.
  }
}

}  // namespace

FileResult ChangeFiles(const ProgramFolder& folder, const std::vector<ChangedFile>& changes) {
  std::vector<Step> steps;
  for (const ChangedFile& change : changes) {
    if (!IsChampionshipFile(folder, change.File)) return {FileNameRefusal(change.File)};
    const int number = static_cast<int>(steps.size()) + 1;
    steps.push_back({change.Bytes ? TemporaryName(number) : std::string(Deleted), change.File});
  }
  if (!FileIsMissing(JournalOf(folder))) {
    return {"Nothing can be saved while the changes in " + JournalOf(folder).string() + " are unfinished."};
  }
  FileResult result;
  for (std::size_t i = 0; i < steps.size() && result.Ok(); ++i) {
    const std::filesystem::path file = folder.Root / steps[i].File;
    result = changes[i].Bytes ? PrepareFile(file, *changes[i].Bytes, folder.Root / steps[i].Temporary)
                              : MayBeDeleted(file);
  }
  if (result.Ok()) {
    FlushFolderOf(JournalOf(folder));  // The temporary files must be there when the journal is.
    result = WriteWholeFile(JournalOf(folder), ToText(steps), folder.Root);
  }
  std::size_t made = 0;
  if (result.Ok()) result = Follow(folder, steps, made);
  if (result.Ok()) return result;
  if (made > 0) {
    result.Failure += " What is missing is saved when the program next starts.";
  } else if (EndJournal(folder).Ok()) {  // Without its journal the change was never begun.
    DeleteTemporaries(folder, steps);
  }
  return result;
}

FileResult FinishChanges(const ProgramFolder& folder) {
  const std::filesystem::path journal = JournalOf(folder);
  FileResult result;
  const std::optional<std::string> text = ReadWholeFile(journal, &result);
  std::error_code error;
  const bool strange = !result.Ok() && !std::filesystem::is_regular_file(journal, error) && !error;
  if (!text && !strange) return result;
  const std::optional<std::vector<Step>> steps = text ? FromText(folder, *text) : std::nullopt;
  std::size_t made = 0;
  if (steps) return Follow(folder, *steps, made);
  std::filesystem::path aside = folder.Root / "unfinished.bad";
  for (int i = 2; FileExists(aside); ++i) aside = folder.Root / ("unfinished-" + std::to_string(i) + ".bad");
  result = MoveIntoPlace(journal, aside);
  if (!result.Ok()) return result;
  return {"The file " + journal.string() + " made no sense. It has not been followed and is called " +
          aside.filename().string() + " now."};
}

FileResult CleanUp(const ProgramFolder& folder) {
  FileResult finished = FinishChanges(folder);
  if (FileIsMissing(JournalOf(folder))) DeleteLeftovers(folder.Root);
  return finished;
}

}  // namespace kickwell
