// Records of lines, as all files of the program are made of.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "base/number.h"
#include "data/text_encoding.h"

namespace kickwell {

/// Takes the lines of a file one by one.
class LineReader {
 public:
  explicit LineReader(TextLines lines) : lines_(std::move(lines)) {}

  /// The next line; empty after the last.
  std::string_view View() { return place_ < lines_.size() ? lines_[place_++] : std::string_view(); }
  std::string Text() { return std::string(View()); }
  int Number() { return ToNumber(View()); }  ///< 0 when the line is no number.

  /// How many complete records of `lines` lines are left.
  std::size_t RecordsLeft(std::size_t lines) const { return (lines_.size() - place_) / lines; }

  /// The next line as a count of the records of `lines` lines behind it, at most as many as are left.
  std::size_t Count(std::size_t lines) {
    const int count = std::max(Number(), 0);
    return std::min(static_cast<std::size_t>(count), RecordsLeft(lines));
  }

 private:
  TextLines lines_;
  std::size_t place_ = 0;
};

}  // namespace kickwell
