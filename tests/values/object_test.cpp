#include "values/references/object.h"
#include "values/variant.h"

#include <gtest/gtest.h>

namespace lumtex {
namespace {

class CountingObject final : public Object {
  public:
    using Object::call;
    using Object::get;

    Variant get(StringView name, std::span<Variant> arguments) override {
        return String(u"get ") + String(name) + textFromNumber(static_cast<Double>(arguments.size()));
    }
    void put(StringView /*name*/, const Variant& /*value*/) override {}
    Variant call(StringView name, std::span<Variant> arguments) override {
        return String(u"call ") + String(name) + textFromNumber(static_cast<Double>(arguments.size()));
    }
};

TEST(Object, MembersWithoutParametersNeedNoArguments) {
    CountingObject object;
    EXPECT_EQ(object.get(u"hWnd"), Variant(u"get hWnd0"));
    EXPECT_EQ(object.call(u"MoveNext"), Variant(u"call MoveNext0"));
}

} // namespace
} // namespace lumtex
