#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zelmat {

/// Where a text stops being UTF-8, counted in bytes from 0; nothing when it is all UTF-8.
std::optional<std::size_t> FirstBadByte(std::string_view text);

/// The text with every byte that is not UTF-8 replaced by U+FFFD, as JSON and XML need it.
std::string ValidUtf8(std::string_view text);

/// The text as it may reach a terminal, on one line: control characters and whatever turns the direction of
/// writing around are shown as escapes (`\x1b`, `\n`, `\u202e`), so that no text from a file can move the
/// cursor, colour or forge a line. Bytes that are not UTF-8 become U+FFFD.
std::string Printable(std::string_view text);

/// A JSON text with those of these characters that JSON itself lets through written as its own escapes: the
/// same values, and safe on a terminal. Line ends between values stay. The text is UTF-8.
std::string PrintableJson(std::string_view json);

}  // namespace zelmat
