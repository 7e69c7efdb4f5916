/// \file
/// What some pages of the reference tell beyond their tables.
#pragma once

#include <string_view>

namespace lumtex::automation {

/// Markdown that ends with a line end; empty for a page without. `page` is the name of a member, or "Events".
std::string_view detailsOf(std::string_view page);

/// The name of the example that the page of a member quotes; empty for a page without.
std::string_view exampleOf(std::string_view page);

} // namespace lumtex::automation
