// The operations on files that the program asks of the system, counted, and on demand failing or interrupted.
// The linker leads the program's calls here (see tests/CMakeLists.txt); without a fault they go straight on.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kickwell {

struct FileFaults {
  int Operations = 0;                ///< Since the faults were reset.
  std::vector<std::string> Paths{};  ///< All that these named.
  int FailAt = 0;                    ///< The operation that fails, counted from 1; 0 for none.
  bool FailOn = false;               ///< Whether all later ones fail too.
  int Error = 0;                     ///< The errno value of a failure.
  int StopAt = 0;                    ///< The operation at which the process stops, a write half done.
  bool LoseUnflushed = false;        ///< Whether files not flushed by then are lost, as in a power cut.
};

/// The faults at work; assigning FileFaults{} ends them.
FileFaults& Faults();

/// Runs `act` in a child process that stops at operation `stopAt`, and kills that by its id. Whether it came
/// so far; false when `act` has ended before.
bool KilledAt(int stopAt, bool loseUnflushed, const std::function<void()>& act);

}  // namespace kickwell
