/// \file
/// UTF-8 for files and logs, UTF-16 everywhere else; and what all readers of text share.
#pragma once

#include "values/types.h"

namespace lumtex {

/// Unpaired surrogates become U+FFFD.
std::string toUtf8(StringView text);

/// Malformed bytes become U+FFFD, one for each maximal bad sequence.
String fromUtf8(std::string_view text);
/// The same behind what `target` holds.
void appendFromUtf8(String& target, std::string_view text);

/// `text` without the blanks at both ends: space, the controls from tab to carriage return, and the no-break
/// space. Points into `text`.
StringView trimmed(StringView text);

/// What is drawn of a text: the part before its first zero character.
inline StringView drawnPart(StringView text) {
    return text.substr(0, text.find(u'\0'));
}

/// Whether two names are the same but for the case of A to Z. Member and property names hold nothing else.
bool sameName(StringView a, StringView b);

} // namespace lumtex
