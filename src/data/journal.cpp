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

/// Makes one step. One that has been made before an interruption is made already.
FileResult Make(const ProgramFolder& folder, const Step& step) {
  const std::filesystem::path file = folder.Root / step.File, temporary = folder.Root / step.Temporary;
  if (step.Temporary == Deleted) return DeleteFile(file);
  return FileExists(temporary) ? MoveIntoPlace(temporary, file) : FileResult{};
}

/// Makes the steps and ends the journal. `made` counts the steps that have been made.
FileResult Follow(const ProgramFolder& folder, const std::vector<Step>& steps, std::size_t& made) {
  for (made = 0; made < steps.size(); ++made) {
    FileResult result = Make(folder, steps[made]);
    if (!result.Ok()) return result;
  }
  for (const auto& place : {folder.Leagues(), folder.Tournies()}) FlushFolder(place);
  FileResult ended = DeleteFile(JournalOf(folder));
  FlushFolder(folder.Root);  // Or a journal that comes back could meet the temporary files of a later one.
  return ended;
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
  for (const ChangedFile& change : changes) {
    if (!IsChampionshipFile(folder, change.File)) return {FileNameRefusal(change.File)};
  }
  if (FileExists(JournalOf(folder))) {
    return {"Nothing can be saved while the changes in " + JournalOf(folder).string() + " are unfinished."};
  }
  std::vector<Step> steps;
  FileResult result;
  for (const ChangedFile& change : changes) {
    const bool deletes = !change.Bytes;
    steps.push_back(
        {deletes ? std::string(Deleted) : TemporaryName(static_cast<int>(steps.size()) + 1), change.File});
    if (deletes) continue;
    result = PrepareFile(folder.Root / change.File, *change.Bytes, folder.Root / steps.back().Temporary);
    if (!result.Ok()) break;
  }
  if (result.Ok()) result = WriteWholeFile(JournalOf(folder), ToText(steps), folder.Root);
  std::size_t made = 0;
  if (result.Ok()) result = Follow(folder, steps, made);
  if (result.Ok()) return result;
  if (made > 0) {
    result.Failure += " What is missing is saved when the program next starts.";
  } else if (DeleteFile(JournalOf(folder)).Ok()) {  // Without its journal the change was never begun.
    DeleteTemporaries(folder, steps);
  }
  return result;
}

FileResult FinishChanges(const ProgramFolder& folder) {
  FileResult result;
  const std::optional<std::string> text = ReadWholeFile(JournalOf(folder), &result);
  if (text) {
    const std::optional<std::vector<Step>> steps = FromText(folder, *text);
    std::size_t made = 0;
    if (steps) return Follow(folder, *steps, made);
    const std::filesystem::path aside = JournalOf(folder).replace_extension(".bad");
    result = MoveIntoPlace(JournalOf(folder), aside);
    if (result.Ok()) {
      result = {"The file " + JournalOf(folder).string() +
                " made no sense. It has not been followed and is called " + aside.filename().string() +
                " now."};
    }
  }
  return result;
}

}  // namespace kickwell
