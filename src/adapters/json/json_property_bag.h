/// \file
/// A property bag that people can read: a file of JSON.
#pragma once

#include "platform/property_bag.h"
#include "platform/runtime.h"

#include <memory>
#include <string_view>

namespace lumtex::json {

/// Settings for programs that have no container to keep them: one JSON object with a member per property.
///
/// Booleans and numbers stand as JSON has them, and so do texts. A font is an object with the members "Name",
/// "Size" (points), "Bold", "Italic", "Underline" and "Strikethrough", of which those that say nothing
/// special are left out; a picture is an object whose member "Picture" holds the bytes of its file as base64.
/// A number that is not finite cannot be stored, and an object cannot either.
///
/// Members are kept in the order in which they were first written. One that was read from a text, and that
/// nobody has asked for since, is none of ours and is not written again.
class JsonPropertyBag final : public PropertyBag {
  public:
    /// An empty bag. `runtime` must outlive it.
    explicit JsonPropertyBag(Runtime& runtime);
    ~JsonPropertyBag() override;

    /// Takes over what `json` (UTF-8) says, in place of all that was there. Throws RuntimeError 321 for text
    /// that is no JSON object, or nested deeper than eight levels, and changes nothing then. Comments are
    /// allowed. Of a name in several spellings the first counts.
    void parse(std::string_view json);
    /// UTF-8, a property a line.
    std::string text() const;

    /// As `parse`, from a file. Throws 53 if there is none, and what reading it may throw.
    void load(StringView path);
    /// The file is replaced when all of it is written. Throws what writing may throw.
    void save(StringView path) const;

    /// Throws 13 for a member that stands for no value: a list, or an object that is neither font nor
    /// picture.
    Variant ReadProperty(StringView name, const Variant& defaultValue) const override;
    /// Throws 13 for a value that cannot be stored; what was stored before stays.
    void WriteProperty(StringView name, const Variant& value, const Variant& defaultValue) override;

  private:
    struct Members;

    Runtime& runtime_;
    std::unique_ptr<Members> members_;
};

} // namespace lumtex::json
