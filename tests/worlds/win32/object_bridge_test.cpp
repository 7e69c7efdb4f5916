/// Late binding in both directions.
#include "error_number.h"
#include "scripts/script_host.h"
#include "test_object.h"
#include "values/runtime_error.h"
#include "variant_printing.h"
#include "worlds/win32/object_bridge.h"
#include "worlds/win32/variant_bridge.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

/// An object of ours, seen by the host, seen by us again: both directions in one.
ObjectRef thereAndBack(const ObjectRef& object) {
    const win32::ComRef<IDispatch> dispatch = win32::toIDispatch(object);
    return win32::objectFrom(dispatch.get());
}

TEST(ObjectBridge, GivesTheHostItsOwnObjectBack) {
    const win32::ComRef<IDispatch> hosts = win32::toIDispatch(std::make_shared<TestObject>());
    EXPECT_EQ(win32::toIDispatch(win32::objectFrom(hosts.get())).get(), hosts.get());
}

TEST(ObjectBridge, KnowsNothingAsNothing) {
    EXPECT_EQ(win32::objectFrom(nullptr), nullptr);
    EXPECT_FALSE(win32::toIDispatch(nullptr));
}

TEST(ObjectBridge, ReadsAndAssignsProperties) {
    const auto object = std::make_shared<TestObject>();
    object->properties[u"Caption"] = Variant(u"old");
    const ObjectRef seen = thereAndBack(object);
    EXPECT_EQ(seen->get(u"Caption"), Variant(u"old"));
    seen->put(u"Caption", Variant(u"new"));
    EXPECT_EQ(object->properties[u"Caption"], Variant(u"new"));
}

TEST(ObjectBridge, CallsMethodsWithArgumentsInOrder) {
    const auto object = std::make_shared<TestObject>();
    object->methods[u"Join"] = [](std::span<Variant> arguments) {
        return Variant(arguments[0].toText() + arguments[1].toText());
    };
    const ObjectRef seen = thereAndBack(object);
    std::vector<Variant> arguments{Variant(u"a"), Variant(Long{2})};
    EXPECT_EQ(seen->call(u"Join", arguments), Variant(u"a2"));
    EXPECT_EQ(object->log, std::vector<std::string>{"Join a 2"});
}

TEST(ObjectBridge, WritesArgumentsOfACallBack) {
    const auto object = std::make_shared<TestObject>();
    object->methods[u"Change"] = [](std::span<Variant> arguments) {
        arguments[0] = Variant(u"changed");
        arguments[2] = Long{3};
        return Variant();
    };
    std::vector<Variant> arguments{Variant(u"old"), Long{1}, Long{2}};
    thereAndBack(object)->call(u"Change", arguments);
    EXPECT_EQ(arguments, (std::vector<Variant>{Variant(u"changed"), Long{1}, Long{3}}));
}

TEST(ObjectBridge, TellsOfAnUnknownMember) {
    const ObjectRef seen = thereAndBack(std::make_shared<TestObject>());
    EXPECT_EQ(errorNumberOf([&] { seen->get(u"Nothing"); }), ErrorNumber::objectDoesNotSupportMember);
    EXPECT_EQ(errorNumberOf([&] { seen->put(u"Nothing", Long{1}); }),
              ErrorNumber::objectDoesNotSupportMember);
    EXPECT_EQ(errorNumberOf([&] { seen->call(u"Nothing"); }), ErrorNumber::objectDoesNotSupportMember);
}

TEST(ObjectBridge, KeepsNumberAndTextOfAFailure) {
    const auto object = std::make_shared<TestObject>();
    object->methods[u"Fail"] = [](std::span<Variant>) -> Variant { throw RuntimeError(1234, u"no luck"); };
    const ObjectRef seen = thereAndBack(object);
    try {
        seen->call(u"Fail");
        ADD_FAILURE() << "nothing was thrown";
    } catch (const RuntimeError& failure) {
        EXPECT_EQ(failure.number(), 1234);
        EXPECT_EQ(failure.description(), u"no luck");
    }
}

TEST(ObjectBridge, RefusesBadParametersOfACall) {
    const win32::ComRef<IDispatch> dispatch = win32::toIDispatch(std::make_shared<TestObject>());
    DISPPARAMS none{};
    EXPECT_EQ(dispatch->Invoke(1, IID_IDispatch, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
              DISP_E_UNKNOWNINTERFACE);
    EXPECT_EQ(dispatch->Invoke(1, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr),
              E_INVALIDARG);
    EXPECT_EQ(dispatch->Invoke(99, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
              DISP_E_MEMBERNOTFOUND);
    DISPPARAMS torn{nullptr, nullptr, 2, 0};
    EXPECT_EQ(dispatch->Invoke(1, IID_NULL, 0, DISPATCH_METHOD, &torn, nullptr, nullptr, nullptr),
              E_INVALIDARG);
    EXPECT_EQ(dispatch->QueryInterface(IID_IDispatch, nullptr), E_POINTER);
}

TEST(ObjectBridge, LetsGoOfWhatItHolds) {
    auto object = std::make_shared<TestObject>();
    const std::weak_ptr<TestObject> watch = object;
    ObjectRef seen = thereAndBack(object);
    object.reset();
    EXPECT_FALSE(watch.expired());
    seen.reset();
    EXPECT_TRUE(watch.expired());
}

TEST(ObjectBridge, RefusesArgumentsThatLeadNowhere) {
    const auto object = std::make_shared<TestObject>();
    object->methods[u"Take"] = [](std::span<Variant>) { return Variant(); };
    const win32::ComRef<IDispatch> hosts = win32::toIDispatch(object);
    auto* name = const_cast<wchar_t*>(L"Take");
    DISPID id = DISPID_UNKNOWN;
    ASSERT_EQ(hosts->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id), S_OK);
    VARIANT nowhere;
    VariantInit(&nowhere);
    V_VT(&nowhere) = VT_BYREF | VT_I4;
    V_I4REF(&nowhere) = nullptr;
    DISPPARAMS parameters{&nowhere, nullptr, 1, 0};
    EXPECT_TRUE(FAILED(hosts->Invoke(
        id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr)));
    EXPECT_TRUE(object->log.empty());
}

class ScriptObjects : public ::testing::Test {
  protected:
    ScriptHost vbs{ScriptLanguage::vbScript};
    ScriptHost js{ScriptLanguage::jScript};
};

TEST_F(ScriptObjects, ClassesOfVBScriptAnswerByNameInAnyCase) {
    vbs.run(u"Class Box\n"
            u"  Public Count\n"
            u"  Public Function Twice(x)\n    Twice = x * 2\n  End Function\n"
            u"  Public Property Get Name\n    Name = \"box\"\n  End Property\n"
            u"End Class\n"
            u"Function NewBox\n  Set NewBox = New Box\nEnd Function\n");
    const ObjectRef box = vbs.object()->call(u"NewBox").toObject();
    EXPECT_EQ(box->get(u"name"), Variant(u"box"));
    box->put(u"COUNT", Long{5});
    EXPECT_EQ(box->get(u"Count").toLong(), 5);
    std::vector<Variant> arguments{Long{21}};
    EXPECT_EQ(box->call(u"twice", arguments).toLong(), 42);
}

TEST_F(ScriptObjects, ProceduresOfVBScriptWriteTheirArgumentsBack) {
    vbs.run(u"Sub Change(ByRef a, ByVal b)\n  a = a & \"!\"\n  b = 0\nEnd Sub\n");
    std::vector<Variant> arguments{Variant(u"hey"), Long{7}};
    vbs.object()->call(u"Change", arguments);
    EXPECT_EQ(arguments, (std::vector<Variant>{Variant(u"hey!"), Long{7}}));
}

TEST_F(ScriptObjects, PropertiesAndFunctionsOfJScriptAreFound) {
    js.run(u"var box = { count: 3, twice: function (x) { return x * 2; } };\n"
           u"function getBox() { return box; }\n");
    const ObjectRef box = js.object()->call(u"getBox").toObject();
    EXPECT_EQ(box->get(u"count").toLong(), 3);
    box->put(u"count", Long{4});
    EXPECT_EQ(box->get(u"count").toLong(), 4);
    std::vector<Variant> arguments{Long{4}};
    EXPECT_EQ(box->call(u"twice", arguments).toLong(), 8);
}

TEST_F(ScriptObjects, FailuresOfAScriptAreFailures) {
    // The engine tells its site the number, and the caller that it did so.
    vbs.run(u"Sub Fail\n  Err.Raise 77, \"here\", \"as told\"\nEnd Sub\n");
    EXPECT_EQ(errorNumberOf([&] { vbs.object()->call(u"Fail"); }), SCRIPT_E_REPORTED);
}

TEST_F(ScriptObjects, ScriptsUseOurObjects) {
    const auto object = std::make_shared<TestObject>();
    object->properties[u"Caption"] = Variant(u"old");
    object->methods[u"Join"] = [](std::span<Variant> arguments) {
        return Variant(arguments[0].toText() + arguments[1].toText());
    };
    vbs.run(
        u"Function Work(o)\n  o.Caption = o.Caption & \"+new\"\n  Work = o.Join(\"a\", 1)\nEnd Function\n");
    std::vector<Variant> arguments{Variant(ObjectRef(object))};
    EXPECT_EQ(vbs.object()->call(u"Work", arguments), Variant(u"a1"));
    EXPECT_EQ(object->properties[u"Caption"], Variant(u"old+new"));
}

} // namespace
} // namespace lumtex::testing
