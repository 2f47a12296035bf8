// Lines of text and the bytes that they are in a file: the one place that knows how bytes are encoded.
//
// Inside the program text is UTF-8. A lone surrogate of a UTF-16 file is kept as its three-byte form, so that
// it survives reading and writing.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kickwell {

using Lines = std::vector<std::string>;

/// The lines in `bytes` without their ends. Takes UTF-16 in either byte order and UTF-8, with or without a
/// byte-order mark, CR LF or LF, and a last line without an end. Never fails: what cannot be decoded reads as
/// U+FFFD.
Lines Decode(std::string_view bytes);

/// UTF-16 little-endian with the byte-order mark, CR LF after every line; a line break inside a line becomes
/// a blank.
std::string Encode(const Lines& lines);

/// The lines of `bytes` unchanged and those of `block` behind them, after an empty line unless they are the
/// first, as Encode writes them.
std::string EncodeBehind(std::string bytes, const Lines& block);

/// The code points of UTF-8 text; each byte that cannot be decoded gives U+FFFD.
std::u32string ToCodePoints(std::string_view text);

}  // namespace kickwell
