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
  /// `text` has CR LF after each line, as Decode returns it.
  explicit LineReader(std::string text)
      : text_(std::move(text)),
        rest_(text_),
        left_(static_cast<std::size_t>(std::ranges::count(text_, '\n'))) {}
  LineReader(const LineReader&) = delete;
  LineReader& operator=(const LineReader&) = delete;

  /// The next line; empty after the last.
  std::string_view View() {
    if (left_ == 0) return {};
    --left_;
    const std::size_t end = rest_.find('\n');
    const std::string_view line = rest_.substr(0, end - 1);
    rest_.remove_prefix(end + 1);
    return line;
  }
  std::string Text() { return std::string(View()); }
  int Number() { return ToNumber(View()); }  ///< 0 when the line is no number.

  void Skip(std::size_t lines) {
    for (std::size_t i = 0; i < lines; ++i) View();
  }

  /// How many complete records of `lines` lines are left.
  std::size_t RecordsLeft(std::size_t lines) const { return left_ / lines; }

  /// The next line as a count of the records of `lines` lines behind it, at most as many as are left.
  std::size_t Count(std::size_t lines) {
    const int count = std::max(Number(), 0);
    return std::min(static_cast<std::size_t>(count), RecordsLeft(lines));
  }

  /// The lines that are left, with CR LF after each of them, but no blank ones at the end.
  std::string_view Rest() const {
    const std::size_t last = rest_.find_last_not_of(" \t\r\n");
    return last == std::string_view::npos ? std::string_view() : rest_.substr(0, rest_.find('\n', last) + 1);
  }

  /// The lines taken since the last call, with CR LF after each of them.
  std::string_view Passed() {
    const std::size_t from = std::exchange(passed_, text_.size() - rest_.size());
    return std::string_view(text_).substr(from, passed_ - from);
  }

 private:
  std::string text_;
  std::string_view rest_;   ///< What has not been taken.
  std::size_t left_;        ///< How many lines that is.
  std::size_t passed_ = 0;  ///< Where Passed goes on.
};

}  // namespace kickwell
