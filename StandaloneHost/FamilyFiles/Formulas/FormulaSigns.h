#pragma once

namespace familyfiles {

/// The plain counterpart of a full-width or typographic sign that a Chinese keyboard or a word processor writes; any
/// other character is its own. Letters and digits inside names are never asked about.
char32_t PlainSign(char32_t code);

/// Whether a name may begin with the character, or go on with it.
bool BeginsName(char32_t code);
bool ContinuesName(char32_t code);

bool IsBlank(char32_t code);
bool IsDigit(char32_t code);

} // namespace familyfiles
