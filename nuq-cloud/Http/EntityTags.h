#pragma once

#include <string>
#include <string_view>

namespace nuqcloud {

/// The tag of a reply whose body is the tagged one's gzip form: other bytes, so another tag.
std::string GzipTag(const std::string& tag);

/// Looks for a tag in the value of an If-None-Match header: a list of tags, weak ones included, or "*".
/// @return the tag that the client has, plain or that of its gzip form; empty when it has neither
std::string KnownTag(std::string_view ifNoneMatch, const std::string& tag);

} // namespace nuqcloud
