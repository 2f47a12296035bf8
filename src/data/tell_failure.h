// Failures told to the user.
#pragma once

#include "base/desktop.h"
#include "data/file_result.h"

namespace kickwell {

/// Shows a failure in an exclamation box. Returns true when there was none to show.
inline bool TellFailure(Desktop& desktop, const FileResult& result) {
  if (!result.Ok()) desktop.Warn(result.Failure);
  return result.Ok();
}

}  // namespace kickwell
