// How work on files went, and what was read.
#pragma once

#include <string>
#include <utility>

namespace kickwell {

struct [[nodiscard]] FileResult {
  std::string Failure;  ///< Which file and why, as a sentence for the user; empty on success.

  bool Ok() const { return Failure.empty(); }
};

/// A value that was read from a file, and how reading it went. A missing file is no failure: it gives the
/// value that stands for nothing. A file that exists but cannot be read gives that value too, and a failure.
template <typename T>
struct [[nodiscard]] Loaded {
  T Value{};
  FileResult Result{};

  bool Ok() const { return Result.Ok(); }
};

}  // namespace kickwell
