// Lines of text and the bytes that they are in a file: the one place that knows how bytes are encoded.
//
// Inside the program text is UTF-8. A lone surrogate of a UTF-16 file is kept as its three-byte form, so that
// it survives reading and writing.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kickwell {

/// The lines of a file without their ends, as views into one buffer that all copies share.
class TextLines {
 public:
  TextLines() = default;
  explicit TextLines(std::string text);  ///< UTF-8, with LF or CR LF after each line but perhaps the last.

  std::size_t size() const { return lines_.size(); }
  bool empty() const { return lines_.empty(); }
  std::string_view operator[](std::size_t place) const { return lines_[place]; }
  auto begin() const { return lines_.begin(); }
  auto end() const { return lines_.end(); }

 private:
  std::shared_ptr<const std::string> text_;
  std::vector<std::string_view> lines_;
};

/// The lines in `bytes`: UTF-16 in either byte order or UTF-8, with or without a byte-order mark, with CR LF
/// or LF, the last line with or without an end. Never fails: what cannot be decoded reads as U+FFFD.
TextLines Decode(std::string_view bytes);

/// Text in the making: UTF-16 little-endian with the byte-order mark, and CR LF after every line.
class EncodedText {
 public:
  explicit EncodedText(std::size_t expectedBytes = 0);

  /// Adds a line of UTF-8. A line break inside it becomes a blank.
  void Add(std::string_view line);
  void Add(int number);  ///< In decimal digits.

  const std::string& Bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

using Lines = std::vector<std::string>;

/// All `lines` as EncodedText has them.
std::string Encode(const Lines& lines);

/// The code points of UTF-8 text; each byte that cannot be decoded gives U+FFFD.
std::u32string ToCodePoints(std::string_view text);

}  // namespace kickwell
