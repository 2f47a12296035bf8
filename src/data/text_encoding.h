// Lines of text and the bytes that they are in a file: the one place that knows how bytes are encoded.
//
// Inside the program text is UTF-8. A lone surrogate of a UTF-16 file is kept as its three-byte form, so that
// it survives reading and writing.
#pragma once

#include <cstddef>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kickwell {

/// The lines of a file without their ends, as views into one buffer that all copies share.
class TextLines {
 public:
  class Iterator {
   public:
    using iterator_category = std::input_iterator_tag;
    using value_type = std::string_view;
    using difference_type = std::ptrdiff_t;
    using pointer = const std::string_view*;
    using reference = std::string_view;

    Iterator() = default;
    explicit Iterator(std::string_view rest) : rest_(rest) {}

    std::string_view operator*() const { return rest_.substr(0, rest_.find('\n') - 1); }
    Iterator& operator++() {
      rest_.remove_prefix(rest_.find('\n') + 1);
      return *this;
    }
    Iterator operator++(int) { return std::exchange(*this, Iterator(++Iterator(*this))); }
    bool operator==(const Iterator& other) const { return rest_.size() == other.rest_.size(); }

   private:
    std::string_view rest_;
  };

  TextLines() = default;
  explicit TextLines(std::string text);  ///< UTF-8, with LF or CR LF after each line but perhaps the last.

  std::size_t size() const { return size_; }
  bool empty() const { return size_ == 0; }
  Iterator begin() const { return Iterator(Text()); }
  Iterator end() const { return {}; }

  /// All lines, with CR LF after each of them.
  std::string_view Text() const { return text_ ? std::string_view(*text_) : std::string_view(); }

 private:
  std::shared_ptr<const std::string> text_;
  std::size_t size_ = 0;
};

/// The lines in `bytes`: UTF-16 in either byte order or UTF-8, with or without a byte-order mark, or
/// Windows-1252; with CR LF or LF, the last line with or without an end. Never fails: no bytes are beyond
/// Windows-1252.
TextLines Decode(std::string_view bytes);

/// Text in the making: UTF-16 little-endian with the byte-order mark, and CR LF after every line.
class EncodedText {
 public:
  /// Empty, with room for `expected` bytes of UTF-8.
  explicit EncodedText(std::size_t expected = 0);

  /// Adds a line of UTF-8. A line break inside it becomes a blank.
  void Add(std::string_view line);
  void Add(int number);  ///< In decimal digits.

  /// Adds lines that have CR LF after each of them, as TextLines and LineReader give them.
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
