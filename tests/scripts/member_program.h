/// \file
/// Programs that use one member of a public class in every way that its description allows.
#pragma once

#include "automation/class_table.h"
#include "scripts/script_host.h"
#include "values/variant.h"

#include <vector>

namespace lumtex::testing {

/// One use of a member.
struct MemberUse {
    enum class Kind : Byte { get, let, call };

    Kind kind;
    std::vector<Variant> arguments; ///< `Missing` for one that is left out
    Variant value;                  ///< what an assignment assigns

    /// "get(2, 1)", for messages.
    std::string shown() const;
};

/// Objects that programs know by name: `samplePicture`, `sampleFont`, `sampleObject`.
struct NamedSamples {
    PictureRef picture;
    FontRef font;
    ObjectRef object;
};

/// Values for the parameters of a member and for what is assigned to it: by the parameter's name where it
/// must mean something, else by its type.
class SampleValues {
  public:
    /// `folder` ends with a backslash.
    SampleValues(NamedSamples named, String folder) : named_(std::move(named)), folder_(std::move(folder)) {}

    Variant valueFor(const automation::Parameter& parameter) const;
    /// What no new object holds.
    Variant assignedTo(const automation::Member& member) const { return byType(member.type.code); }

  private:
    Variant byType(automation::TypeCode type) const;

    NamedSamples named_;
    String folder_;
};

/// With all arguments; with each optional one at the end left out, one after another; and, `inTheMiddle`,
/// with each optional one left out that others follow.
std::vector<MemberUse>
usesOf(const automation::Member& member, const SampleValues& samples, bool inTheMiddle);

/// The function `Use`, which uses the member of its argument. It gives back what the member gives. Arguments
/// by reference are variables, `argument0` and so on by their place; of a record, the fields are left in
/// `field0` and so on.
String programFor(ScriptLanguage language, const automation::Member& member, const MemberUse& use);

} // namespace lumtex::testing
