/// \file
/// Values to and from the form in which automation passes them.
#pragma once

#include "values/variant.h"
#include "worlds/win32/windows_api.h"

#include <utility>

namespace lumtex::win32 {

/// Owns what a VARIANT holds.
class OwnedVARIANT {
  public:
    OwnedVARIANT() { VariantInit(&value_); }
    /// Takes over what `value` holds.
    explicit OwnedVARIANT(const VARIANT& value) : value_(value) {}
    OwnedVARIANT(const OwnedVARIANT&) = delete;
    OwnedVARIANT& operator=(const OwnedVARIANT&) = delete;
    OwnedVARIANT(OwnedVARIANT&& other) noexcept : value_(other.release()) {}
    OwnedVARIANT& operator=(OwnedVARIANT&& other) noexcept {
        std::swap(value_, other.value_);
        return *this;
    }
    ~OwnedVARIANT() { VariantClear(&value_); }

    const VARIANT& get() const { return value_; }
    VARIANT& get() { return value_; }
    /// Where a call stores a result. Drops the old one.
    VARIANT* out() {
        VariantClear(&value_);
        return &value_;
    }
    /// The value, now the caller's.
    VARIANT release() {
        const VARIANT value = value_;
        VariantInit(&value_);
        return value;
    }

  private:
    VARIANT value_{};
};

/// Follows references from one VARIANT to the next, as a procedure makes them that passes on what it got.
/// Ends at any other value, at one that leads nowhere, and after a length that only a circle has.
const VARIANT& endOfReferences(const VARIANT& value);

/// A copy of the value, also of one that `value` only points to. A number keeps its digits, and its kind
/// where a Variant has it: a signed byte comes as an Integer, an unsigned one of two bytes as a Long, one of
/// four as a Long or Double. An object that is a picture or a font comes as such; any other one must answer
/// late-bound calls. Arrays, records and error values come as Unsupported; an argument that was left out is
/// no error value. Throws RuntimeError 13 for references that lead nowhere.
Variant fromVARIANT(const VARIANT& value);

/// Throws RuntimeError 7 if there is no memory for a text.
OwnedVARIANT toVARIANT(const Variant& value);

DECIMAL toDECIMAL(const Decimal& value);

/// Owned by the caller, to be freed with SysFreeString; may hold zeros. Throws RuntimeError 7.
BSTR newBSTR(StringView text);
/// Null is the empty text.
StringView viewBSTR(BSTR text);

} // namespace lumtex::win32
