#include "data/text_encoding.h"

#include <algorithm>
#include <utility>

namespace kickwell {
namespace {

constexpr char32_t Replacement = 0xFFFD;
constexpr std::string_view LineEnd("\r\0\n\0", 4);  ///< In UTF-16 little-endian.
constexpr std::string_view Mark = "\xFF\xFE";       ///< Of UTF-16 little-endian.

bool IsHighSurrogate(char32_t c) {
  return c >= 0xD800 && c <= 0xDBFF;
}
bool IsLowSurrogate(char32_t c) {
  return c >= 0xDC00 && c <= 0xDFFF;
}

void AppendUtf8(std::string& text, char32_t c) {
  const auto byte = [&text](char32_t value) { text += static_cast<char>(value); };
  if (c < 0x80) {
    byte(c);
  } else if (c < 0x800) {
    byte(0xC0 | c >> 6);
    byte(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    byte(0xE0 | c >> 12);
    byte(0x80 | (c >> 6 & 0x3F));
    byte(0x80 | (c & 0x3F));
  } else {
    byte(0xF0 | c >> 18);
    byte(0x80 | (c >> 12 & 0x3F));
    byte(0x80 | (c >> 6 & 0x3F));
    byte(0x80 | (c & 0x3F));
  }
}

/// The code point that starts at `place`, which moves behind it; a bad byte is passed over alone.
char32_t NextCodePoint(std::string_view text, std::size_t& place) {
  const auto at = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = at(place++);
  if (lead < 0x80) return lead;
  const std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
  if (lead < 0xC2 || lead > 0xF4 || text.size() - place < more) return Replacement;
  char32_t c = lead & (0x3FU >> more);
  for (std::size_t i = 0; i < more; ++i) {
    if ((at(place + i) & 0xC0U) != 0x80) return Replacement;
    c = c << 6 | (at(place + i) & 0x3FU);
  }
  constexpr char32_t Shortest[] = {0, 0x80, 0x800, 0x10000};  // Longer forms of a code point are refused.
  if (c < Shortest[more] || c > 0x10FFFF) return Replacement;
  place += more;
  return c;
}

enum class Encoding { Utf8, Utf16Little, Utf16Big };

/// Without a mark only UTF-16 holds zero bytes: the high bytes of digits and of line ends.
Encoding GuessEncoding(std::string_view bytes) {
  std::size_t zeros[2] = {0, 0};
  for (std::size_t i = 0; i < bytes.size(); ++i) zeros[i % 2] += bytes[i] == '\0' ? 1 : 0;
  if (zeros[0] == 0 && zeros[1] == 0) return Encoding::Utf8;
  return zeros[0] > zeros[1] ? Encoding::Utf16Big : Encoding::Utf16Little;
}

/// Nearly all text is ASCII. Compilers turn the loops over a block of it into vector instructions.
constexpr std::size_t Block = 64;

/// Where the low and the high byte of a UTF-16 unit lie.
struct ByteOrder {
  std::size_t Low, High;
};

template <ByteOrder Order>
char32_t UnitAt(std::string_view bytes, std::size_t place) {
  const auto at = [&](std::size_t i) { return static_cast<unsigned char>(bytes[place + i]); };
  return static_cast<char32_t>(at(Order.Low) | at(Order.High) << 8);
}

/// Narrows `count` UTF-16 units. Returns whether all of them were ASCII.
template <ByteOrder Order>
bool NarrowAscii(const char* units, std::size_t count, char* ascii) {
  char others = 0;
  for (std::size_t i = 0; i < count; ++i) {
    ascii[i] = units[2 * i + Order.Low];
    others = static_cast<char>(others | (ascii[i] & '\x80') | units[2 * i + Order.High]);
  }
  return others == 0;
}

template <ByteOrder Order>
std::string DecodeUtf16(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() / 2);
  char ascii[Block];
  for (std::size_t i = 0; i + 1 < bytes.size();) {
    const std::size_t count = std::min(Block, (bytes.size() - i) / 2), end = i + 2 * count;
    if (NarrowAscii<Order>(bytes.data() + i, count, ascii)) {
      text.append(ascii, count);
      i = end;
    }
    while (i < end) {
      char32_t c = UnitAt<Order>(bytes, i);
      i += 2;
      if (IsHighSurrogate(c) && i + 1 < bytes.size() && IsLowSurrogate(UnitAt<Order>(bytes, i))) {
        c = 0x10000 + ((c - 0xD800) << 10) + (UnitAt<Order>(bytes, i) - 0xDC00);
        i += 2;
      }
      AppendUtf8(text, c);
    }
  }
  return text;
}

std::string DecodeUtf8(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (std::size_t place = 0; place < bytes.size();) AppendUtf8(text, NextCodePoint(bytes, place));
  return text;
}

std::string ToUtf8(std::string_view bytes) {
  Encoding encoding = Encoding::Utf8;
  if (bytes.starts_with(Mark)) {
    encoding = Encoding::Utf16Little;
    bytes.remove_prefix(2);
  } else if (bytes.starts_with("\xFE\xFF")) {
    encoding = Encoding::Utf16Big;
    bytes.remove_prefix(2);
  } else if (bytes.starts_with("\xEF\xBB\xBF")) {
    bytes.remove_prefix(3);
  } else {
    encoding = GuessEncoding(bytes);
  }
  if (encoding == Encoding::Utf16Little) return DecodeUtf16<ByteOrder{0, 1}>(bytes);
  if (encoding == Encoding::Utf16Big) return DecodeUtf16<ByteOrder{1, 0}>(bytes);
  return DecodeUtf8(bytes);
}

/// Widens `count` characters to UTF-16 units. Returns whether all of them were ASCII.
bool WidenAscii(const char* ascii, std::size_t count, char* units) {
  char others = 0;
  for (std::size_t i = 0; i < count; ++i) {
    units[2 * i] = ascii[i];
    units[2 * i + 1] = '\0';
    others = static_cast<char>(others | (ascii[i] & '\x80'));
  }
  return others == 0;
}

void AppendUnit(std::string& bytes, char32_t unit) {
  bytes += static_cast<char>(unit & 0xFF);
  bytes += static_cast<char>(unit >> 8);
}

void AppendUtf16(std::string& bytes, std::string_view text) {
  char units[2 * Block];
  for (std::size_t place = 0; place < text.size();) {
    const std::size_t count = std::min(Block, text.size() - place), end = place + count;
    if (WidenAscii(text.data() + place, count, units)) {
      bytes.append(units, 2 * count);
      place = end;
    }
    while (place < end) {
      const char32_t c = NextCodePoint(text, place);
      if (c >= 0x10000) {
        AppendUnit(bytes, 0xD800 + ((c - 0x10000) >> 10));
        AppendUnit(bytes, 0xDC00 + ((c - 0x10000) & 0x3FF));
      } else {
        AppendUnit(bytes, c);
      }
    }
  }
}

struct LineFeeds {
  std::size_t Count = 0;
  bool Bare = false;  ///< Whether any of them has no CR before it.
};

LineFeeds FindLineFeeds(std::string_view text) {
  LineFeeds found{0, text.starts_with('\n')};
  found.Count = found.Bare ? 1 : 0;
  for (std::size_t place = 1; place < text.size(); place += Block) {
    const std::size_t end = std::min(place + Block, text.size());
    unsigned char count = 0, bare = 0;
    for (std::size_t i = place; i < end; ++i) {
      const bool feed = text[i] == '\n', afterOther = text[i - 1] != '\r';
      count = static_cast<unsigned char>(count + feed);
      bare = static_cast<unsigned char>(bare | (feed & afterOther));
    }
    found.Count += count;
    found.Bare |= bare != 0;
  }
  return found;
}

/// `text` with CR LF in the place of each LF.
std::string WithCrLf(std::string_view text) {
  std::string ended;
  for (const char c : text) {
    if (c == '\n' && !ended.ends_with('\r')) ended += '\r';
    ended += c;
  }
  return ended;
}

}  // namespace

TextLines::TextLines(std::string text) {
  if (!text.empty() && !text.ends_with('\n')) text += '\n';
  const LineFeeds feeds = FindLineFeeds(text);
  size_ = feeds.Count;
  text_ = std::make_shared<const std::string>(feeds.Bare ? WithCrLf(text) : std::move(text));
}

TextLines Decode(std::string_view bytes) {
  return TextLines(ToUtf8(bytes));
}

EncodedText::EncodedText(std::size_t expected) {
  bytes_.reserve(Mark.size() + 2 * expected);
  bytes_ = Mark;
}

void EncodedText::Add(std::string_view line) {
  for (std::size_t end = line.find('\n'); end != std::string_view::npos; end = line.find('\n')) {
    AppendUtf16(bytes_, line.substr(0, end));
    AppendUtf16(bytes_, " ");
    line.remove_prefix(end + 1);
  }
  AppendUtf16(bytes_, line);
  bytes_ += LineEnd;
}

void EncodedText::AddLines(std::string_view lines) {
  AppendUtf16(bytes_, lines);
}

void EncodedText::Add(int number) {
  Add(std::to_string(number));
}

std::string Encode(const Lines& lines) {
  EncodedText text;
  for (const std::string& line : lines) text.Add(line);
  return text.Bytes();
}

std::u32string ToCodePoints(std::string_view text) {
  std::u32string points;
  points.reserve(text.size());
  for (std::size_t place = 0; place < text.size();) points.push_back(NextCodePoint(text, place));
  return points;
}

}  // namespace kickwell
