// One running program to a program folder.
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <functional>

#include "data/program_folder.h"

namespace kickwell {

/// Keeps a second start from working on the same folder. A crash leaves nothing that keeps the next start
/// from running, and a folder that can't be written counts as one that nobody else uses.
class OneProgram {
 public:
  explicit OneProgram(const ProgramFolder& folder);

  /// Whether this program may run. If not, another one does, and has been told to come to the front.
  bool MayRun() const { return mayRun_; }

  /// Called when a second start asks this program to come to the front.
  std::function<void()> Wanted = [] {};

 private:
  void Listen();

  QString name_;  ///< Of the socket; the same for every start in this folder by this user.
  QLockFile lock_;
  QLocalServer server_;
  bool mayRun_;
};

}  // namespace kickwell
