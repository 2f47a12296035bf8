// Lines of text and the bytes that they are in a file: the one place that knows how bytes are encoded.
//
// Inside the program text is UTF-8. A lone surrogate of a UTF-16 file is kept as its three-byte form, so that
// it survives reading and writing.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kickwell {

/// The lines in `bytes`, with CR LF after each of them. The bytes are UTF-16 in either byte order or UTF-8,
/// with or without a byte-order mark, or Windows-1252; with CR LF or LF, the last line with or without an
/// end. Never fails: no bytes are beyond Windows-1252.
std::string Decode(std::string_view bytes);

/// Text in the making: UTF-16 little-endian with the byte-order mark, and CR LF after every line.
class EncodedText {
 public:
  EncodedText();  ///< Without any line.

  /// Adds a line of UTF-8. A line break inside it becomes a blank.
  void Add(std::string_view line);
  void Add(int number);  ///< In decimal digits.

  /// Adds lines that have CR LF after each of them, as Decode and LineReader return them.
  void AddLines(std::string_view lines);

  const std::string& Bytes() const& { return bytes_; }
  std::string Bytes() && { return std::move(bytes_); }

 private:
  std::string bytes_;
};

using Lines = std::vector<std::string>;

/// All `lines` as EncodedText has them.
std::string Encode(const Lines& lines);

/// The code points of UTF-8 text; each byte that cannot be decoded gives U+FFFD.
std::u32string ToCodePoints(std::string_view text);

}  // namespace kickwell
