/// \file
/// Fonts: the six attributes as a value, and the shared object that hosts hand over.
#pragma once

#include "values/types.h"

#include <memory>
#include <utility>

namespace lumtex {

/// The six attributes that choose a font. Compared as a whole, so it can key a cache.
struct FontSpec {
    String Name;
    Single Size = 0; ///< points
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    bool Strikethrough = false;

    bool operator==(const FontSpec&) const = default;
};

/// A font object with reference semantics. A change shows wherever the object is shared.
class Font {
  public:
    explicit Font(FontSpec attributes) : spec(std::move(attributes)) {}
    Font& operator=(const Font&) = delete;
    virtual ~Font() = default;

    /// A new object with the same attributes, sharing nothing with this one.
    virtual std::shared_ptr<Font> Clone() const { return std::make_shared<Font>(spec); }

    FontSpec spec;

  protected:
    Font(const Font&) = default;
};

using FontRef = std::shared_ptr<Font>;

} // namespace lumtex
